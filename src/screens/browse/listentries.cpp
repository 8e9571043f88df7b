#include "screens/browse/listentries.h"

#include "core/texts.h"
#include "core/value.h"
#include "db/database.h"
#include "db/queries.h"

namespace sarne {
namespace {

/// What the record \a records stands on leads to: itself in the table of recipes, otherwise what it says.
std::int16_t targetOf(const Recordset& records, bool recipes) {
    const QVariant number = records.field(recipes ? QStringLiteral("ID") : QStringLiteral("Recept"));
    return toRecordId(number.toLongLong()).value_or(0);
}

ListEntry entryOf(const Recordset& records, bool recipes) {
    return {records.field(QStringLiteral("id")).toInt(), records.field(QStringLiteral("Nazev")).toString(),
            targetOf(records, recipes)};
}

bool isFull(const std::vector<ListEntry>& entries) {
    return entries.size() >= kMostEntries;
}

}  // namespace

std::vector<std::int16_t> parseIds(const QString& ids) {
    std::vector<std::int16_t> parsed;
    for (qsizetype at = 0;;) {
        const qsizetype comma = ids.indexOf(u',', at);
        if (comma < 0) return parsed;
        if (const auto id = toRecordId(QStringView(ids).sliced(at, comma - at))) parsed.push_back(*id);
        at = comma + 1;
    }
}

std::vector<ListEntry> readEntries(Database& db, const QString& table, const QString& ids) {
    const bool recipes = table.compare(u"recepty", Qt::CaseInsensitive) == 0;
    std::vector<ListEntry> entries;
    Recordset records = db.OpenTable(table);
    records.setIndex(QStringLiteral("PrimaryKey"));
    if (ids.isEmpty()) {
        for (records.MoveFirst(); !records.AtEnd() && !isFull(entries); records.MoveNext())
            entries.push_back(entryOf(records, recipes));
        return entries;
    }
    for (const std::int16_t id : parseIds(ids)) {
        if (isFull(entries)) break;
        records.Seek(QStringLiteral("="), id);
        if (!records.NoMatch()) entries.push_back(entryOf(records, recipes));
    }
    return entries;
}

QString wineText(Database& db, const QString& name, std::int32_t id) {
    QString text = name + Texts::tr(" Víno ");
    Recordset wines = queries::recipeWines(db, id);
    for (; !wines.AtEnd(); wines.MoveNext())
        text += QStringLiteral("\r\n") + wines.field(QStringLiteral("polozka")).toString();
    return text;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
