#include "db/ingredients.h"

#include <gtest/gtest.h>

#include <QFile>

#include "db/companions.h"
#include "db/database.h"
#include "support/kept.h"
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
        db.Close();
        QFile::remove(folder.filePath(u"t.drc"_s));
        ASSERT_TRUE(db.Open(test::writeRecipeDatabase(folder.filePath(u"t.drc"_s), all + more)));
    }
    QTemporaryDir folder;
    Database db;
};

TEST_F(IngredientsTest, AreTextsAsARecipeShowsThem) {
    const QLocale czech(QLocale::Czech, QLocale::CzechRepublic);
    test::expectCases(u"suroviny"_s, [&](const QString& text) {
        store(text.section(u' ', 2).split(u' ', Qt::SkipEmptyParts));
        const auto units = text.section(u' ', 1, 1) == u"g" ? UnitSystem::Weights : UnitSystem::Spoons;
        const Quantities quantities(text.section(u' ', 0, 0).toDouble(), 4, czech);
        return ingredientsText(readIngredients(db, 5), units, quantities).remove(u'\r');
    });
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
