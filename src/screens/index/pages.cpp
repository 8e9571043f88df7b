#include "screens/index/pages.h"

#include "core/value.h"
#include "db/database.h"
#include "db/queries.h"

namespace sarne {

std::optional<Page> readPage(Database& db, const QString& id) {
    const auto key = toRecordId(id);
    Recordset pages = db.OpenTable(QStringLiteral("Stranky"));
    if (!key || !RecordExists(pages, *key)) return {};
    return Page{*key, pages.field(QStringLiteral("Nazev")).toString(),
                pages.field(QStringLiteral("Text")).toString()};
}

QString helpPageFor(Database& db, const QString& formName) {
    if (formName.isEmpty()) return {};
    Recordset pages = queries::pages(db);
    for (; !pages.AtEnd(); pages.MoveNext()) {
        // One page may be the help of several forms.
        const QStringList forms = pages.field(QStringLiteral("Obrazovka")).toString().split(u',');
        for (const QString& form : forms) {
            if (form.trimmed() == formName) return pages.field(QStringLiteral("ID")).toString();
        }
    }
    return {};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
