// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/button.h"
#include "forms/edit.h"
#include "forms/label.h"
#include "forms/picturebox.h"
#include "forms/starrow.h"
#include "kitchen/cookingrecipe.h"
#include "kitchen/foundtimes.h"
#include "screens/kitchen/ticklist.h"

namespace sarne {

/// What a page at the stove looks like: the text on its paper, in letters that are read from across the
/// kitchen, beside it what the step needs, its times as buttons, the dish. Owns the controls of the page, and
/// places and fills them; what they do is the screen's.
class CookingBoard {
  public:
    static constexpr int kTimes = 4;

    explicit CookingBoard(Form& form);

    /// Whether \a text fits a page.
    bool fits(const QString& text) const;
    /// Takes on the size of texts that the eyes want; before a page is shown.
    void takeTextSize();

    /// Shows what to get ready, \a ready telling what is.
    void showReady(const CookingRecipe& recipe, const std::vector<bool>& ready);
    /// Shows a step or a part of it.
    void showStep(const CookingRecipe& recipe, const CookingPage& page);
    /// Shows the end, with \a text; a line for the note and \a stars, none offered where that is negative.
    void showDone(const QString& text, int stars);

    /// The times that can be waited for on this page.
    const std::vector<FoundTime>& times() const { return times_; }
    /// The controls from the top left to the bottom right.
    std::vector<TwipWidget*> stops();
    void paint(QPainter& painter) const;

    Label counter, text;
    Button paper;  ///< over the text: a click on it goes on
    Label side, needs;
    TickList list;
    PictureBox photo;
    std::vector<Button*> timeButtons;
    Label noteHint;
    Edit note;
    StarRow stars;
    Button cooked;

  private:
    void show(CookingPage::Kind kind);
    void showTimes(const QString& text);
    void placeTime(int index, int count, const QString& words);
    void showNeeds(const QString& lines);
    TextFont sized(const TextFont& font) const;
    void fit(const QString& needed, const QRect& place);

    std::vector<FoundTime> times_;
};

}  // namespace sarne
