#include "db/queries.h"

#include "core/topics.h"
#include "db/database.h"

namespace sarne::queries {
namespace {

/// A query built of fixed pieces round one number.
Recordset open(Database& db, const QString& before, int number, const QString& after = {}) {
    return db.OpenQuery(before + QString::number(number) + after);
}

}  // namespace

Recordset menuRows(Database& db, const QString& pattern) {
    return db.OpenQuery(QStringLiteral("SELECT * FROM menu WHERE ID LIKE '") + pattern +
                        QStringLiteral("' ORDER BY Id"));
}

QString filmTitle(Database& db, int number) {
    for (int topic = 0; topic < kTopics; ++topic) {
        if (topicKind(topic) != TopicKind::videos) continue;
        for (Recordset films = menuRows(db, QString::number(topic) + u'?'); !films.AtEnd();
             films.MoveNext()) {
            if (films.field(QStringLiteral("Odkazy")).toString() == QString::number(number))
                return films.field(QStringLiteral("Label")).toString();
        }
    }
    return {};
}

bool clearFoundIngredients(Database& db) {
    return db.Execute(QStringLiteral("DELETE * FROM Menu WHERE ID LIKE '0*'"));
}

Recordset ingredientsBeginning(Database& db, const QString& text) {
    QString pattern = text;
    pattern.replace(u'\'', QStringLiteral("''"));  // what is typed stays within the query's quotes
    return db.OpenQuery(QStringLiteral("SELECT * FROM Suroviny WHERE Polozka LIKE '") + pattern +
                        QStringLiteral("*'"));
}

Recordset recipesWithIngredient(Database& db, const QString& ingredient) {
    return db.OpenQuery(QStringLiteral("SELECT DISTINCT Recepty.Nazev, Recepty.ID, SpojSur.ID_Polozky "
                                       "FROM Recepty INNER JOIN SpojSur ON Recepty.ID = SpojSur.ID_Receptu "
                                       "WHERE (((SpojSur.ID_Polozky) = ") +
                        ingredient + QStringLiteral(")) ORDER BY Recepty.Nazev; "));
}

Recordset recipeIngredients(Database& db, int recipe) {
    return open(db, QStringLiteral("SELECT * FROM SpojSur WHERE ID_Receptu = "), recipe);
}

Recordset recipeSteps(Database& db, int recipe) {
    return open(db, QStringLiteral("SELECT * FROM Kroky WHERE ID_Receptu = "), recipe,
                QStringLiteral(" ORDER BY ID"));
}

Recordset stepNeeds(Database& db, int recipe) {
    return open(db, QStringLiteral("SELECT ID_Kroku, Radek, Podil FROM KrokySur, Kroky WHERE ID_Receptu = "),
                recipe, QStringLiteral(" AND ID = ID_Kroku ORDER BY ID_Kroku, Radek"));
}

Recordset recipeTools(Database& db, int recipe) {
    return open(db, QStringLiteral("SELECT Polozka FROM Pomucky, SpojPomucky WHERE ID_Receptu = "), recipe,
                QStringLiteral(" AND ID = ID_Polozky ORDER BY Polozka"));
}

Recordset recipeLinks(Database& db, int recipe) {
    return open(db, QStringLiteral("SELECT ID_Polozky, Polozka FROM Odkazy, SpojOdkazy WHERE ID_Receptu = "),
                recipe, QStringLiteral(" AND ID = ID_Polozky ORDER BY Polozka"));
}

Recordset printedLinks(Database& db, int recipe) {
    return open(db,
                QStringLiteral("SELECT Polozka, ID, Text FROM SpojOdkazy, Odkazy "
                               "WHERE Odkazy.ID = SpojOdkazy.ID_Polozky AND SpojOdkazy.ID_Receptu = "),
                recipe, QStringLiteral(" ORDER BY Polozka"));
}

Recordset recipeWines(Database& db, int recipe) {
    return open(db, QStringLiteral("SELECT Polozka FROM Vino,SpojVino WHERE ID_Receptu = "), recipe,
                QStringLiteral(" AND ID = ID_Polozky "));
}

Recordset linkText(Database& db, int link) {
    return open(db, QStringLiteral("SELECT Text FROM Odkazy WHERE ID = "), link);
}

Recordset keywords(Database& db) {
    return db.OpenQuery(QStringLiteral("SELECT id, nazvy, Text FROM IndexHesla ORDER BY nazvy"));
}

Recordset tableRows(Database& db, int table) {
    return open(db, QStringLiteral("SELECT * FROM RadkyTabulek WHERE ID_Tabulky = "), table,
                QStringLiteral(" ORDER BY ID"));
}

Recordset pages(Database& db) {
    return db.OpenQuery(QStringLiteral("SELECT ID, Obrazovka FROM Stranky ORDER BY ID"));
}

Recordset galleryPictures(Database& db, int topic) {
    return open(db, QStringLiteral("SELECT * FROM Sponzor WHERE Tema = "), topic,
                QStringLiteral(" ORDER BY ID"));
}

Recordset galleryAreas(Database& db, int picture) {
    return open(db, QStringLiteral("SELECT * FROM PlochySponzoru WHERE ID_Sponzoru = "), picture,
                QStringLiteral(" ORDER BY ID"));
}

Recordset screenPictures(Database& pictures) {
    return pictures.OpenQuery(QStringLiteral("SELECT * FROM TabObr"));
}

}  // namespace sarne::queries

// SPDX-License-Identifier: GPL-3.0-or-later
