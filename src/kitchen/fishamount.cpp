#include "kitchen/fishamount.h"

#include "core/numbertext.h"
#include "db/database.h"
#include "db/ingredients.h"

namespace sarne {
namespace {

constexpr double kHundredths = 100;

/// What is left of a whole fish in the refinement called \a name; all of it where the book does not say.
double yieldOf(Database& db, const std::optional<QString>& name) {
    if (!name) return 1;
    Recordset names = db.OpenTable(QStringLiteral("Upresneni"));
    for (Recordset rows = db.OpenTable(QStringLiteral("Vyteznost")); !rows.AtEnd(); rows.MoveNext())
        if (RecordExists(names, rows.field(QStringLiteral("ID"))) &&
            names.field(QStringLiteral("Polozka")) == *name)
            return rows.field(QStringLiteral("Podil")).toInt() / kHundredths;
    return 1;
}

}  // namespace

double MainFish::portionsFor(double bought, Bought how) const {
    if (bought <= 0 || grams <= 0) return 0;
    const double usable = how == Bought::Whole ? bought * wholeShare : bought;
    return roundHalfEven(portions * usable / grams, 1);
}

std::optional<MainFish> mainFish(Database& db, int recipe) {
    Recordset facts = db.OpenTable(QStringLiteral("Fakta"));
    Recordset recipes = db.OpenTable(QStringLiteral("Recepty"));
    if (!RecordExists(facts, recipe) || !RecordExists(recipes, recipe)) return std::nullopt;
    const int line = facts.field(QStringLiteral("Ryba")).toInt();
    const std::vector<Ingredient> all = readIngredients(db, recipe);
    if (line < 0 || line >= static_cast<int>(all.size())) return std::nullopt;
    const Ingredient& fish = all[static_cast<size_t>(line)];
    if (fish.weights.unit != QStringLiteral("g") || fish.weights.amount <= 0) return std::nullopt;
    return MainFish{fish.refinement ? fish.name + QStringLiteral(", ") + *fish.refinement : fish.name,
                    fish.weights.amount, recipes.field(QStringLiteral("Porce")).toInt(),
                    yieldOf(db, fish.refinement)};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
