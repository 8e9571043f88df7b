#pragma once

#include <QString>
#include <vector>

#include "db/ingredients.h"

namespace sarne {

/// What a step takes of an ingredient.
struct StepNeed {
    int line = 0;      ///< its place in the recipe's list, from 0
    double share = 1;  ///< of the whole amount

    bool operator==(const StepNeed&) const = default;
};

/// One step of a recipe as it is followed at the stove.
struct CookingStep {
    QString title;  ///< empty but for what is no numbered step: "Na stůl"
    QString text;   ///< plain
    std::vector<StepNeed> needs;
};

/// The steps of a recipe in their order; none where the book knows none.
std::vector<CookingStep> readSteps(Database& db, int recipe);

/// "máslo – 40 g"; the name alone where the ingredient has no amount.
QString needText(const Ingredient& ingredient, double share, UnitSystem units, const Quantities& quantities,
                 const QLocale& locale);

/// The first sentence of a text: what its step is about.
QString firstSentence(const QString& text);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
