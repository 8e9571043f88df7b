#include "db/recordset.h"

#include <gtest/gtest.h>

#include "db/database.h"
#include "db/queries.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

class RecordsetTest : public testing::Test {
  protected:
    void SetUp() override {
        file = folder.filePath(QStringLiteral("Sarne.drc"));
        test::writeRecipeDatabase(
            file,
            {QStringLiteral("INSERT INTO Suroviny VALUES (1,'Kapr'),(2,'česnek'),(3,'chléb'),(4,'cibule'),"
                            "(5,'hrách'),(6,'KAPARY'),(7,'50% ocet'),(8,'Ústřice'),(9,'úhoř')"),
             QStringLiteral(
                 "INSERT INTO Recepty (ID,Nazev,Porce) VALUES (1,'Kapr na kmíně',4),(7,'Candát',2),"
                 "(40,'Čočka',6)"),
             QStringLiteral("INSERT INTO SpojSur VALUES (1,6,0,1,5,1,1,0),(1,1,0,1,250,1,2,0),"
                            "(1,6,0,1,2,1,1,0),(7,1,0,1,3,1,1,0)"),
             QStringLiteral("INSERT INTO Menu VALUES ('1','a','D'),('11','b','1,'),('12','c','2,'),"
                            "('121','d','F')")});
        ASSERT_TRUE(db.Open(file));
    }
    QStringList column(const char* query, const char* name) {
        QStringList values;
        for (Recordset r = db.OpenQuery(QString::fromUtf8(query)); !r.AtEnd(); r.MoveNext())
            values << r.field(QLatin1String(name)).toString();
        return values;
    }
    static QStringList list(const char* text) { return QString::fromUtf8(text).split(u'|'); }

    QTemporaryDir folder;
    QString file;
    Database db;
};

TEST_F(RecordsetTest, TheQueriesOfTheCookbookRunAsTheyStand) {
    EXPECT_EQ(column("SELECT * FROM Suroviny WHERE Polozka LIKE 'kap*'", "polozka"), list("Kapr|KAPARY"));
    EXPECT_EQ(column("SELECT * FROM Suroviny WHERE Polozka LIKE '50%*'", "POLOZKA"), list("50% ocet"));
    EXPECT_EQ(column("SELECT * FROM menu WHERE ID LIKE '1?' ORDER BY Id", "Id"), list("11|12"));
    EXPECT_EQ(
        column(
            "SELECT DISTINCT Recepty.Nazev, Recepty.ID, SpojSur.ID_Polozky FROM Recepty INNER JOIN SpojSur "
            "ON Recepty.ID = SpojSur.ID_Receptu WHERE (((SpojSur.ID_Polozky) = 1)) ORDER BY Recepty.Nazev; ",
            "Nazev"),
        list("Candát|Kapr na kmíně"));
    EXPECT_EQ(column("SELECT * FROM SpojSur WHERE ID_Receptu = 1", "MnozstviKg"), list("5|250|2"));
}

TEST_F(RecordsetTest, CzechOrderCaseAside) {
    EXPECT_EQ(column("SELECT Polozka FROM Suroviny ORDER BY Polozka", "Polozka"),
              list("50% ocet|cibule|česnek|hrách|chléb|KAPARY|Kapr|úhoř|Ústřice"));
    EXPECT_EQ(column("SELECT ID FROM Suroviny WHERE Polozka = 'KAPR'", "ID"), list("1"));
}

TEST_F(RecordsetTest, WhateverIsTypedIsOnePattern) {
    const auto found = [&](const char* typed) {
        return queries::ingredientsBeginning(db, QString::fromUtf8(typed)).RecordCount();
    };
    for (const char* typed : {"'", "''", "kap[", "x'; DELETE * FROM Suroviny; '",
                              "x' UNION SELECT 1,sql FROM sqlite_master WHERE name LIKE 'Recepty"})
        EXPECT_EQ(found(typed), 0) << typed;
    EXPECT_EQ(found("kap"), 2);
    Recordset ingredients = db.OpenTable(QStringLiteral("Suroviny"));
    ASSERT_TRUE(RecordExists(ingredients, 8));
    ingredients.Edit();
    ingredients.setField(QStringLiteral("Polozka"), QStringLiteral("O'Neilova omáčka"));
    ASSERT_TRUE(ingredients.Update());
    EXPECT_EQ(found("o'ne"), 1);
    EXPECT_EQ(db.OpenTable(QStringLiteral("Suroviny")).RecordCount(), 9);
    EXPECT_FALSE(db.OpenTable(QStringLiteral("Neni")).isOpen());
}

