#include <gtest/gtest.h>

#include <QRegularExpression>

#include "db/database.h"
#include "db/queries.h"
#include "db/schema.h"
#include "support/kept.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

/// Two rows for every table of the book: numbers are 1 and 2, texts their column's name with the number.
QStringList twoRowsEach() {
    static const QRegularExpression table(u"^CREATE TABLE (\\w+) \\((.*)\\)$"_s);
    QStringList rows;
    for (const QString& statement : recipeSchema()) {
        const auto found = table.match(statement);
        if (!found.hasMatch()) continue;
        for (int row = 1; row <= 2; ++row) {
            QStringList values;
            for (const QString& column : found.captured(2).split(u',')) {
                const QString number = QString::number(row), name = column.trimmed().section(u' ', 0, 0);
                values << (column.contains(u" TEXT"_s) ? u'\'' + name + number + u'\'' : number);
            }
            rows << u"INSERT INTO %1 VALUES (%2)"_s.arg(found.captured(1), values.join(u','));
        }
    }
    return rows;
}

TEST(Queries, FindWhatTheyFound) {
    QTemporaryDir folder;
    Database db;
    ASSERT_TRUE(db.Open(test::writeRecipeDatabase(folder.filePath(u"t.drc"_s), twoRowsEach())));
    QSet<QString> known;
    static const QRegularExpression word(u"\\w+"_s);
    for (auto all = word.globalMatch(recipeSchema().join(u' ')); all.hasNext();)
        known << all.next().captured().toLower();
    QStringList names(known.begin(), known.end()), lines;
    names.sort();
    const auto add = [&](const char* query, Recordset rows) {
        for (lines << QLatin1String(query); !rows.AtEnd(); rows.MoveNext()) {
            QStringList fields;
            for (const QString& name : names)
                if (rows.field(name).isValid()) fields << name + u'=' + rows.field(name).toString();
            lines << u"    "_s + fields.join(u", "_s);
        }
    };
    add("menu", queries::menuRows(db, u"I*"_s));
    add("ingredients beginning", queries::ingredientsBeginning(db, u"polo"_s));
    add("recipes with", queries::recipesWithIngredient(db, u"2"_s));
    const std::pair<const char*, Recordset (*)(Database&, int)> byNumber[] = {
        {"ingredients", queries::recipeIngredients},
        {"steps", queries::recipeSteps},
        {"needs", queries::stepNeeds},
        {"tools", queries::recipeTools},
        {"links", queries::recipeLinks},
        {"printed links", queries::printedLinks},
        {"wines", queries::recipeWines},
        {"link", queries::linkText},
        {"table", queries::tableRows},
        {"gallery", queries::galleryPictures},
        {"areas", queries::galleryAreas}};
    for (const auto& [name, query] : byNumber) add(name, query(db, 2));
    add("keywords", queries::keywords(db));
    add("pages", queries::pages(db));
    test::expectText(u"dotazy"_s, lines.join(u'\n'));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
