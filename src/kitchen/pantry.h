#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace sarne {

class Database;

/// What a search by what is at home knows of a recipe.
struct PantryRecipe {
    int id = 0;
    QString name;
    std::vector<int> ingredients;  ///< by their numbers, without what everyone has
    int allergens = 0;             ///< bit n - 1 for number n of the European list
    int months = 0;                ///< bit n - 1 for month n; 0 where it is not known
    int minutes = 0;
};

/// What is asked for.
struct PantryQuery {
    std::vector<int> have, without;  ///< ingredients by their numbers
    int withoutAllergens = 0;
    int month = 0;        ///< 1 to 12; 0: any
    int mostMinutes = 0;  ///< 0: any
};

/// A recipe that was found.
struct PantryMatch {
    size_t recipe = 0;  ///< its place in the index
    int missing = 0, used = 0;
};

/// All recipes of the book, to be searched by what is at home.
class PantryIndex {
  public:
    PantryIndex() = default;
    explicit PantryIndex(std::vector<PantryRecipe> recipes);

    bool isEmpty() const { return recipes_.empty(); }
    const PantryRecipe& recipe(size_t place) const { return recipes_[place]; }
    /// The allergens that some of the recipes have and others do not, as bits: those worth leaving out.
    int tellingAllergens() const;
    /// The best \a most recipes that use something of what is at home and nothing of what must not be in
    /// them: the fewest things missing first, then the most used, then by name.
    std::vector<PantryMatch> find(const PantryQuery& query, size_t most) const;
    /// Which ingredients of the recipe at \a place are not at home.
    std::vector<int> missing(size_t place, const PantryQuery& query) const;

  private:
    std::vector<PantryRecipe> recipes_;
    std::vector<int> ingredients_;  ///< of all recipes, one behind the other
    std::vector<size_t> starts_;    ///< where those of each recipe begin; one more at the end
    int highest_ = 0;
};

/// An ingredient that can be at home.
struct PantryIngredient {
    int id = 0;
    QString name;
};

/// The recipes and the ingredients of a book, those that everyone has left out; nothing where the book does
/// not know them.
std::vector<PantryRecipe> readPantryRecipes(Database& db);
std::vector<PantryIngredient> readPantryIngredients(Database& db);

/// What number \a number, 1 to 14, of the European list of allergens is called: "celer".
QString allergenName(int number);

/// The places of the names that have a word beginning with \a typed, whatever its case and accents: the name
/// itself first, then those that begin so; all for an empty text.
std::vector<int> namesWithWord(const std::vector<PantryIngredient>& all, const QString& typed);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
