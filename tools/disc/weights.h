#pragma once

#include "cookbook.h"

namespace sarne::disc {

/// How many grams (or millilitres) \a amount of the unit \a unitId of a line's ingredient is: by the unit
/// itself, or by what lzice.txt says of the ingredient with its refinement, without it, or of any fish. 0
/// when nothing is known.
double inGrams(const Cookbook& book, const IngredientLine& line, double amount, int unitId);

/// What a portion of a recipe holds, reckoned from the amounts by weight.
struct Nutrition {
    double energy = 0;   ///< kcal
    double protein = 0;  ///< grams
    /// The numbers of the European list, in their order.
    QList<int> allergens;
};

/// Nothing, and a finding for each reason, when the weight or the food of one of its ingredients is not
/// known.
std::optional<Nutrition> nutrition(const Cookbook& book, const Recipe& recipe, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
