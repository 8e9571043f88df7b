// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <functional>

#include "screens/kitchen/cookingboard.h"
#include "screens/kitchen/kitchenform.h"

namespace sarne {

class UserFile;

/// A recipe as it is followed at the stove: first what to get ready, then one step at a time, in letters that
/// are read from across the kitchen, with what the step needs for the portions and in the units that the
/// recipe was looked at. Space, Enter, Right, Page down or a click on the text go on; Left and Page up go
/// back. At the end the day, stars and a line of one's own note are kept. The display stays awake.
class frmVarime : public KitchenForm {
    Q_OBJECT
  public:
    using StartTimer = std::function<void(const QString& name, int seconds)>;
    /// Keeps in \a file, which outlives the screen, what was cooked.
    frmVarime(basSarne& sarne, UserFile& file, StartTimer startTimer);

    /// Opens the screen on what to get ready on \a day. False, and the form is gone, for a recipe without
    /// steps.
    bool Zobraz(std::int16_t id, const Serving& serving, QDate day);

    int page() const { return page_; }
    int pageCount() const { return static_cast<int>(pages_.size()); }
    const CookingPage& shown() const { return pages_[static_cast<size_t>(page_)]; }

    void goBack() override;
    void eyesChanged() override;
    void restored() override;
    void unload() override;
    bool readyToEnd() override;
    void keepUnsaved() override;
    /// The step and what it needs; on the first page what to get ready.
    QString textToRead() const override;

  protected:
    bool keyDown(QKeyEvent& event) override;
    bool swiped(int direction) override { return go(direction); }
    void paint(QPainter& painter) override;

  private:
    void makeButtons();
    void readRecipe(std::int16_t id, const Serving& serving);
    bool go(int pages);
    void forward();
    void layOutPages();
    void drawPage();
    void showPage();
    void showDone();
    void offerReading();
    void startTime(int index);
    void cooked();
    /// Puts the line that was typed below the recipe's note; nothing for none. False where only a draft could
    /// be kept.
    bool keepLine();
    void tick(int row);
    bool turnKey(int key);

    UserFile& file_;
    StartTimer startTimer_;
    CookingRecipe recipe_;
    std::vector<CookingPage> pages_;
    std::vector<bool> ready_;
    int page_ = 0;
    QDate day_;

    CookingBoard board_;
    Button next_, previous_, read_;
};

}  // namespace sarne
