#include "screens/navigation/menulevel.h"

#include "db/queries.h"

namespace sarne {
namespace {

/// A code that is a number is written in its plain form; any other stays as it is.
QString plainForm(const QString& code) {
    bool isNumber = false;
    const qlonglong number = code.toLongLong(&isNumber);
    return isNumber ? QString::number(number) : code;
}

Recordset rowsOf(Database& db, const QString& code) {
    const QString plain = plainForm(code);
    Recordset children = queries::menuRows(db, plain + u'?');
    if (!children.AtEnd()) return children;
    if (code.toDouble() == 0) return queries::menuRows(db, QStringLiteral("0*"));
    return queries::menuRows(db, plain + u'*');
}

}  // namespace

MenuLevel MenuLevel::build(Database& db, const QString& code) {
    MenuLevel level;
    level.code = code.trimmed();
    for (Recordset rows = rowsOf(db, level.code); !rows.AtEnd(); rows.MoveNext()) {
        const QString label = rows.field(QStringLiteral("Label")).toString();
        if (label.startsWith(u'@'))
            level.heading = label.mid(1);
        else
            level.items.push_back({label, rows.field(QStringLiteral("Odkazy")).toString().trimmed()});
    }
    return level;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
