#include "db/companions.h"

#include "db/fieldnames.h"
#include "db/queries.h"

namespace sarne {
namespace {

const QString kItem = QStringLiteral("Polozka");

}  // namespace

QStringList recipeTools(Database& db, int recipe) {
    Recordset rows = queries::recipeTools(db, recipe);
    QStringList tools;
    for (; !rows.AtEnd(); rows.MoveNext()) tools << rows.field(kItem).toString();
    return tools;
}

std::vector<RecipeLink> recipeLinks(Database& db, int recipe) {
    Recordset rows = queries::recipeLinks(db, recipe);
    std::vector<RecipeLink> links;
    for (; !rows.AtEnd(); rows.MoveNext())
        links.push_back({rows.field(QStringLiteral("ID_Polozky")).toInt(), rows.field(kItem).toString()});
    return links;
}

std::optional<QString> linkText(Database& db, int link) {
    const Recordset row = queries::linkText(db, link);
    if (row.AtEnd()) return std::nullopt;
    return row.field(fields::kText).toString();
}

std::vector<LinkDocument> linkDocuments(Database& db, int recipe) {
    std::vector<LinkDocument> documents;
    for (Recordset rows = queries::printedLinks(db, recipe); !rows.AtEnd(); rows.MoveNext())
        documents.push_back({rows.field(kItem).toString(), rows.field(fields::kText).toString()});
    return documents;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
