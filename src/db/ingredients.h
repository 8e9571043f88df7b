#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "core/quantities.h"

namespace sarne {

class Database;

/// How much of an ingredient a recipe takes, in one unit system.
struct Measure {
    std::optional<QString> unit;  ///< its name, without blanks around it
    double amount = 0;            ///< for the recipe's own number of portions

    /// " (" + unit + ")" where there is a unit, then ": " + amount where there is one.
    QString text(const Quantities& quantities) const;
};

/// One ingredient of a recipe, by the names that people read.
struct Ingredient {
    QString name;
    std::optional<QString> refinement;  ///< a cut or a state
    Measure weights, spoons;
    std::optional<QString> alternative;  ///< what may replace it

    const Measure& measure(UnitSystem system) const {
        return system == UnitSystem::Weights ? weights : spoons;
    }
    /// The name with its refinement behind " - ".
    QString title() const;
    /// The line of a list of ingredients, without blanks around it.
    QString line(UnitSystem system, const Quantities& quantities) const;
    /// The line that follows where there is an alternative, its six blanks in front; otherwise empty.
    QString alternativeLine() const;
};

/// The ingredients of a recipe in their stored order. A name that is not in its table is taken over from the
/// ingredient before, which may have none. Empty for a recipe that has no ingredients or does not exist.
std::vector<Ingredient> readIngredients(Database& db, int recipe);

/// All lines of a list of ingredients, alternatives included.
std::vector<QString> ingredientLines(const std::vector<Ingredient>& ingredients, UnitSystem system,
                                     const Quantities& quantities);

/// A list of ingredients as text: the number of portions first, each line ended by "\r\n". Empty where there
/// are no ingredients.
QString ingredientsText(const std::vector<Ingredient>& ingredients, UnitSystem system,
                        const Quantities& quantities);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
