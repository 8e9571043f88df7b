#include "kitchen/goods.h"

#include "db/database.h"

namespace sarne {
namespace {

Department departmentOf(int number) {
    return number >= 0 && number < kDepartments ? Department(number) : Department::Other;
}

}  // namespace

Goods::Goods(Database& db) {
    Recordset names = db.OpenTable(QStringLiteral("Suroviny"));
    for (Recordset rows = db.OpenTable(QStringLiteral("Zbozi")); !rows.AtEnd(); rows.MoveNext()) {
        if (!RecordExists(names, rows.field(QStringLiteral("ID")))) continue;
        goods_.insert(names.field(QStringLiteral("Polozka")).toString(),
                      {departmentOf(rows.field(QStringLiteral("Oddeleni")).toInt()),
                       rows.field(QStringLiteral("Doma")).toInt() != 0,
                       rows.field(QStringLiteral("Alergeny")).toInt()});
    }
    Recordset refinements = db.OpenTable(QStringLiteral("Upresneni"));
    for (Recordset rows = db.OpenTable(QStringLiteral("Uprava")); !rows.AtEnd(); rows.MoveNext())
        if (RecordExists(refinements, rows.field(QStringLiteral("ID"))))
            madeAtHome_.insert(refinements.field(QStringLiteral("Polozka")).toString());
}

QString Goods::nameInShop(const Ingredient& ingredient) const {
    if (!ingredient.refinement || madeAtHome_.contains(*ingredient.refinement)) return ingredient.name;
    return ingredient.name + QStringLiteral(", ") + *ingredient.refinement;
}

std::vector<ShoppingItem> shoppingNeeds(const std::vector<Ingredient>& ingredients, const Goods& goods,
                                        const ShoppingRecipe& recipe, int basePortions) {
    std::vector<ShoppingItem> needs;
    const double factor = basePortions > 0 ? recipe.portions / basePortions : 1;
    for (const Ingredient& ingredient : ingredients) {
        const Good good = goods.of(ingredient.name);
        needs.push_back(
            {goods.nameInShop(ingredient),
             good.department,
             good.atHome,
             false,
             ingredient.alternative.value_or(QString()),
             {ShoppingPart{
                 recipe.recipe, recipe.name, recipe.portions,
                 ingredient.weights.amount > 0 ? ingredient.weights.unit.value_or(QString()) : QString(),
                 ingredient.weights.amount * factor}}});
    }
    return needs;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
