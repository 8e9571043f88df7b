#include "screens/navigation/ingredientsearch.h"

#include "db/database.h"
#include "db/queries.h"

namespace sarne {
namespace {

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
        append(menu, message, QStringLiteral("Příliš mnoho nalezených surovin"), nowhere);
    else if (count == 0)
        append(menu, message, QStringLiteral("Nenalezena žádná surovina"), nowhere);
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

}  // namespace sarne
