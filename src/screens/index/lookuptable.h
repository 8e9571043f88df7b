#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace sarne {

class Database;

/// One row of a table; \a keyword is the index keyword that it opens, 0 when it opens none.
struct LookupRow {
    QStringList cells;
    int keyword = 0;
};

/// A table in which a cook looks something up. Rows have as many cells as there are columns.
struct LookupTable {
    enum class Rows {
        Wrapped,  ///< a row is as high as its longest cell needs
        Names,    ///< the same, and the first column breaks no line
    };

    QString title;
    QString note;  ///< a sentence that belongs to the whole table; may be empty
    QStringList columns;
    std::vector<LookupRow> rows;
    Rows layout = Rows::Wrapped;
    bool hasLetters = false;  ///< the rows are in alphabetical order, to be jumped to by their first letters

    bool isEmpty() const { return columns.isEmpty(); }
};

/// The menu item that opens the alphabetical index of keywords; the items behind it open the table with
/// their number.
inline constexpr int kKeywordIndexItem = 2;

/// The table that menu item \a item opens; an empty one when there is none.
LookupTable readLookupTable(Database& db, int item);

/// The letter under which \a name stands in a Czech index: "Ch" is one, accents that do not change the order
/// of words do not count.
QString indexLetter(const QString& name);

/// The table as a rich text for paper: a paragraph for each row, its first cell bold.
QString tableAsText(const LookupTable& table);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
