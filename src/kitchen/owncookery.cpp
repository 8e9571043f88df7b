// SPDX-License-Identifier: GPL-3.0-or-later
#include "kitchen/owncookery.h"

#include <QHash>
#include <algorithm>

#include "core/texts.h"
#include "db/database.h"
#include "db/recipemarks.h"
#include "db/userfile.h"
#include "kitchen/cooked.h"
#include "kitchen/feasts.h"

namespace sarne {
namespace {

constexpr int kAllMonths = (1 << 12) - 1;

/// Finds recipes by their names.
class Places {
  public:
    explicit Places(const std::vector<OwnRecipe>& recipes) {
        for (size_t place = 0; place < recipes.size(); ++place) byName_.insert(recipes[place].name, place);
    }
    OwnRecipe* find(std::vector<OwnRecipe>& recipes, const QString& name) const {
        const auto place = byName_.constFind(name);
        return place == byName_.cend() ? nullptr : &recipes[*place];
    }

  private:
    QHash<QString, size_t> byName_;
};

std::vector<OwnRecipe> readRecipes(Database& book) {
    std::vector<OwnRecipe> all;
    Recordset facts = book.OpenTable(QStringLiteral("Fakta"));
    for (Recordset rows = book.OpenTable(QStringLiteral("Recepty")); !rows.AtEnd(); rows.MoveNext()) {
        OwnRecipe one;
        one.id = rows.field(QStringLiteral("ID")).toInt();
        one.name = rows.field(QStringLiteral("Nazev")).toString();
        one.note = rows.field(QStringLiteral("Vlastni")).toString().simplified();
        if (RecordExists(facts, one.id)) {
            one.months = facts.field(QStringLiteral("Mesice")).toInt();
            one.occasions = facts.field(QStringLiteral("Obdobi")).toString().split(u',', Qt::SkipEmptyParts);
        }
        all.push_back(std::move(one));
    }
    return all;
}

/// How near to this month a recipe is: a feast, the season of its fish, the time of year.
int nearness(const OwnRecipe& recipe, QDate today) {
    const bool inSeason = recipe.months == 0 || (recipe.months >> (today.month() - 1) & 1);
    if (!inSeason) return 0;
    const auto isFor = [&recipe](const QString& occasion) { return recipe.occasions.contains(occasion); };
    const QStringList feasts = feastsOf(today), all = occasionsOf(today);
    if (std::any_of(feasts.begin(), feasts.end(), isFor)) return 3;
    if (!isFor(all.last())) return 0;
    return recipe.isForAllYear() ? 1 : 2;
}

bool belongs(const OwnRecipe& recipe, Shelf shelf, QDate today) {
    switch (shelf) {
        case Shelf::Starred:
            return recipe.stars > 0;
        case Shelf::Cooked:
            return !recipe.cooked.empty();
        case Shelf::Noted:
            return !recipe.note.isEmpty();
        case Shelf::Opened:
            return recipe.opened.isValid();
        case Shelf::ThisMonth:
            return nearness(recipe, today) > 0;
    }
    return false;
}

/// What a shelf is sorted by, the greatest first.
qint64 weight(const OwnRecipe& recipe, Shelf shelf, QDate today) {
    switch (shelf) {
        case Shelf::Starred:
            return recipe.stars;
        case Shelf::Cooked:
            return recipe.cooked.front().toJulianDay();
        case Shelf::Opened:
            return recipe.opened.toSecsSinceEpoch();
        case Shelf::ThisMonth:
            return nearness(recipe, today) * (RecipeMarks::kMostStars + 1) + recipe.stars;
        case Shelf::Noted:
            break;
    }
    return 0;
}

}  // namespace

bool OwnRecipe::isForAllYear() const {
    return months == 0 || months == kAllMonths;
}

std::vector<OwnRecipe> readOwnRecipes(Database& book, UserFile& file) {
    std::vector<OwnRecipe> all = readRecipes(book);
    const Places places(all);
    for (const RecipeMark& mark : RecipeMarks(file).all()) {
        OwnRecipe* one = places.find(all, mark.name);
        if (!one) continue;
        one->stars = mark.stars;
        one->opened = mark.opened;
    }
    for (const CookedDay& day : allCookedDays(file))
        if (OwnRecipe* one = places.find(all, day.name)) one->cooked.push_back(day.day);
    for (OwnRecipe& one : all) std::sort(one.cooked.begin(), one.cooked.end(), std::greater<>());
    return all;
}

std::vector<OwnRecipe> onShelf(std::vector<OwnRecipe> all, Shelf shelf, QDate today) {
    std::erase_if(all, [&](const OwnRecipe& recipe) { return !belongs(recipe, shelf, today); });
    std::stable_sort(all.begin(), all.end(), [&](const OwnRecipe& a, const OwnRecipe& b) {
        return weight(a, shelf, today) > weight(b, shelf, today);
    });
    return all;
}

QString reasonThisMonth(const OwnRecipe& recipe, QDate today) {
    const int near = nearness(recipe, today);
    if (near == 0) return {};
    if (near == 1) return Texts::tr("hodí se teď");
    if (near == 2) return Texts::tr("v sezoně");
    QStringList feasts;
    for (const QString& feast : feastsOf(today))
        if (recipe.occasions.contains(feast)) feasts << feast;
    return feasts.join(QStringLiteral(", "));
}

}  // namespace sarne
