#include "makedatabase.h"

#include "loadcookbook.h"
#include "stamps.h"
#include "writedatabase.h"

namespace sarne::disc {

QString databaseOrigin(const ContentFolder& folder) {
    QStringList texts = folder.allFiles();
    texts.removeIf([](const QString& name) { return !name.endsWith(QLatin1String(".txt")); });
    return originOf(texts, stamp::database());
}

void makeDatabase(Workshop& shop, const ContentFolder& folder) {
    const QString file = shop.program + QStringLiteral("/Sarne.drc");
    const QString origin = databaseOrigin(folder);
    shop.make(file, origin, [&] {
        proofread(folder, shop.book, shop.problems);
        if (!shop.problems.hasErrors()) writeRecipeDatabase(shop.book, file, shop.problems, origin);
        return !shop.problems.hasErrors();
    });
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
