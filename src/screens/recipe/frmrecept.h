#pragma once

#include <memory>
#include <vector>

#include "forms/buttonbar.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/starrow.h"
#include "screens/recipe/recipesection.h"

namespace sarne {

/// One recipe, full screen, a section at a time. Keeps the recipe's record open while it is shown, and the
/// display awake.
class frmRecept : public Form {
    Q_OBJECT
  public:
    /// Shows recipes in the units of \a lookedAt, and keeps there how a recipe was looked at last; it must
    /// outlive the screen. \a ask asks the user for a number of portions; by default the program's own dialog
    /// does.
    frmRecept(basSarne& sarne, Serving& lookedAt, AskNumber ask = {});

    /// Opens the screen on the recipe \a id, its photo first, and plays its name. An id that does not exist
    /// shows a recipe without texts.
    void Zobraz(std::int16_t id);
    /// Closes the recipe and returns to the screen that opened it, unless the user wants to stay.
    void Skryj();

    /// The section that is shown, by its place in the table.
    int section() const { return section_; }
    /// Shows another section, unless the user wants to stay; nothing where the table has none at that place.
    void openSection(int section);
    /// Everything there is to read about the recipe, as plain text with lines ended by "\r\n": the list of
    /// ingredients as it is recalculated now, the texts, the own note, tools and links.
    QString collectedText();

    void eyesChanged() override;
    void goBack() override { Skryj(); }
    bool readyToEnd() override;
    void help() override;
    void restored() override;
    void unload() override;
    void keepUnsaved() override;

  protected:
    bool keyDown(QKeyEvent& event) override;
    void paint(QPainter& painter) override;

  private:
    void makeView();
    void makeSections(Serving& lookedAt, AskNumber ask);
    void placeSection(int index);

    void loadRecipe(std::int16_t id);
    void showTitle();
    void playName();
    RecipeSection& current() const { return *sections_[size_t(section_)]; }
    void showSection();
    void print();
    void showStars();
    void kitchenClick(int button);
    bool kitchenKey(const QKeyEvent& event);

    // Keyboard
    std::vector<FocusGroup> stops() const;
    bool viewKey(const QKeyEvent& event);
    bool arrow(Direction direction);
    bool leavesSections(const TwipWidget* at, int way);
    void stepSections(int direction);
    void sayNothingHere();

    ShownRecipe recipe_;
    std::vector<std::unique_ptr<RecipeSection>> sections_;
    int section_ = 0;
    Room ground_;

    Label* title_;
    StarRow* stars_;
    ButtonBar imgBtn, imgBtnHlavni, imgKuchyne;
    TextView* view_;
    PictureBox* picture_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
