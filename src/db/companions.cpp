#include "db/companions.h"

#include "db/database.h"

namespace sarne {
namespace {

const QString kItem = QStringLiteral("Polozka");
const QString kText = QStringLiteral("Text");

}  // namespace

QStringList recipeTools(Database& db, int recipe) {
    Recordset rows =
        db.OpenQuery(QStringLiteral("SELECT Polozka ") + QStringLiteral("FROM Pomucky, SpojPomucky ") +
                     QStringLiteral("WHERE ID_Receptu = ") + QString::number(recipe) +
                     QStringLiteral(" AND ID = ID_Polozky ORDER BY Polozka"));
    QStringList tools;
    for (; !rows.AtEnd(); rows.MoveNext()) tools << rows.field(kItem).toString();
    return tools;
}

std::vector<RecipeLink> recipeLinks(Database& db, int recipe) {
    Recordset rows =
        db.OpenQuery(QStringLiteral("SELECT ID_Polozky, Polozka ") +
                     QStringLiteral("FROM Odkazy, SpojOdkazy ") + QStringLiteral("WHERE ID_Receptu = ") +
                     QString::number(recipe) + QStringLiteral(" AND ID = ID_Polozky ORDER BY Polozka"));
    std::vector<RecipeLink> links;
    for (; !rows.AtEnd(); rows.MoveNext())
        links.push_back({rows.field(QStringLiteral("ID_Polozky")).toInt(), rows.field(kItem).toString()});
    return links;
}

std::optional<QString> linkText(Database& db, int link) {
    const Recordset row =
        db.OpenQuery(QStringLiteral("SELECT Text FROM Odkazy WHERE ID = ") + QString::number(link));
    if (row.AtEnd()) return std::nullopt;
    return row.field(kText).toString();
}

std::optional<LinkDocument> linkDocument(Database& db, int link) {
    const Recordset row =
        db.OpenQuery(QStringLiteral("SELECT Polozka, Text FROM Odkazy WHERE ID = ") + QString::number(link));
    if (row.AtEnd()) return std::nullopt;
    return LinkDocument{row.field(kItem).toString(), row.field(kText).toString()};
}

}  // namespace sarne
