#pragma once

#include <functional>

#include "core/quantities.h"
#include "forms/buttonbar.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picturebox.h"
#include "kitchen/cookingpages.h"
#include "kitchen/foundtimes.h"
#include "screens/kitchen/ticklist.h"

namespace sarne {

class UserFile;

/// A recipe as it is followed at the stove: first what to get ready, then one step at a time, in letters that
/// are read from across the kitchen, with what the step needs for the portions and in the units that the
/// recipe was looked at. Space, Enter, Right, Page down or a click on the text go on; Left and Page up go
/// back. The display stays awake.
class frmVarime : public Form {
    Q_OBJECT
  public:
    using StartTimer = std::function<void(const QString& name, int seconds)>;
    /// Keeps in \a file, which outlives the screen, what was cooked.
    frmVarime(basSarne& sarne, UserFile& file, StartTimer startTimer);

    /// Opens the screen on what to get ready. False, and the form is gone, for a recipe without steps.
    bool Zobraz(std::int16_t id, const Serving& serving);

    int page() const { return page_; }
    int pageCount() const { return static_cast<int>(pages_.size()); }
    const CookingPage& shown() const { return pages_[static_cast<size_t>(page_)]; }

    void goBack() override;
    void restored() override;
    void unload() override;

  protected:
    bool keyDown(QKeyEvent& event) override;
    void paint(QPainter& painter) override;

  private:
    static constexpr int kTimes = 4;

    void dress();
    void makeButtons();
    void readRecipe(std::int16_t id, const Serving& serving);
    void go(int pages);
    void forward();
    void showPage();
    void showReady();
    void showStep();
    void showDone();
    void showTimes(const QString& text);
    void startTime(int index);
    void cooked();
    void tick(int row);
    QString needsOf(const CookingStep& step) const;
    QString portionsText() const;
    bool turnKey(int key);

    UserFile& file_;
    StartTimer startTimer_;
    std::int16_t recipe_ = 0;
    QString name_, tools_;
    Serving serving_;
    Quantities quantities_{0, 0, QLocale()};
    std::vector<Ingredient> ingredients_;
    std::vector<CookingStep> steps_;
    std::vector<CookingPage> pages_;
    std::vector<bool> ready_;
    std::vector<FoundTime> times_;
    int page_ = 0;

    Label title_, counter_, text_;
    Button paper_;  ///< over the text: a click on it goes on
    Label side_, needs_;
    TickList list_;
    PictureBox photo_;
    std::vector<Button*> time_;
    Button next_, previous_, cooked_;
    ButtonBar bar_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
