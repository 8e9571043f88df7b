#include "db/ingredients.h"

#include <gtest/gtest.h>

#include "db/companions.h"
#include "db/database.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

class IngredientsTest : public testing::Test {
  protected:
    /// The database holds \a rows as the ingredients of recipe 5, each the columns behind the recipe's id.
    void store(const QStringList& rows, const QStringList& more = {}) {
        QStringList all{
            QStringLiteral("INSERT INTO Suroviny (ID, Polozka) VALUES (1,'kapr'),(2,'máslo'),(3,' olej ')"),
            QStringLiteral("INSERT INTO Upresneni (ID, Polozka) VALUES (1,'filety'),(2,'čerstvé')"),
            QStringLiteral("INSERT INTO Jednotky (ID, Polozka) VALUES (1,'g'),(2,'  lžíce '),(3,'')")};
        for (const QString& row : rows) all << QStringLiteral("INSERT INTO SpojSur VALUES (5,%1)").arg(row);
        test::writeRecipeDatabase(folder.filePath(QStringLiteral("t.drc")), all + more);
        ASSERT_TRUE(db.Open(folder.filePath(QStringLiteral("t.drc"))));
    }
    QStringList lines(UnitSystem units = UnitSystem::Weights, double portions = 4) {
        const Quantities quantities(portions, 4, QLocale(QLocale::Czech, QLocale::CzechRepublic));
        const auto all = ingredientLines(readIngredients(db, 5), units, quantities);
        return {all.begin(), all.end()};
    }
    QTemporaryDir folder;
    Database db;
};

TEST_F(IngredientsTest, ALineHasItsPartsOnlyWhereTheRowHasThem) {
    // item, refinement, unit and amount by weight, unit and amount by spoons, alternative
    store({QStringLiteral("1,1,1,250,2,0.5,2"), QStringLiteral("2,0,1,0,2,-1,0"),
           QStringLiteral("2,0,0,3,NULL,NULL,NULL"), QStringLiteral("3,2,3,12.5,2,'2',3")});
    EXPECT_EQ(lines(),
              (QStringList{QStringLiteral("kapr - filety (g): 250"), QStringLiteral("      - nebo máslo"),
                           QStringLiteral("máslo (g)"), QStringLiteral("máslo: 3"),
                           QStringLiteral("olej  - čerstvé (): 12"), QStringLiteral("      - nebo  olej ")}));
    EXPECT_EQ(
        lines(UnitSystem::Spoons, 8),
        (QStringList{QStringLiteral("kapr - filety (lžíce): 1"), QStringLiteral("      - nebo máslo"),
                     QStringLiteral("máslo (lžíce)"), QStringLiteral("máslo"),
                     QStringLiteral("olej  - čerstvé (lžíce): 4"), QStringLiteral("      - nebo  olej ")}));
    EXPECT_EQ(lines(UnitSystem::Weights, 0).first(), QStringLiteral("kapr - filety (g)"));
}

TEST_F(IngredientsTest, WhatIsNotInItsTableStaysAsInTheRowBefore) {
    store({QStringLiteral("99,99,99,5,99,5,99"), QStringLiteral("1,1,1,250,2,1,2"),
           QStringLiteral("99,99,99,5,99,5,99"), QStringLiteral("2,0,0,5,0,5,0"),
           QStringLiteral("0,99,99,6,99,6,99")});
    EXPECT_EQ(lines(),
              (QStringList{QStringLiteral(": 5"), QStringLiteral("kapr - filety (g): 250"),
                           QStringLiteral("      - nebo máslo"), QStringLiteral("kapr - filety (g): 5"),
                           QStringLiteral("      - nebo máslo"), QStringLiteral("máslo: 5"),
                           QStringLiteral("máslo: 6")}));
    EXPECT_EQ(lines(UnitSystem::Spoons)[3], QStringLiteral("kapr - filety (lžíce): 5"))
        << "each unit system has its own row before";
}

TEST_F(IngredientsTest, RowsComeAsStoredAndMayRepeat) {
    store(
        {QStringLiteral("2,0,0,1,0,0,0"), QStringLiteral("1,0,0,2,0,0,0"), QStringLiteral("2,0,0,3,0,0,0")});
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("máslo: 1"), QStringLiteral("kapr: 2"),
                                    QStringLiteral("máslo: 3")}));
}

TEST_F(IngredientsTest, TheTextBeginsWithThePortions) {
    store({QStringLiteral("1,0,1,250,0,0,2")});
    const QLocale czech(QLocale::Czech, QLocale::CzechRepublic);
    EXPECT_EQ(ingredientsText(readIngredients(db, 5), UnitSystem::Weights, {2.5, 4, czech}),
              QStringLiteral("Porce: 2,5\r\nkapr (g): 160\r\n      - nebo máslo\r\n"));
    EXPECT_EQ(ingredientsText(readIngredients(db, 6), UnitSystem::Weights, {4, 4, czech}), QString());
    Database closed;
    EXPECT_TRUE(readIngredients(closed, 5).empty());
}

TEST_F(IngredientsTest, ToolsAndLinksAreAlphabetical) {
    store({},
          {QStringLiteral(
               "INSERT INTO Pomucky (ID, Polozka) VALUES (1,'hrnec'),(2,'číše'),(3,'chňapka'),(4,'cedník')"),
           QStringLiteral("INSERT INTO SpojPomucky VALUES (5,1),(5,3),(5,2),(5,4),(6,1)"),
           QStringLiteral("INSERT INTO Odkazy (ID, Polozka, Text) VALUES (7,'Vývar','text'),(8,'Dip',NULL)"),
           QStringLiteral("INSERT INTO SpojOdkazy VALUES (5,7),(5,8),(5,9)")});
    EXPECT_EQ(recipeTools(db, 5), (QStringList{QStringLiteral("cedník"), QStringLiteral("číše"),
                                               QStringLiteral("hrnec"), QStringLiteral("chňapka")}));
    EXPECT_TRUE(recipeTools(db, 7).isEmpty());
    const auto links = recipeLinks(db, 5);
    ASSERT_EQ(links.size(), 2U);
    EXPECT_EQ(links[0].title, QStringLiteral("Dip"));
    EXPECT_EQ(links[1].id, 7);
    EXPECT_EQ(linkText(db, 7), QStringLiteral("text"));
    EXPECT_EQ(linkText(db, 8), QString()) << "a link without a text is still a link";
    EXPECT_FALSE(linkText(db, 9));
    EXPECT_EQ(linkDocument(db, 7)->title, QStringLiteral("Vývar"));
    EXPECT_FALSE(linkDocument(db, 9));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
