// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>

#include "forms/picturebox.h"
#include "forms/starrow.h"
#include "kitchen/owncookery.h"
#include "screens/kitchen/kitchenform.h"
#include "screens/kitchen/ticklist.h"

namespace sarne {

class UserFile;

/// The user's own cookbook: on the left its shelves – what has stars, what was cooked, what has a note, what
/// was looked at last, what this month is for –, in the middle the recipes of one, on the right what is known
/// of the selected one.
class frmKucharka : public KitchenForm {
    Q_OBJECT
  public:
    /// Reads from \a file, which outlives the screen, and keeps stars there. \a today is this day.
    frmKucharka(basSarne& sarne, UserFile& file, QDate today);

    /// Opens the screen on the first shelf that holds something.
    void Zobraz();
    Shelf shelf() const { return shelf_; }

    void restored() override;

  protected:
    void act(int action) override;
    bool keyDown(QKeyEvent& event) override;
    void paint(QPainter& painter) override;

  private:
    enum class Action { Open, Cook, Buy };

    void makeShelves();
    void openShelf(Shelf shelf);
    void read();
    void showRecipes();
    void showChosen();
    QString rightOf(const OwnRecipe& recipe) const;
    QString belowOf(const OwnRecipe& recipe) const;
    const OwnRecipe* chosen() const;
    void give(int stars);
    void openRecipe();

    UserFile& file_;
    QDate today_;
    Shelf shelf_ = Shelf::ThisMonth;
    std::vector<OwnRecipe> all_, shown_;

    std::vector<Button*> shelves_;
    TickList rows_;
    PictureBox photo_;
    Label name_, details_, nothing_;
    StarRow stars_;
};

}  // namespace sarne
