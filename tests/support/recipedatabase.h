#pragma once

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "db/schema.h"

namespace sarne::test {

/// Writes a recipe database with our schema and the given statements, in one transaction. The collation is a
/// plain stand-in: it only has to exist while rows are stored in order of their keys. Gives \a file back.
inline QString writeRecipeDatabase(const QString& file, const QStringList& statements) {
    SQLite::Database db(file.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    db.exec("PRAGMA synchronous = OFF");  // a test's book need not outlive the machine
    sqlite3_create_collation(db.getHandle(), kCzechCollation, SQLITE_UTF8, nullptr,
                             [](void*, int leftSize, const void* left, int rightSize, const void* right) {
                                 return std::string_view(static_cast<const char*>(left), size_t(leftSize))
                                     .compare({static_cast<const char*>(right), size_t(rightSize)});
                             });
    SQLite::Transaction transaction(db);
    for (const QString& statement : recipeSchema() + statements) db.exec(statement.toStdString());
    transaction.commit();
    return file;
}

/// \a text as a literal of SQL.
inline QString sqlText(QString text) {
    return u'\'' + text.replace(u'\'', QStringLiteral("''")) + u'\'';
}

/// \a body, with escapes and link markers as the renderer reads them, as a rich text of the cookbook.
inline QString rtf(const QString& body) {
    return QStringLiteral(
               "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset238 Times New Roman;}"
               "{\\f1\\fswiss\\fcharset238 Arial;}}{\\colortbl\\red0\\green0\\blue0;}\r\n"
               "\\deftab720\\pard\\plain\\f0\\fs24 ") +
           body + u'}';
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
