#pragma once

#include "forms/edit.h"
#include "forms/timer.h"
#include "kitchen/pantry.h"
#include "screens/kitchen/kitchenform.h"
#include "screens/kitchen/ticklist.h"

namespace sarne {

class UserFile;

/// Recipes by what is at home: on the left the ingredients, to be ticked, in the middle the recipes, those
/// that lack the least first, with what they lack, on the right what they must not hold.
class frmDoma : public KitchenForm {
    Q_OBJECT
  public:
    /// Keeps in \a file, which outlives the screen, what is at home.
    frmDoma(basSarne& sarne, UserFile& file);

    /// False, and the form is gone, for a book that does not know what the search needs.
    bool Zobraz();
    const PantryQuery& query() const { return query_; }

  protected:
    void act(int action) override;
    bool keyDown(QKeyEvent& event) override;
    void paint(QPainter& painter) override;

  private:
    enum class Action { Without, Season, Quick, NoGluten, NoMilk, NoEggs, Again, Open, Buy };

    void tick(int row);
    void addFirst();
    void exclude();
    void search();
    void showIngredients();
    void addAllergens(std::vector<TickRow>& rows);
    void showRecipes();
    void keep();
    /// The number of the recipe that is selected, 0 without one.
    std::int16_t selectedRecipe() const;
    void openRecipe();

    UserFile& file_;
    PantryIndex index_;
    PantryQuery query_;
    std::vector<PantryIngredient> ingredients_;
    std::vector<int> shown_;      ///< the ingredients in the rows, by their places
    std::vector<int> allergens_;  ///< the allergens in the rows behind them, by their numbers
    std::vector<PantryMatch> found_;

    Edit typed_;
    TickList have_, recipes_;
    Timer tmrPocet;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
