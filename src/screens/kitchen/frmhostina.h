// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "kitchen/dinner.h"
#include "screens/kitchen/kitchenform.h"
#include "screens/kitchen/ticklist.h"

namespace sarne {

class UserFile;

/// A menu for a day or a feast: on the left what each course can be, to be ticked, in the middle what is to
/// be done and when, so that every course is on the table in time. What was chosen is kept.
class frmHostina : public KitchenForm {
    Q_OBJECT
  public:
    /// Asks for a number of portions, 0 for no answer, and for a time of day as the user writes it.
    struct Asking {
        std::function<double(const QString& prompt)> number;
        std::function<QString(const QString& prompt)> text;
    };
    /// Keeps the menu in \a file, which outlives the screen. \a month is this month.
    frmHostina(basSarne& sarne, UserFile& file, Asking asking, int month);

    /// False, and the form is gone, for a book that does not know its courses.
    bool Zobraz();
    const Dinner& dinner() const { return dinner_; }

  protected:
    void act(int action) override;
    void print() override;
    bool keyDown(QKeyEvent& event) override;
    void paint(QPainter& painter) override;

  private:
    enum class Action { Occasion, Portions, Hour, Open, Buy, Again };

    /// A row of the courses: a recipe for one of them.
    struct Choice {
        int course = 0, recipe = 0;
    };

    void tick(int row);
    void changed();
    void showCourses();
    void showPlan();
    void nextOccasion();
    void askPortions();
    void askHour();
    void buy();
    void openRecipe();

    UserFile& file_;
    Asking asking_;
    int month_;
    std::vector<DinnerRecipe> all_;
    Dinner dinner_;
    std::vector<Choice> choices_;  ///< by row; recipe 0 for a heading

    TickList courses_, plan_;
    Label hint_;
};

}  // namespace sarne
