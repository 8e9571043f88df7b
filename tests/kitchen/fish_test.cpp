#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "db/database.h"
#include "db/schema.h"
#include "kitchen/fishamount.h"

namespace sarne {
namespace {

TEST(MainFish, SaysForHowManyItIsEnough) {
    using Bought = MainFish::Bought;
    const MainFish steaks{QStringLiteral("kapr, podkovy"), 1200, 4, 0.7};
    EXPECT_DOUBLE_EQ(steaks.portionsFor(1200, Bought::AsInTheList), 4);
    EXPECT_DOUBLE_EQ(steaks.portionsFor(1340, Bought::AsInTheList), 4.5);
    EXPECT_DOUBLE_EQ(steaks.portionsFor(1340, Bought::Whole), 3.1);
    EXPECT_DOUBLE_EQ(steaks.portionsFor(0, Bought::Whole), 0);
    EXPECT_DOUBLE_EQ(steaks.portionsFor(-5, Bought::AsInTheList), 0);
    EXPECT_TRUE(steaks.isCut());
    EXPECT_FALSE((MainFish{{}, 600, 2, 1}.isCut()));
    EXPECT_DOUBLE_EQ((MainFish{{}, 0, 2, 1}.portionsFor(500, Bought::Whole)), 0);
}

TEST(MainFish, IsTheLineThatTheBookNames) {
    QTemporaryDir folder;
    Database db;
    EXPECT_FALSE(mainFish(db, 1));
    ASSERT_TRUE(db.Create(folder.filePath(QStringLiteral("Sarne.drc"))));
    ASSERT_TRUE(db.makeTables({recipeSchema()}));
    for (const char* row :
         {"INSERT INTO Suroviny VALUES (1, 'kapr')", "INSERT INTO Suroviny VALUES (2, 'cibule')",
          "INSERT INTO Upresneni VALUES (1, 'filety')", "INSERT INTO Upresneni VALUES (2, 'podkovy')",
          "INSERT INTO Jednotky VALUES (1, 'g')", "INSERT INTO Vyteznost VALUES (1, 45)",
          "INSERT INTO Recepty (ID, Porce) VALUES (1, 4)", "INSERT INTO Recepty (ID, Porce) VALUES (2, 4)",
          "INSERT INTO SpojSur VALUES (1, 2, 0, 1, 80, 1, 80, 0)",
          "INSERT INTO SpojSur VALUES (1, 1, 1, 1, 800, 1, 800, 0)",
          "INSERT INTO Fakta (ID, Ryba) VALUES (1, 1)", "INSERT INTO Fakta (ID, Ryba) VALUES (2, -1)"})
        ASSERT_TRUE(db.Execute(QString::fromUtf8(row))) << row;
    const auto fish = mainFish(db, 1);
    ASSERT_TRUE(fish);
    EXPECT_EQ(fish->name, QStringLiteral("kapr, filety"));
    EXPECT_EQ(fish->portions, 4);
    EXPECT_DOUBLE_EQ(fish->wholeShare, 0.45);
    EXPECT_FALSE(mainFish(db, 2));
    EXPECT_FALSE(mainFish(db, 3));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
