#pragma once

#include <QHash>
#include <QSet>
#include <vector>

#include "db/ingredients.h"
#include "kitchen/shoppinglist.h"

namespace sarne {

class Database;

/// What the book knows of an ingredient as a thing that is bought.
struct Good {
    Department department = Department::Other;
    bool atHome = false;
    int allergens = 0;  ///< bit n - 1 for number n of the European list
};

/// The things that the book's ingredients are in the shop, by their names.
class Goods {
  public:
    /// Reads them from the book; empty where it does not know them.
    explicit Goods(Database& db);

    bool isEmpty() const { return goods_.isEmpty(); }
    Good of(const QString& ingredient) const { return goods_.value(ingredient); }
    /// The ingredient as one asks for it: with its refinement unless that is what the cook makes of it.
    QString nameInShop(const Ingredient& ingredient) const;

  private:
    QHash<QString, Good> goods_;
    QSet<QString> madeAtHome_;
};

/// What a recipe's ingredients are on the shopping list, by weight: no shop sells butter in spoons.
std::vector<ShoppingItem> shoppingNeeds(const std::vector<Ingredient>& ingredients, const Goods& goods,
                                        const ShoppingRecipe& recipe, int basePortions);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
