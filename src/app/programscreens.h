#pragma once

#include <QPointer>

#include "app/kitchenscreens.h"
#include "print/printing.h"
#include "screens/browse/frmseznam.h"

namespace sarne {

class frmHlavni;
class Program;

/// Builds the screens that others ask for.
class ProgramScreens final : public Screens {
  public:
    explicit ProgramScreens(Program& program);

    /// Makes and shows the main screen. Called once.
    void showMain();
    frmHlavni* mainScreen() const { return main_; }

    void showList(const QString& ids, const QString& source, const QString& subject) override;
    void showRecipe(std::int16_t id) override { showRecipeAt(id, 0); }
    /// Shows a recipe at one of its sections, by its place in their table.
    void showRecipeAt(std::int16_t id, int section);
    void showGrid() override;
    void showPhotos(const PhotoRequest& request) override;
    void showVideo(std::int16_t number) override;
    void showMusicSettings() override;
    void showEyes() override;
    void showPage(const QString& id) override;
    void showHelpFor(const QString& formName) override;
    void showTables(std::int16_t item) override;
    void showIndex(std::int16_t keyword) override;
    void showSponsor(std::int16_t topic, const QString& text) override;
    void showPrintSelection(const std::vector<PrintEntry>& entries, const QString& mode) override;
    void printRecipes(const std::vector<std::int16_t>& ids, const Serving& serving) override;
    void printText(const QString& title, const QString& text) override;
    bool canCook(std::int16_t id) override;
    void cookRecipe(std::int16_t id, const Serving& serving) override;
    void addToShoppingList(const std::vector<std::int16_t>& ids, const Serving& serving) override;
    void showShoppingList() override;
    void showPantry() override;
    bool knowsGoods() override { return kitchen_.knowsGoods(); }
    void showOwnCookbook() override { kitchen_.showOwnCookbook(); }
    void showFeast() override { kitchen_.showFeast(); }
    int starsOf(std::int16_t id) override { return kitchen_.starsOf(id); }
    void giveStars(std::int16_t id, int stars) override { kitchen_.giveStars(id, stars); }
    void stopRinging() override;
    void returnToMain() override;

    /// Asks about what would be lost that belongs to no screen: running timers.
    bool readyToEnd() { return kitchen_.readyToEnd(); }
    /// What a run that was cut off has left goes on; what is running is given up at the end.
    void resume() { kitchen_.resumeTimers(); }
    void ended() { kitchen_.ended(); }

  private:
    void returnToHelpList();

    Program& program_;
    frmHlavni* main_ = nullptr;
    QPointer<frmSeznam> helpList_;
    frmSeznam::Panel listPanel_ = frmSeznam::Panel::Photo;  ///< as the user left it
    Printing printing_;
    KitchenScreens kitchen_;
    Serving lookedAt_;  ///< how the user looked at a recipe last
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
