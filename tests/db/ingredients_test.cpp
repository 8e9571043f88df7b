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
        QStringList all{u"INSERT INTO Suroviny (ID, Polozka) VALUES (1,'kapr'),(2,'máslo'),(3,' olej ')"_s,
                        u"INSERT INTO Upresneni (ID, Polozka) VALUES (1,'filety'),(2,'čerstvé')"_s,
                        u"INSERT INTO Jednotky (ID, Polozka) VALUES (1,'g'),(2,'  lžíce '),(3,'')"_s};
        for (const QString& row : rows) all << u"INSERT INTO SpojSur VALUES (5,%1)"_s.arg(row);
        ASSERT_TRUE(db.Open(test::writeRecipeDatabase(folder.filePath(u"t.drc"_s), all + more)));
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
    store(
        {u"1,1,1,250,2,0.5,2"_s, u"2,0,1,0,2,-1,0"_s, u"2,0,0,3,NULL,NULL,NULL"_s, u"3,2,3,12.5,2,'2',3"_s});
    EXPECT_EQ(lines(), (QStringList{u"kapr - filety (g): 250"_s, u"      - nebo máslo"_s, u"máslo (g)"_s,
                                    u"máslo: 3"_s, u"olej  - čerstvé (): 12"_s, u"      - nebo  olej "_s}));
    EXPECT_EQ(lines(UnitSystem::Spoons, 8),
              (QStringList{u"kapr - filety (lžíce): 1"_s, u"      - nebo máslo"_s, u"máslo (lžíce)"_s,
                           u"máslo"_s, u"olej  - čerstvé (lžíce): 4"_s, u"      - nebo  olej "_s}));
    EXPECT_EQ(lines(UnitSystem::Weights, 0).first(), u"kapr - filety (g)"_s);
}

TEST_F(IngredientsTest, WhatIsNotInItsTableStaysAsInTheRowBefore) {
    store({u"99,99,99,5,99,5,99"_s, u"1,1,1,250,2,1,2"_s, u"99,99,99,5,99,5,99"_s, u"2,0,0,5,0,5,0"_s,
           u"0,99,99,6,99,6,99"_s});
    EXPECT_EQ(lines(), (QStringList{u": 5"_s, u"kapr - filety (g): 250"_s, u"      - nebo máslo"_s,
                                    u"kapr - filety (g): 5"_s, u"      - nebo máslo"_s, u"máslo: 5"_s,
                                    u"máslo: 6"_s}));
    EXPECT_EQ(lines(UnitSystem::Spoons)[3], u"kapr - filety (lžíce): 5"_s)
        << "each unit system has its own row before";
}

TEST_F(IngredientsTest, RowsComeAsStoredAndMayRepeat) {
    store({u"2,0,0,1,0,0,0"_s, u"1,0,0,2,0,0,0"_s, u"2,0,0,3,0,0,0"_s});
    EXPECT_EQ(lines(), (QStringList{u"máslo: 1"_s, u"kapr: 2"_s, u"máslo: 3"_s}));
}

TEST_F(IngredientsTest, TheTextBeginsWithThePortions) {
    store({u"1,0,1,250,0,0,2"_s});
    const QLocale czech(QLocale::Czech, QLocale::CzechRepublic);
    EXPECT_EQ(ingredientsText(readIngredients(db, 5), UnitSystem::Weights, {2.5, 4, czech}),
              u"Porce: 2,5\r\nkapr (g): 160\r\n      - nebo máslo\r\n"_s);
    EXPECT_EQ(ingredientsText(readIngredients(db, 6), UnitSystem::Weights, {4, 4, czech}), QString());
    Database closed;
    EXPECT_TRUE(readIngredients(closed, 5).empty());
}

TEST_F(IngredientsTest, ToolsAndLinksAreAlphabetical) {
    store({},
          {u"INSERT INTO Pomucky (ID, Polozka) VALUES (1,'hrnec'),(2,'číše'),(3,'chňapka'),(4,'cedník')"_s,
           u"INSERT INTO SpojPomucky VALUES (5,1),(5,3),(5,2),(5,4),(6,1)"_s,
           u"INSERT INTO Odkazy (ID, Polozka, Text) VALUES (7,'Vývar','text'),(8,'Dip',NULL)"_s,
           u"INSERT INTO SpojOdkazy VALUES (5,7),(5,8),(5,9)"_s});
    EXPECT_EQ(recipeTools(db, 5), (QStringList{u"cedník"_s, u"číše"_s, u"hrnec"_s, u"chňapka"_s}));
    EXPECT_TRUE(recipeTools(db, 7).isEmpty());
    const auto links = recipeLinks(db, 5);
    ASSERT_EQ(links.size(), 2U);
    EXPECT_EQ(links[0].title, u"Dip"_s);
    EXPECT_EQ(links[1].id, 7);
    EXPECT_EQ(linkText(db, 7), u"text"_s);
    EXPECT_EQ(linkText(db, 8), QString()) << "a link without a text is still a link";
    EXPECT_FALSE(linkText(db, 9));
    const auto documents = linkDocuments(db, 5);
    ASSERT_EQ(documents.size(), 2U);
    EXPECT_EQ(documents[1].title + documents[1].text, u"Vývartext"_s);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
