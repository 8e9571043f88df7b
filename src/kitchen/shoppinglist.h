#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <vector>

namespace sarne {

/// The departments of the shop, in the order in which one walks through it. Their numbers are the disc's.
enum class Department { Fish, Vegetables, Dairy, Dry, Spices, Drinks, Other };
constexpr int kDepartments = 7;
QString departmentName(Department department);

/// How much of a thing somebody needs, and what for.
struct ShoppingPart {
    int recipe = 0;  ///< its number; 0 for what the user has written
    QString recipeName;
    double portions = 0;
    QString unit;
    double amount = 0;  ///< 0 where there is no number

    bool operator==(const ShoppingPart&) const = default;
};

/// One thing to buy, with all that goes into it.
struct ShoppingItem {
    QString name;
    Department department = Department::Other;
    bool atHome = false;  ///< what everyone has in the kitchen
    bool bought = false;
    QString alternative;
    std::vector<ShoppingPart> parts;

    bool isOwn() const;
    /// "1,2 kg", or "200 g + 2 ks" where they do not add up.
    QString amounts(const QLocale& locale) const;
    /// What it is for: the names of the recipes.
    QStringList recipes() const;

    bool operator==(const ShoppingItem&) const = default;
};

/// A recipe on the list.
struct ShoppingRecipe {
    int recipe = 0;
    QString name;
    double portions = 0;

    bool operator==(const ShoppingRecipe&) const = default;
};

/// What is to be bought. Equal things of several recipes are one item; a recipe that is put on the list again
/// takes its own place, for the portions it is wanted for now. Every change can be taken back.
class ShoppingList {
  public:
    ShoppingList() = default;
    explicit ShoppingList(std::vector<ShoppingItem> items);

    /// The items by department, the at-home ones of all departments last, each in Czech order.
    const std::vector<ShoppingItem>& items() const { return items_; }
    bool isEmpty() const { return items_.empty(); }
    /// The recipes that something on the list is for.
    std::vector<ShoppingRecipe> recipes() const;

    /// Puts what a recipe needs on the list; each of \a needs has one part, of that recipe.
    void addRecipe(const std::vector<ShoppingItem>& needs);
    /// Takes away what only that recipe needs.
    void removeRecipe(int recipe);
    /// A line that the user has typed: "2 kg brambor", "toaletní papír". An empty one adds nothing.
    void addOwn(const QString& text);
    /// Of the item at \a index:
    void setBought(int index, bool bought);
    /// There is so much of it to buy in its first unit; what each recipe takes changes alike. Nothing where
    /// the item has no number.
    void setAmount(int index, double amount);
    /// It is in the shop after all, or at home.
    void setAtHome(int index, bool atHome);
    void remove(int index);
    void removeBought();
    void clear();

    bool canUndo() const { return !before_.empty(); }
    void undo();

    /// The list as text for paper and messages, by department, what is bought or at home left out.
    QString text(const QLocale& locale) const;

  private:
    void keep();
    bool has(int index) const { return index >= 0 && index < static_cast<int>(items_.size()); }
    ShoppingItem* find(const QString& name);
    void merge(const ShoppingItem& need);
    void dropRecipe(int recipe);
    void sort();

    std::vector<ShoppingItem> items_;
    std::vector<std::vector<ShoppingItem>> before_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
