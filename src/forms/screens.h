#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "core/quantities.h"

namespace sarne {

/// What the photo viewer is asked to show.
struct PhotoRequest {
    std::vector<std::int16_t> photoIds;  ///< recipe ids, in order
    int startPosition = 0;               ///< index of the first photo shown
    bool slideShow = false;
    int slideInterval = 4000;  ///< milliseconds
};

/// One line of the print selection.
struct PrintEntry {
    QString text;
    std::int32_t item = 0;  ///< a recipe id
    bool marked = false;    ///< the entry that the user is at: it is marked when the selection opens
};

/// How a screen opens another: by what it wants shown, without knowing who shows it. A screen that cannot be
/// shown answers with nothing.
class Screens {
  public:
    virtual ~Screens() = default;

    /// The list of the records \a ids ("12,40,7,", all when empty) of the table \a source.
    virtual void showList(const QString& ids, const QString& source, const QString& subject = {}) = 0;
    virtual void showRecipe(std::int16_t id) = 0;
    virtual void showGrid() = 0;
    virtual void showPhotos(const PhotoRequest& request) = 0;
    virtual void showVideo(std::int16_t number) = 0;
    virtual void showMusicSettings() = 0;
    /// The size of texts, calm, contrast.
    virtual void showEyes() {}
    /// A text page with its own button bar, by its id ("10", "300").
    virtual void showPage(const QString& id) = 0;
    /// The help for the form called \a formName.
    virtual void showHelpFor(const QString& formName) = 0;
    virtual void showTables(std::int16_t item) = 0;
    /// An index keyword's text.
    virtual void showIndex(std::int16_t keyword) = 0;
    virtual void showSponsor(std::int16_t topic, const QString& text) = 0;
    virtual void showPrintSelection(const std::vector<PrintEntry>& entries, const QString& mode) = 0;
    /// Prints recipes; the user is first offered to have them as \a serving says.
    virtual void printRecipes(const std::vector<std::int16_t>& ids, const Serving& serving) = 0;
    /// Prints \a text, an RTF document or plain text, which belongs to no recipe, under \a title.
    virtual void printText(const QString& title, const QString& text) {
        Q_UNUSED(title)
        Q_UNUSED(text)
    }
    /// Whether the book knows the steps of a recipe; the recipe at the stove, step by step.
    virtual bool canCook(std::int16_t /*id*/) { return false; }
    virtual void cookRecipe(std::int16_t /*id*/, const Serving& /*serving*/) {}
    /// Puts what recipes need on the shopping list; for 0 portions, for as many as each is written for.
    virtual void addToShoppingList(const std::vector<std::int16_t>& /*ids*/, const Serving& /*serving*/) {}
    virtual void showShoppingList() {}
    /// Recipes by what is at home.
    virtual void showPantry() {}
    /// Whether the book knows what the shopping list and the search by what is at home need.
    virtual bool knowsGoods() { return false; }
    /// What the user has made of the book: stars, what was cooked, notes.
    virtual void showOwnCookbook() {}
    /// A menu of several courses with its time plan.
    virtual void showFeast() {}
    /// The stars that the user has given to a recipe, 0 to 5; negative where they cannot be kept.
    virtual int starsOf(std::int16_t /*id*/) { return -1; }
    virtual void giveStars(std::int16_t /*id*/, int /*stars*/) {}
    /// Stops the kitchen timers that ring.
    virtual void stopRinging() {}
    /// Hides the menu tree and returns the main screen to idle.
    virtual void returnToMain() = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
