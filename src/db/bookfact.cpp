#include "db/bookfact.h"

#include "db/database.h"

namespace sarne {

QString bookFact(Database& book, const QString& name) {
    Recordset facts = book.OpenTable(QStringLiteral("Kniha"));
    for (; !facts.AtEnd(); facts.MoveNext())
        if (facts.field(QStringLiteral("Nazev")).toString() == name)
            return facts.field(QStringLiteral("Hodnota")).toString();
    return {};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
