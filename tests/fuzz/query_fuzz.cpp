// Any text typed into the search, as a menu's pattern, and as a query of its own: no crash, no endless loop,
// and the book's rows stay as they were.
#include <cstdlib>

#include "db/database.h"
#include "db/queries.h"
#include "support/recipedatabase.h"

using namespace sarne;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

struct Book {
    QTemporaryDir folder;
    Database db;

    Book() {
        const QString file = folder.filePath(QStringLiteral("Sarne.drc"));
        test::writeRecipeDatabase(
            file, {QStringLiteral("INSERT INTO Suroviny VALUES (1,'Kapr'),(2,'česnek'),(3,'50% ocet')"),
                   QStringLiteral("INSERT INTO Menu VALUES ('1','a','D'),('11','b','1,')")});
        db.Open(file);
        db.Execute(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE"));  // no asking for locks a million times
    }
};

qint64 rows(Recordset found) {
    qint64 count = 0;
    for (; !found.AtEnd(); found.MoveNext()) ++count;
    return count;
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Book book;
    const QString text = QString::fromUtf8(QByteArrayView(data, static_cast<qsizetype>(size)));
    if (rows(queries::ingredientsBeginning(book.db, text)) > 3) std::abort();  // other rows than ingredients
    if (rows(queries::menuRows(book.db, QString(text).remove(u'\''))) > 2) std::abort();
    book.db.Execute(QStringLiteral("PRAGMA query_only = ON"));  // a query of its own may be a DELETE
    book.db.OpenQuery(text);
    book.db.Execute(QStringLiteral("PRAGMA query_only = OFF"));
    if (rows(book.db.OpenTable(QStringLiteral("Suroviny"))) != 3) std::abort();
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