TEST_F(RecordsetTest, ATableIsWalkedAndSoughtByItsKey) {
    Recordset recipes = db.OpenTable(QStringLiteral("recepty"));
    recipes.setIndex(QStringLiteral("primarykey"));
    recipes.Seek(QStringLiteral("="), 7);
    EXPECT_FALSE(recipes.NoMatch());
    EXPECT_EQ(recipes.field(QStringLiteral("nAzEv")).toString(), QStringLiteral("Candát"));
    recipes.MoveNext();
    EXPECT_EQ(recipes.field(QStringLiteral("ID")).toInt(), 40);
    recipes.Seek(QStringLiteral("="), 8);
    EXPECT_TRUE(recipes.NoMatch());
    recipes.MoveNext();
    EXPECT_TRUE(recipes.AtEnd());
    EXPECT_TRUE(recipes.field(QStringLiteral("Nazev")).isNull());
    recipes.MoveLast();
    recipes.MovePrevious();
    EXPECT_EQ(recipes.field(QStringLiteral("ID")).toInt(), 7);

    Recordset menu = db.OpenTable(QStringLiteral("Menu"));
    EXPECT_TRUE(RecordExists(menu, QStringLiteral("121")));
    EXPECT_FALSE(RecordExists(menu, QStringLiteral("999")));
}

TEST_F(RecordsetTest, AQueryCountsAndStepsBack) {
    Recordset all = db.OpenQuery(QStringLiteral("SELECT * FROM SpojSur WHERE ID_Receptu = 1"));
    all.MoveLast();
    EXPECT_EQ(all.RecordCount(), 3);
    all.MovePrevious();
    EXPECT_EQ(all.field(QStringLiteral("MnozstviKg")).toDouble(), 250);
    Recordset none = db.OpenQuery(QStringLiteral("SELECT * FROM SpojSur WHERE ID_Receptu = 99"));
    none.MoveLast();
    EXPECT_EQ(none.RecordCount(), 0);
    EXPECT_TRUE(none.AtEnd());
}

TEST_F(RecordsetTest, ChangesAreStoredAndOnlyThere) {
    Recordset recipes = db.OpenTable(QStringLiteral("Recepty"));
    recipes.setField(QStringLiteral("Vlastni"), QStringLiteral("nikam"));
    EXPECT_FALSE(recipes.Update());
    recipes.Edit();
    recipes.setField(QStringLiteral("vlastni"), QStringLiteral("Víc kmínu"));
    recipes.setField(QStringLiteral("neni"), 1);
    EXPECT_TRUE(recipes.Update());
    EXPECT_EQ(recipes.field(QStringLiteral("Vlastni")).toString(), QStringLiteral("Víc kmínu"));

    Recordset menu = db.OpenTable(QStringLiteral("Menu"));
    menu.AddNew();
    menu.setField(QStringLiteral("Id"), QStringLiteral("11"));
    EXPECT_FALSE(menu.Update()) << "a key stands once only";

    db.Close();
    recipes.MoveNext();  // a closed database leaves what was open as it was
    EXPECT_FALSE(recipes.Update());
    ASSERT_TRUE(db.Open(file));
    Recordset again = db.OpenTable(QStringLiteral("Recepty"));
    EXPECT_EQ(again.field(QStringLiteral("Vlastni")).toString(), QStringLiteral("Víc kmínu"));
}

TEST_F(RecordsetTest, AnOpenRecordsetSurvivesADelete) {
    Recordset rows = db.OpenQuery(QStringLiteral("SELECT * FROM menu WHERE ID LIKE '1*' ORDER BY Id"));
    Recordset table = db.OpenTable(QStringLiteral("Menu"));
    ASSERT_TRUE(db.Execute(QStringLiteral("DELETE * FROM Menu WHERE ID LIKE '1*'")));
    rows.MoveNext();
    EXPECT_EQ(rows.field(QStringLiteral("Id")).toString(), QStringLiteral("11"));
    table.MoveNext();
    EXPECT_TRUE(table.AtEnd());
    EXPECT_EQ(rows.RecordCount(), 4);
}

TEST_F(RecordsetTest, ATableKeptInMemoryLeavesTheFileAlone) {
    ASSERT_TRUE(db.keepInMemory(QStringLiteral("menu")));
    EXPECT_TRUE(db.Execute(QStringLiteral("DELETE * FROM Menu WHERE ID LIKE '1?'")));
    Recordset menu = db.OpenTable(QStringLiteral("Menu"));
    menu.AddNew();
    menu.setField(QStringLiteral("Id"), QStringLiteral("001"));
    EXPECT_TRUE(menu.Update());
    EXPECT_EQ(column("SELECT * FROM menu ORDER BY Id", "Id"), list("001|1|121"));
    ASSERT_TRUE(db.Open(file));
    EXPECT_EQ(column("SELECT * FROM menu ORDER BY Id", "Id"), list("1|11|12|121"));
    EXPECT_FALSE(db.keepInMemory(QStringLiteral("Neni")));
}

TEST_F(RecordsetTest, ATransactionIsAllOrNothing) {
    EXPECT_FALSE(db.transaction([&] {
        db.Execute(QStringLiteral("DELETE * FROM Menu"));
        return false;
    }));
    EXPECT_EQ(db.OpenTable(QStringLiteral("Menu")).RecordCount(), 4);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
