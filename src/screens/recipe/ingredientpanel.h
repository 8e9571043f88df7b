#pragma once

#include <array>

#include "forms/button.h"
#include "forms/label.h"
#include "richtext/qttextmetrics.h"
#include "screens/recipe/recipesection.h"

namespace sarne {

/// The ingredients of the recipe: the cutlery pictures, the toggle between the unit systems and the list.
class IngredientPanel : public RecipeSection {
  public:
    explicit IngredientPanel(const SectionRoom& room);

    void recipeChanged() override;
    void setVisible(bool visible) override;
    QRect viewPlace() const override { return recipelayout::kListView; }
    /// Draws the list, from the database.
    void draw() override;
    std::vector<FocusGroup> stops() const override {
        return {FocusGroup(pictures()), FocusGroup(std::array<TwipWidget*, 1>{fish_})};
    }
    /// Steps sideways to the next picture and says what it does.
    bool step(bool sideways, int direction) override;

  private:
    Button& addButton(const QString& name, const QRect& place);
    std::vector<Control*> pictures() const;
    void portionClick(int index);
    bool askPortions();
    void unitToggle();
    /// Asks how much fish there is, and shows the recipe for so many portions.
    void askFish();
    /// Shows the recipe for the portions of picture \a index.
    void usePortions(int index);
    void redraw();
    void showCutlery(int index);
    void showUnits();
    void showPortions();
    int lineWidth(QStringView line);

    std::vector<Button*> cutlery_;
    Button* toggle_;
    Button* current_;  // the other picture beside the toggle: the unit system in use
    Label* portionText_;
    Button* fish_;  ///< only for a recipe whose main fish is known
    bool knowsFish_ = false;
    PanelPosition position_;
    QtTextMetrics metrics_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
