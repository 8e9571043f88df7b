#include "weights.h"

#include <algorithm>

namespace sarne::disc {
namespace {

/// The names under which the tables may know what a line names: with the refinement first, then without.
QStringList keys(const Cookbook& book, const IngredientLine& line) {
    const Ingredient* ingredient = book.ingredient(line.ingredient);
    if (!ingredient) return {};
    QStringList names{ingredient->name.toLower()};
    if (line.refinement > 0)
        names.prepend(names.first() + QStringLiteral(", ") +
                      book.refinements.names[line.refinement - 1].toLower());
    if (ingredient->isMain) names << book.facts.mainMark;
    return names;
}

double unitWeight(const Cookbook& book, const IngredientLine& line, int unit) {
    for (const QString& key : keys(book, line))
        if (const double grams = book.unitWeights.value(key).value(unit)) return grams;
    return 0;
}

const Food* foodOf(const Cookbook& book, const IngredientLine& line) {
    for (const QString& key : keys(book, line))
        if (const auto food = book.foods.constFind(key); food != book.foods.cend()) return &*food;
    return nullptr;
}

}  // namespace

double inGrams(const Cookbook& book, const IngredientLine& line, double amount, int unitId) {
    const Unit* unit = book.unit(unitId);
    if (!unit) return 0;
    if (unit->kind == UnitKind::weight || unit->kind == UnitKind::volume) return amount * unit->size;
    const Unit* first = book.unit(line.unit);
    if (unit->kind == UnitKind::spoon && first && first->kind == UnitKind::volume) return amount * unit->size;
    return amount * unitWeight(book, line, unitId);
}

std::optional<Nutrition> nutrition(const Cookbook& book, const Recipe& recipe, Problems& problems) {
    Nutrition sum;
    bool isWhole = recipe.portions > 0;
    for (const IngredientLine& line : recipe.ingredients) {
        const Ingredient* ingredient = book.ingredient(line.ingredient);
        const Unit* unit = book.unit(line.unit);
        if (!ingredient || !unit) return {};
        const Food* food = foodOf(book, line);
        const double grams = inGrams(book, line, line.amount, line.unit);
        if (!food) {
            if (!book.foods.isEmpty())
                problems.finding(
                    line.place,
                    QStringLiteral("potraviny.txt neříká, co obsahuje „%1“").arg(ingredient->name));
            isWhole = false;
            continue;
        }
        if (grams <= 0 && unit->kind != UnitKind::free && food->energy > 0) {
            problems.finding(line.place, QStringLiteral("lzice.txt neříká, kolik váží „%1“ suroviny „%2“")
                                             .arg(unit->name, ingredient->name));
            isWhole = false;
        }
        sum.energy += grams * food->energy / 100 / recipe.portions;
        sum.protein += grams * food->protein / 100 / recipe.portions;
        for (const int allergen : food->allergens)
            if (!sum.allergens.contains(allergen)) sum.allergens << allergen;
    }
    std::sort(sum.allergens.begin(), sum.allergens.end());
    return isWhole ? std::optional(sum) : std::nullopt;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
