#pragma once

#include "forms/buttonbar.h"
#include "forms/edit.h"
#include "forms/form.h"
#include "forms/label.h"
#include "kitchen/pantry.h"
#include "screens/kitchen/ticklist.h"

namespace sarne {

class UserFile;

/// Recipes by what is at home: on the left the ingredients, to be ticked, in the middle the recipes, those
/// that lack the least first, with what they lack, on the right what they must not hold.
class frmDoma : public Form {
    Q_OBJECT
  public:
    /// Keeps in \a file, which outlives the screen, what is at home.
    frmDoma(basSarne& sarne, UserFile& file);

    /// False, and the form is gone, for a book that does not know what the search needs.
    bool Zobraz();
    const PantryQuery& query() const { return query_; }

    void goBack() override;

  protected:
    bool keyDown(QKeyEvent& event) override;
    void paint(QPainter& painter) override;

  private:
    enum class Action { Without, Season, Quick, NoGluten, NoMilk, NoEggs, Again, Open, Buy };
    static constexpr int kActions = 9;

    void makeActions();
    void act(Action action);
    void tick(int row);
    void addFirst();
    void exclude();
    void search();
    void showIngredients();
    void showRecipes();
    void keep();
    /// The number of the recipe that is selected, 0 without one.
    std::int16_t selectedRecipe() const;
    void openRecipe();

    UserFile& file_;
    PantryIndex index_;
    PantryQuery query_;
    std::vector<PantryIngredient> ingredients_;
    std::vector<int> shown_;  ///< the ingredients in the rows, by their places
    std::vector<PantryMatch> found_;

    Label title_, state_;
    Edit typed_;
    TickList have_, recipes_;
    std::vector<Button*> actions_;
    ButtonBar bar_, aside_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
