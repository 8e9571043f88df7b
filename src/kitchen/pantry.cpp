#include "kitchen/pantry.h"

#include <QCollator>
#include <QHash>
#include <QSet>
#include <algorithm>

#include "core/czech.h"
#include "core/texts.h"
#include "db/database.h"
#include "db/queries.h"

namespace sarne {
namespace {

enum Mark : std::uint8_t { kUnknown, kHave, kWithout };

const char* const kAllergens[] = {QT_TRANSLATE_NOOP("Texts", "lepek"),
                                  QT_TRANSLATE_NOOP("Texts", "korýši"),
                                  QT_TRANSLATE_NOOP("Texts", "vejce"),
                                  QT_TRANSLATE_NOOP("Texts", "ryby"),
                                  QT_TRANSLATE_NOOP("Texts", "arašídy"),
                                  QT_TRANSLATE_NOOP("Texts", "sója"),
                                  QT_TRANSLATE_NOOP("Texts", "mléko"),
                                  QT_TRANSLATE_NOOP("Texts", "skořápkové plody"),
                                  QT_TRANSLATE_NOOP("Texts", "celer"),
                                  QT_TRANSLATE_NOOP("Texts", "hořčice"),
                                  QT_TRANSLATE_NOOP("Texts", "sezam"),
                                  QT_TRANSLATE_NOOP("Texts", "oxid siřičitý a siřičitany"),
                                  QT_TRANSLATE_NOOP("Texts", "vlčí bob (lupina)"),
                                  QT_TRANSLATE_NOOP("Texts", "měkkýši")};

bool byRank(const PantryMatch& a, const PantryMatch& b) {
    if (a.missing != b.missing) return a.missing < b.missing;
    if (a.used != b.used) return a.used > b.used;
    return a.recipe < b.recipe;
}

bool suits(const PantryRecipe& recipe, const PantryQuery& query) {
    if (recipe.allergens & query.withoutAllergens) return false;
    if (query.mostMinutes > 0 && (recipe.minutes == 0 || recipe.minutes > query.mostMinutes)) return false;
    return query.month == 0 || recipe.months == 0 || (recipe.months >> (query.month - 1) & 1);
}

QCollator czech() {
    QCollator collator{QLocale(QLocale::Czech)};
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

/// The ingredients that everyone has.
QSet<int> readStaples(Database& db) {
    QSet<int> staples;
    for (Recordset rows = db.OpenTable(QStringLiteral("Zbozi")); !rows.AtEnd(); rows.MoveNext())
        if (rows.field(QStringLiteral("Doma")).toInt() != 0)
            staples << rows.field(QStringLiteral("ID")).toInt();
    return staples;
}

std::vector<int> ingredientsOf(Database& db, int recipe, const QSet<int>& staples) {
    std::vector<int> all;
    for (Recordset rows = queries::recipeIngredients(db, recipe); !rows.AtEnd(); rows.MoveNext()) {
        const int id = rows.field(QStringLiteral("ID_Polozky")).toInt();
        if (!staples.contains(id) && std::find(all.begin(), all.end(), id) == all.end()) all.push_back(id);
    }
    return all;
}

}  // namespace

PantryIndex::PantryIndex(std::vector<PantryRecipe> recipes) : recipes_(std::move(recipes)) {
    const QCollator collator = czech();
    std::stable_sort(recipes_.begin(), recipes_.end(), [&](const PantryRecipe& a, const PantryRecipe& b) {
        return collator.compare(a.name, b.name) < 0;
    });
    for (const PantryRecipe& recipe : recipes_) {
        starts_.push_back(ingredients_.size());
        for (const int id : recipe.ingredients) {
            ingredients_.push_back(std::max(0, id));
            highest_ = std::max(highest_, id);
        }
    }
    starts_.push_back(ingredients_.size());
}

std::vector<PantryMatch> PantryIndex::find(const PantryQuery& query, size_t most) const {
    std::vector<std::uint8_t> marks(static_cast<size_t>(highest_) + 1, kUnknown);
    const auto mark = [&](const std::vector<int>& ids, Mark as) {
        for (const int id : ids)
            if (id >= 0 && id <= highest_) marks[static_cast<size_t>(id)] = as;
    };
    mark(query.have, kHave);
    mark(query.without, kWithout);
    std::vector<PantryMatch> found;
    for (size_t recipe = 0; recipe < recipes_.size(); ++recipe) {
        int used = 0, forbidden = 0;
        for (size_t at = starts_[recipe]; at < starts_[recipe + 1]; ++at) {
            const std::uint8_t is = marks[static_cast<size_t>(ingredients_[at])];
            used += is == kHave;
            forbidden += is == kWithout;
        }
        if (forbidden > 0 || (used == 0 && !query.have.empty()) || !suits(recipes_[recipe], query)) continue;
        found.push_back({recipe, static_cast<int>(starts_[recipe + 1] - starts_[recipe]) - used, used});
    }
    const auto end = found.begin() + static_cast<std::ptrdiff_t>(std::min(most, found.size()));
    std::partial_sort(found.begin(), end, found.end(), byRank);
    found.erase(end, found.end());
    return found;
}

int PantryIndex::tellingAllergens() const {
    int any = 0, all = ~0;
    for (const PantryRecipe& recipe : recipes_) {
        any |= recipe.allergens;
        all &= recipe.allergens;
    }
    return any & ~all;
}

std::vector<int> PantryIndex::missing(size_t place, const PantryQuery& query) const {
    std::vector<int> all;
    for (const int id : recipes_[place].ingredients)
        if (std::find(query.have.begin(), query.have.end(), id) == query.have.end()) all.push_back(id);
    return all;
}

std::vector<PantryRecipe> readPantryRecipes(Database& db) {
    std::vector<PantryRecipe> recipes;
    Recordset facts = db.OpenTable(QStringLiteral("Fakta"));
    if (facts.AtEnd()) return recipes;
    const QSet<int> staples = readStaples(db);
    for (Recordset rows = db.OpenTable(QStringLiteral("Recepty")); !rows.AtEnd(); rows.MoveNext()) {
        const int id = rows.field(QStringLiteral("ID")).toInt();
        if (!RecordExists(facts, id)) continue;
        recipes.push_back({id, rows.field(QStringLiteral("Nazev")).toString(), ingredientsOf(db, id, staples),
                           facts.field(QStringLiteral("Alergeny")).toInt(),
                           facts.field(QStringLiteral("Mesice")).toInt(),
                           facts.field(QStringLiteral("Minut")).toInt()});
    }
    return recipes;
}

std::vector<PantryIngredient> readPantryIngredients(Database& db) {
    std::vector<PantryIngredient> all;
    const QSet<int> staples = readStaples(db);
    for (Recordset rows = db.OpenTable(QStringLiteral("Suroviny")); !rows.AtEnd(); rows.MoveNext()) {
        const int id = rows.field(QStringLiteral("ID")).toInt();
        if (!staples.contains(id)) all.push_back({id, rows.field(QStringLiteral("Polozka")).toString()});
    }
    const QCollator collator = czech();
    std::stable_sort(all.begin(), all.end(), [&](const PantryIngredient& a, const PantryIngredient& b) {
        return collator.compare(a.name, b.name) < 0;
    });
    return all;
}

QString allergenName(int number) {
    constexpr int kCount = static_cast<int>(std::size(kAllergens));
    return number >= 1 && number <= kCount ? Texts::tr(kAllergens[number - 1]) : QString();
}

std::vector<int> namesWithWord(const std::vector<PantryIngredient>& all, const QString& typed) {
    const QString begins = u' ' + folded(typed).simplified();
    std::vector<int> found;
    for (size_t i = 0; i < all.size(); ++i)
        if (begins.size() == 1 || foldedWords(all[i].name).contains(begins))
            found.push_back(static_cast<int>(i));
    // "kapr" is to be carp, not the head of one.
    const auto surely = [&](int place) {
        const QString words = foldedWords(all[static_cast<size_t>(place)].name);
        return words == begins + u' ' ? 0 : words.startsWith(begins) ? 1 : 2;
    };
    std::stable_sort(found.begin(), found.end(), [&](int a, int b) { return surely(a) < surely(b); });
    return found;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
