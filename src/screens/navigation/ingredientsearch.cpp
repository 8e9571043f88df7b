#include "screens/navigation/ingredientsearch.h"

#include "core/czech.h"
#include "core/texts.h"
#include "core/value.h"
#include "db/database.h"
#include "db/queries.h"
#include "screens/navigation/menulevel.h"

namespace sarne {
namespace {

QString tooMany() {
    return Texts::tr("Příliš mnoho nalezených surovin");
}

void append(Recordset& menu, const QString& id, const QString& label, const QString& target) {
    menu.AddNew();
    menu.setField(QStringLiteral("Id"), id);
    menu.setField(QStringLiteral("Label"), label);
    menu.setField(QStringLiteral("Odkazy"), target);
    menu.Update();
}

void appendFound(Recordset& menu, Recordset& found) {
    int k = 0;
    for (found.MoveFirst(); !found.AtEnd(); found.MoveNext()) {
        append(menu, u'0' + QStringLiteral("%1").arg(++k, 2, 10, QLatin1Char('0')),
               found.field(QStringLiteral("polozka")).toString(),
               found.field(QStringLiteral("id")).toString());
    }
}

void writeResults(Database& db, const QString& text) {
    queries::clearFoundIngredients(db);
    Recordset menu = db.OpenTable(QStringLiteral("Menu"));
    Recordset found = queries::ingredientsBeginning(db, text);
    found.MoveLast();
    const qint64 count = found.RecordCount();
    const QString message = QStringLiteral("00"), nowhere = QStringLiteral("F");
    if (count > kMaxFoundIngredients)
        append(menu, message, tooMany(), nowhere);
    else if (count == 0)
        append(menu, message, Texts::tr("Nenalezena žádná surovina"), nowhere);
    else
        appendFound(menu, found);
}

}  // namespace

bool searchIngredients(Database& db, const QString& text) {
    const QString typed = text.trimmed();
    if (typed.isEmpty()) return false;
    db.transaction([&] {
        writeResults(db, typed);
        return true;
    });
    return true;
}

QString searchHint(const MenuLevel& level) {
    if (!level.isSearchResult() || level.items.size() != 1 || level.items[0].isSelectable()) return {};
    if (level.items[0].label == tooMany()) return Texts::tr("Připište další písmena názvu.");
    return Texts::tr("Pište s háčky a čárkami; stačí začátek názvu.");
}

std::vector<std::int16_t> recipesWithIngredient(Database& db, const QString& ingredient) {
    std::vector<std::int16_t> ids;
    Recordset recipes = queries::recipesWithIngredient(db, ingredient);
    for (; !recipes.AtEnd(); recipes.MoveNext()) {
        if (const auto id = toRecordId(recipes.field(QStringLiteral("ID")).toLongLong())) ids.push_back(*id);
    }
    return ids;
}

QString recipeCountText(int recipes) {
    if (recipes == 0) return Texts::tr("žádný recept");
    return QString::number(recipes) + u' ' + recipeNoun().behind(recipes);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
