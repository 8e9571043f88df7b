#include "kitchen/shoppinglist.h"

#include <QCollator>
#include <algorithm>

#include "core/czech.h"
#include "core/texts.h"
#include "kitchen/units.h"

namespace sarne {
namespace {

constexpr size_t kMostUndone = 50;

const char* const kNames[kDepartments] = {
    QT_TRANSLATE_NOOP("Texts", "Ryby"),           QT_TRANSLATE_NOOP("Texts", "Zelenina a ovoce"),
    QT_TRANSLATE_NOOP("Texts", "Mléčné a vejce"), QT_TRANSLATE_NOOP("Texts", "Suché a pečivo"),
    QT_TRANSLATE_NOOP("Texts", "Koření"),         QT_TRANSLATE_NOOP("Texts", "Nápoje"),
    QT_TRANSLATE_NOOP("Texts", "Ostatní")};

bool isOf(const ShoppingPart& part, int recipe) {
    return part.recipe == recipe;
}

}  // namespace

QString departmentName(Department department) {
    return Texts::tr(kNames[static_cast<int>(department)]);
}

bool ShoppingItem::isOwn() const {
    return std::all_of(parts.begin(), parts.end(), [](const ShoppingPart& part) { return isOf(part, 0); });
}

QString ShoppingItem::amounts(const QLocale& locale) const {
    std::vector<BaseAmount> sums;
    for (const ShoppingPart& part : parts) {
        const BaseAmount one = inBaseUnit(part.amount, part.unit);
        if (one.amount <= 0) continue;
        const auto same = std::find_if(sums.begin(), sums.end(),
                                       [&one](const BaseAmount& sum) { return sum.unit == one.unit; });
        same == sums.end() ? sums.push_back(one) : void(same->amount += one.amount);
    }
    QStringList texts;
    for (const BaseAmount& sum : sums) texts << boughtAmountText(sum.amount, sum.unit, locale);
    return texts.join(QStringLiteral(" + "));
}

QStringList ShoppingItem::recipes() const {
    QStringList names;
    for (const ShoppingPart& part : parts)
        if (part.recipe != 0 && !names.contains(part.recipeName)) names << part.recipeName;
    return names;
}

ShoppingList::ShoppingList(std::vector<ShoppingItem> items) : items_(std::move(items)) {
    sort();
}

std::vector<ShoppingRecipe> ShoppingList::recipes() const {
    std::vector<ShoppingRecipe> all;
    for (const ShoppingItem& item : items_) {
        for (const ShoppingPart& part : item.parts) {
            const ShoppingRecipe one{part.recipe, part.recipeName, part.portions};
            if (part.recipe != 0 && std::find(all.begin(), all.end(), one) == all.end()) all.push_back(one);
        }
    }
    return all;
}

void ShoppingList::keep() {
    before_.push_back(items_);
    if (before_.size() > kMostUndone) before_.erase(before_.begin());
}

void ShoppingList::undo() {
    if (before_.empty()) return;
    items_ = std::move(before_.back());
    before_.pop_back();
}

ShoppingItem* ShoppingList::find(const QString& name) {
    const QString wanted = folded(name);
    const auto found = std::find_if(items_.begin(), items_.end(), [&wanted](const ShoppingItem& item) {
        return folded(item.name) == wanted;
    });
    return found == items_.end() ? nullptr : &*found;
}

/// What is bought already was bought for the others: more of it has to be bought again.
void ShoppingList::merge(const ShoppingItem& need) {
    ShoppingItem* known = find(need.name);
    if (!known) return items_.push_back(need);
    known->parts.insert(known->parts.end(), need.parts.begin(), need.parts.end());
    known->bought = false;
    if (known->alternative.isEmpty()) known->alternative = need.alternative;
    if (known->department == Department::Other) known->department = need.department;
}

void ShoppingList::dropRecipe(int recipe) {
    for (ShoppingItem& item : items_)
        std::erase_if(item.parts, [recipe](const ShoppingPart& part) { return isOf(part, recipe); });
    std::erase_if(items_, [](const ShoppingItem& item) { return item.parts.empty(); });
}

void ShoppingList::addRecipe(const std::vector<ShoppingItem>& needs) {
    if (needs.empty() || needs.front().parts.empty()) return;
    keep();
    dropRecipe(needs.front().parts.front().recipe);
    for (const ShoppingItem& need : needs) merge(need);
    sort();
}

void ShoppingList::removeRecipe(int recipe) {
    keep();
    dropRecipe(recipe);
}

void ShoppingList::addOwn(const QString& text) {
    const QString name = text.simplified();
    if (name.isEmpty()) return;
    keep();
    merge({name, Department::Other, false, false, {}, {ShoppingPart{}}});
    sort();
}

void ShoppingList::setBought(int index, bool bought) {
    if (!has(index)) return;
    keep();
    items_[static_cast<size_t>(index)].bought = bought;
}

void ShoppingList::setAmount(int index, double amount) {
    if (!has(index) || amount <= 0) return;
    std::vector<ShoppingPart>& parts = items_[static_cast<size_t>(index)].parts;
    const auto numbered = [](const ShoppingPart& part) { return part.amount > 0; };
    const auto first = std::find_if(parts.begin(), parts.end(), numbered);
    if (first == parts.end()) return;
    const QString unit = inBaseUnit(first->amount, first->unit).unit;
    double sum = 0;
    for (const ShoppingPart& part : parts)
        if (const BaseAmount base = inBaseUnit(part.amount, part.unit); base.unit == unit) sum += base.amount;
    keep();
    for (ShoppingPart& part : items_[static_cast<size_t>(index)].parts)
        if (inBaseUnit(part.amount, part.unit).unit == unit) part.amount *= amount / sum;
}

void ShoppingList::setAtHome(int index, bool atHome) {
    if (!has(index)) return;
    keep();
    items_[static_cast<size_t>(index)].atHome = atHome;
    sort();
}

void ShoppingList::remove(int index) {
    if (!has(index)) return;
    keep();
    items_.erase(items_.begin() + index);
}

void ShoppingList::removeBought() {
    keep();
    std::erase_if(items_, [](const ShoppingItem& item) { return item.bought; });
}

void ShoppingList::clear() {
    keep();
    items_.clear();
}

void ShoppingList::sort() {
    QCollator collator(QLocale(QLocale::Czech));
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(items_.begin(), items_.end(), [&](const ShoppingItem& a, const ShoppingItem& b) {
        if (a.atHome != b.atHome) return b.atHome;
        if (!a.atHome && a.department != b.department) return a.department < b.department;
        return collator.compare(a.name, b.name) < 0;
    });
}

QString ShoppingList::text(const QLocale& locale) const {
    QString text;
    int department = -1;
    for (const ShoppingItem& item : items_) {
        if (item.bought || item.atHome) continue;
        if (static_cast<int>(item.department) != department) {
            department = static_cast<int>(item.department);
            if (!text.isEmpty()) text += u'\n';
            text += departmentName(item.department).toUpper() + u'\n';
        }
        const QString amounts = item.amounts(locale);
        text += QStringLiteral("☐ ") + item.name;
        if (!amounts.isEmpty()) text += QStringLiteral(" – ") + amounts;
        if (!item.alternative.isEmpty()) text += Texts::tr(" (nebo %1)").arg(item.alternative);
        text += u'\n';
    }
    return text;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
