#pragma once

#include <optional>
#include <vector>

#include "db/companions.h"
#include "forms/button.h"
#include "forms/checkbox.h"
#include "screens/recipe/recipesection.h"

namespace sarne {

/// The links of the recipe: an option for each, and the text of the chosen one.
class LinkPanel : public RecipeSection {
  public:
    explicit LinkPanel(const SectionRoom& room);

    /// Takes the links of the recipe, the first one chosen.
    void recipeChanged() override;
    void setVisible(bool visible) override;
    /// The place beside the options.
    QRect viewPlace() const override;
    /// Draws the text of the chosen link, or says that there is none.
    void draw() override;
    std::vector<FocusGroup> stops() const override;
    bool step(bool sideways, int direction) override;
    QString nothingHere() const override;

  private:
    void optionClick(int index);
    void makeOption(size_t at);
    void placeOptions();
    void scrollRows(int rows);
    void showRow(int row);
    int rowCount() const;
    void setArrow(Button& arrow, int rows);

    std::vector<RecipeLink> links_;
    std::vector<OptionButton*>
        options_;  ///< of the links; null until they come into sight: there may be thousands
    Button *up_, *down_;
    int chosen_ = 0;
    int firstRow_ = 0;
    bool visible_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
