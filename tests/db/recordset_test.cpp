#include "db/recordset.h"

#include <gtest/gtest.h>

#include "db/database.h"
#include "db/queries.h"
#include "support/kept.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

TEST(RecipeSchema, NamesTablesAndColumnsAsEarlierEditionsDo) {
    QStringList all = recipeSchema();
    for (const QStringList& version : userSchema()) all << u"-- the user's own, next version"_s << version;
    all << u"-- pictures"_s << pictureSchema();
    test::expectText(u"tabulky"_s, all.join(u'\n'));
}

class RecordsetTest : public testing::Test {
  protected:
    void SetUp() override {
        file = folder.filePath(u"Sarne.drc"_s);
        test::writeRecipeDatabase(
            file, {u"INSERT INTO Suroviny VALUES (1,'Kapr'),(2,'česnek'),(3,'chléb'),(4,'cibule'),"
                   "(5,'hrách'),(6,'KAPARY'),(7,'50% ocet'),(8,'Ústřice'),(9,'úhoř')"_s,
                   u"INSERT INTO Recepty (ID,Nazev,Porce) VALUES (1,'Kapr na kmíně',4),(7,'Candát',2),"
                   "(40,'Čočka',6)"_s,
                   u"INSERT INTO SpojSur VALUES (1,6,0,1,5,1,1,0),(1,1,0,1,250,1,2,0),"
                   "(1,6,0,1,2,1,1,0),(7,1,0,1,3,1,1,0)"_s,
                   u"INSERT INTO Menu VALUES ('1','a','D'),('11','b','1,'),('12','c','2,'),"
                   "('121','d','F')"_s});
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

TEST_F(RecordsetTest, NothingIsLikeWhatIsNotThere) {
    ASSERT_TRUE(db.Execute(u"UPDATE Menu SET Label = NULL WHERE Id = '11'"_s));
    EXPECT_EQ(column("SELECT Id FROM Menu WHERE NOT Label LIKE 'x*' ORDER BY Id", "Id"), list("1|12|121"));
    EXPECT_EQ(column("SELECT Id FROM Menu WHERE 'a' LIKE Label", "Id"), list("1"));
    EXPECT_EQ(db.OpenQuery(u"SELECT * FROM Menu WHERE Label LIKE '[a'"_s).RecordCount(), 0);
}

TEST_F(RecordsetTest, ValuesComeBackAsTheyWereStored) {
    ASSERT_TRUE(db.Execute(u"CREATE TABLE Cokoli (ID INTEGER PRIMARY KEY, H)"_s));
    const QVariant values[] = {QVariant(),     qint64(1) << 40,           -1.25, u"Žluťoučký \0 kůň"_s,
                               QString(u""_s), QByteArray("\0\xFF\1", 3), 2.5F};
    int id = 0;
    for (const QVariant& value : values) {
        Recordset row = db.OpenTable(u"Cokoli"_s);
        row.AddNew();
        row.setField(u"ID"_s, ++id);
        row.setField(u"H"_s, value);
        ASSERT_TRUE(row.Update());
        ASSERT_TRUE(RecordExists(row, id));
        EXPECT_EQ(row.field(u"H"_s), value) << id;
        EXPECT_EQ(row.field(u"H"_s).isNull(), value.isNull()) << id;
    }
    Recordset row = db.OpenTable(u"Cokoli"_s);
    for (const QVariant& value : {QVariant(true), QVariant(short(3)), QVariant(4U)}) {
        row.Edit();
        row.setField(u"h"_s, value);
        ASSERT_TRUE(row.Update());
        EXPECT_EQ(db.OpenQuery(u"SELECT typeof(H) AS T FROM Cokoli"_s).field(u"T"_s), u"integer"_s);
    }
}

TEST_F(RecordsetTest, TheQueriesThatLookFurtherFindAndClear) {
    ASSERT_TRUE(
        db.Execute(u"INSERT INTO Menu VALUES ('181','Jak na kapra','2'),('182','Filety','7'),"
                   "('001','x','1'),('0','y','')"_s));
    EXPECT_EQ(queries::filmTitle(db, 7), u"Filety"_s);
    EXPECT_EQ(queries::filmTitle(db, 1), QString()) << "of another topic";
    EXPECT_TRUE(queries::clearFoundIngredients(db));
    EXPECT_EQ(column("SELECT Id FROM Menu ORDER BY Id", "Id"), list("1|11|12|121|181|182"));
    ASSERT_TRUE(db.Execute(u"CREATE TABLE TabObr (obr BLOB)"_s) &&
                db.Execute(u"INSERT INTO TabObr VALUES (x'01'),(x'02')"_s));
    Recordset pictures = queries::screenPictures(db);
    pictures.MoveLast();
    EXPECT_EQ(pictures.field(u"obr"_s).toByteArray(), QByteArray("\2"));
}

TEST_F(RecordsetTest, WhateverIsTypedIsOnePattern) {
    const auto found = [&](const char* typed) {
        return queries::ingredientsBeginning(db, QString::fromUtf8(typed)).RecordCount();
    };
    for (const char* typed : {"'", "''", "kap[", "x'; DELETE * FROM Suroviny; '",
                              "x' UNION SELECT 1,sql FROM sqlite_master WHERE name LIKE 'Recepty"})
        EXPECT_EQ(found(typed), 0) << typed;
    EXPECT_EQ(found("kap"), 2);
    Recordset ingredients = db.OpenTable(u"Suroviny"_s);
    ASSERT_TRUE(RecordExists(ingredients, 8));
    ingredients.Edit();
    ingredients.setField(u"Polozka"_s, u"O'Neilova omáčka"_s);
    ASSERT_TRUE(ingredients.Update());
    EXPECT_EQ(found("o'ne"), 1);
    EXPECT_EQ(db.OpenTable(u"Suroviny"_s).RecordCount(), 9);
    EXPECT_FALSE(db.OpenTable(u"Neni"_s).isOpen());
}

TEST_F(RecordsetTest, ATableIsWalkedAndSoughtByItsKey) {
    Recordset recipes = db.OpenTable(u"recepty"_s);
    recipes.setIndex(u"primarykey"_s);
    recipes.Seek(u"="_s, 7);
    EXPECT_FALSE(recipes.NoMatch());
    EXPECT_EQ(recipes.field(u"nAzEv"_s).toString(), u"Candát"_s);
    recipes.MoveNext();
    EXPECT_EQ(recipes.field(u"ID"_s).toInt(), 40);
    recipes.Seek(u"="_s, 8);
    EXPECT_TRUE(recipes.NoMatch());
    recipes.MoveNext();
    EXPECT_TRUE(recipes.AtEnd());
    EXPECT_TRUE(recipes.field(u"Nazev"_s).isNull());
    recipes.MoveLast();
    recipes.MovePrevious();
    EXPECT_EQ(recipes.field(u"ID"_s).toInt(), 7);
    for (const char* comparison : {">", "<", ""}) {
        recipes.Seek(QLatin1String(comparison), 7);
        EXPECT_TRUE(recipes.NoMatch()) << comparison;
    }
    recipes.Seek(u"="_s, QVariant());
    EXPECT_TRUE(recipes.NoMatch());
    EXPECT_EQ(recipes.field(u"ID"_s).toInt(), 7) << "what is not found changes nothing";
    recipes.MovePrevious();
    EXPECT_EQ(recipes.field(u"ID"_s).toInt(), 1);
    recipes.MovePrevious();
    EXPECT_TRUE(recipes.AtEnd());
    recipes.MovePrevious();
    recipes.MoveFirst();
    EXPECT_EQ(recipes.field(u"ID"_s).toInt(), 1);
    EXPECT_EQ(recipes.RecordCount(), 3);

    Recordset menu = db.OpenTable(u"Menu"_s);
    EXPECT_TRUE(RecordExists(menu, u"121"_s));
    EXPECT_FALSE(RecordExists(menu, u"999"_s));
}

TEST_F(RecordsetTest, AQueryCountsAndStepsBack) {
    Recordset all = db.OpenQuery(u"SELECT * FROM SpojSur WHERE ID_Receptu = 1"_s);
    all.MoveLast();
    EXPECT_EQ(all.RecordCount(), 3);
    all.MovePrevious();
    EXPECT_EQ(all.field(u"MnozstviKg"_s).toDouble(), 250);
    for (int step = 0; step < 3; ++step) all.MovePrevious();
    EXPECT_TRUE(all.AtEnd());
    all.MoveNext();
    EXPECT_EQ(all.field(u"MnozstviKg"_s).toDouble(), 5);
    for (int step = 0; step < 5; ++step) all.MoveNext();
    EXPECT_TRUE(all.AtEnd());
    all.MovePrevious();
    EXPECT_EQ(all.field(u"MnozstviKg"_s).toDouble(), 2);
    all.Edit();
    all.setField(u"MnozstviKg"_s, 9);
    EXPECT_FALSE(all.Update()) << "a query is for reading";
    all.Close();
    EXPECT_TRUE(all.AtEnd() && !all.isOpen());
    Recordset none = db.OpenQuery(u"SELECT * FROM SpojSur WHERE ID_Receptu = 99"_s);
    none.MoveLast();
    EXPECT_EQ(none.RecordCount(), 0);
    EXPECT_TRUE(none.AtEnd());
}

TEST_F(RecordsetTest, ChangesAreStoredAndOnlyThere) {
    Recordset recipes = db.OpenTable(u"Recepty"_s);
    recipes.setField(u"Vlastni"_s, u"nikam"_s);
    EXPECT_FALSE(recipes.Update());
    recipes.Edit();
    recipes.setField(u"vlastni"_s, u"Víc kmínu"_s);
    recipes.setField(u"neni"_s, 1);
    EXPECT_TRUE(recipes.Update());
    EXPECT_EQ(recipes.field(u"Vlastni"_s).toString(), u"Víc kmínu"_s);

    recipes.Edit();
    recipes.setField(u"Vlastni"_s, u"zapomenuto"_s);
    recipes.Seek(u"="_s, 7);
    EXPECT_FALSE(recipes.Update()) << "another row is no longer being changed";
    recipes.Edit();
    EXPECT_TRUE(recipes.Update()) << "nothing is a change, too";
    EXPECT_FALSE(recipes.Update());
    EXPECT_TRUE(recipes.field(u"Vlastni"_s).isNull()) << "what was given up is not stored elsewhere";
    recipes.Edit();
    recipes.setField(u"Vlastni"_s, u"zapomenuto"_s);
    recipes.AddNew();
    recipes.setField(u"ID"_s, 50);
    EXPECT_TRUE(recipes.Update() && RecordExists(recipes, 50));
    EXPECT_TRUE(recipes.field(u"Vlastni"_s).isNull());
    recipes.Seek(u"="_s, 7);
    recipes.Edit();
    recipes.setField(u"Vlastni"_s, u"pryč"_s);
    ASSERT_TRUE(db.Execute(u"DELETE FROM Recepty WHERE ID = 7"_s));
    EXPECT_FALSE(recipes.Update()) << "the row is gone";
    recipes.MoveLast();
    recipes.MoveNext();
    recipes.Edit();
    recipes.setField(u"Vlastni"_s, u"nikam"_s);
    EXPECT_FALSE(recipes.Update()) << "there is no row";
    recipes.MoveFirst();

    Recordset menu = db.OpenTable(u"Menu"_s);
    menu.AddNew();
    menu.setField(u"Id"_s, u"11"_s);
    EXPECT_FALSE(menu.Update()) << "a key stands once only";

    db.Close();
    recipes.MoveNext();  // a closed database leaves what was open as it was
    EXPECT_FALSE(recipes.Update());
    ASSERT_TRUE(db.Open(file));
    Recordset again = db.OpenTable(u"Recepty"_s);
    EXPECT_EQ(again.field(u"Vlastni"_s).toString(), u"Víc kmínu"_s);
}

TEST_F(RecordsetTest, AnOpenRecordsetSurvivesADelete) {
    Recordset rows = db.OpenQuery(u"SELECT * FROM menu WHERE ID LIKE '1*' ORDER BY Id"_s);
    Recordset table = db.OpenTable(u"Menu"_s);
    ASSERT_TRUE(db.Execute(u"DELETE * FROM Menu WHERE ID LIKE '1*'"_s));
    rows.MoveNext();
    EXPECT_EQ(rows.field(u"Id"_s).toString(), u"11"_s);
    table.MoveNext();
    EXPECT_TRUE(table.AtEnd());
    EXPECT_EQ(rows.RecordCount(), 4);
}

TEST_F(RecordsetTest, ATableKeptInMemoryLeavesTheFileAlone) {
    ASSERT_TRUE(db.keepInMemory(u"menu"_s));
    EXPECT_TRUE(db.Execute(u"DELETE * FROM Menu WHERE ID LIKE '1?'"_s));
    Recordset menu = db.OpenTable(u"Menu"_s);
    menu.AddNew();
    menu.setField(u"Id"_s, u"001"_s);
    EXPECT_TRUE(menu.Update());
    EXPECT_EQ(column("SELECT * FROM menu ORDER BY Id", "Id"), list("001|1|121"));
    ASSERT_TRUE(db.Open(file));
    EXPECT_EQ(column("SELECT * FROM menu ORDER BY Id", "Id"), list("1|11|12|121"));
    EXPECT_FALSE(db.keepInMemory(u"Neni"_s));
}

TEST_F(RecordsetTest, ATransactionIsAllOrNothing) {
    EXPECT_FALSE(db.transaction([&] {
        db.Execute(u"DELETE * FROM Menu"_s);
        return false;
    }));
    EXPECT_EQ(db.OpenTable(u"Menu"_s).RecordCount(), 4);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
