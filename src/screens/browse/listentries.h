#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace sarne {

class Database;

/// One record that the list shows.
struct ListEntry {
    std::int32_t id = 0;
    QString Nazev;
    /// What the entry leads to: a recipe's id, or in the help list a page's; 0 when the record names none.
    std::int16_t target = 0;
};

/// The most entries that a list holds.
inline constexpr int kMostEntries = 251;

/// The ids in \a ids, each ended by a comma ("12,40,7,"). What stands behind the last comma is no id; one
/// that is not a 16-bit number is left out.
std::vector<std::int16_t> parseIds(const QString& ids);

/// The records of \a table with the given \a ids, in their order, those that do not exist left out; all
/// records in the order of the key when \a ids is empty. Of more than kMostEntries the first ones.
std::vector<ListEntry> readEntries(Database& db, const QString& table, const QString& ids);

/// The wines that go with the recipe \a id: the \a name of the recipe as heading, then one wine a line, lines
/// joined by CR LF. The heading alone when there are none.
QString wineText(Database& db, const QString& name, std::int32_t id);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
