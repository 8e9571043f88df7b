#include "db/recordset.h"

#include <gtest/gtest.h>

#include <QFile>

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
        db.Close();
        QFile::remove(file);
        test::writeRecipeDatabase(
            file,
            {u"INSERT INTO Suroviny VALUES (1,'Kapr'),(2,'česnek'),(3,'chléb'),(4,'cibule'),(5,'hrách'),"
             "(6,'KAPARY'),(7,'50% ocet'),(8,'Ústřice'),(9,'úhoř'),(10,'O''Neilova omáčka')"_s,
             u"INSERT INTO Recepty (ID,Nazev,Porce) VALUES (1,'Kapr na kmíně',4),(7,'Candát',2),"
             "(40,'Čočka',6)"_s,
             u"INSERT INTO SpojSur VALUES (1,6,0,1,5,1,1,0),(1,1,0,1,250,1,2,0),"
             "(1,6,0,1,2,1,1,0),(7,1,0,1,3,1,1,0)"_s,
             u"INSERT INTO Menu VALUES ('1','a','D'),('11','b','1,'),('12','c','2,'),"
             "('121','d','F'),('181','Jak na kapra','2'),('182','Filety','7'),('001','x','1'),"
             "('0','y','')"_s});
        ASSERT_TRUE(db.Open(file));
    }
    /// Does what \a text says: "table or query / field / step / step ..." with the field's value before and
    /// after each step, "end" where there is no row. A step that says no has that before it.
    QString told(const QString& text) {
        SetUp();
        const QStringList parts = text.split(u" / "_s);
        Recordset rows;
        QStringList all;
        for (const QString& step : QStringList{u"open"_s} + parts.sliced(2)) {
            const QString word = step.section(u' ', 0, 0), rest = step.section(u' ', 1);
            bool isDone = true;
            if (word == u"leave") db.Close();
            if (word == u"reopen") isDone = db.Open(file);
            if (word.endsWith(u"open"))
                rows = parts[0].contains(u' ') ? db.OpenQuery(parts[0]) : db.OpenTable(parts[0]);
            if (word == u"keep") isDone = db.keepInMemory(rest);
            if (word == u"do") isDone = db.Execute(rest);
            if (word == u"first") rows.MoveFirst();
            if (word == u"last") rows.MoveLast();
            if (word == u"next") rows.MoveNext();
            if (word == u"back") rows.MovePrevious();
            if (word == u"has") isDone = RecordExists(rows, rest);
            if (word.startsWith(u"seek")) {
                rows.Seek(word.mid(4), rest.isEmpty() ? QVariant() : rest);
                isDone = !rows.NoMatch();
            }
            if (word == u"edit") rows.Edit();
            if (word == u"new") rows.AddNew();
            if (word == u"set") rows.setField(rest.section(u' ', 0, 0), rest.section(u' ', 1));
            if (word == u"update") isDone = rows.Update();
            if (word == u"close") rows.Close();
            all << (isDone ? QString() : u"no, "_s);
            for (; word == u"all" && !rows.AtEnd(); rows.MoveNext())
                all.last() += rows.field(parts[1]).toString() + u", "_s;
            const QVariant value = rows.field(parts[1]);
            all.last() += word == u"count" ? QString::number(rows.RecordCount())
                          : rows.AtEnd()   ? u"end"_s
                          : value.isNull() ? u"null"_s
                                           : value.toString();
        }
        return all.join(u" / "_s);
    }

    QTemporaryDir folder;
    QString file = folder.filePath(u"Sarne.drc"_s);
    Database db;
};

TEST_F(RecordsetTest, IsWalkedSoughtAndChanged) {
    test::expectCases(u"zaznamy"_s, [this](const QString& text) { return told(text); });
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
    EXPECT_EQ(queries::filmTitle(db, 7), u"Filety"_s);
    EXPECT_EQ(queries::filmTitle(db, 1), QString()) << "of another topic";
    EXPECT_TRUE(queries::clearFoundIngredients(db));
    EXPECT_EQ(db.OpenTable(u"Menu"_s).RecordCount(), 6) << "but for 0 and 001";
    ASSERT_TRUE(db.Execute(u"CREATE TABLE TabObr (obr BLOB)"_s) &&
                db.Execute(u"INSERT INTO TabObr VALUES (x'01'),(x'02')"_s));
    Recordset pictures = queries::screenPictures(db);
    pictures.MoveLast();
    EXPECT_EQ(pictures.field(u"obr"_s).toByteArray(), QByteArray("\2"));
}

TEST_F(RecordsetTest, WhateverIsTypedIsOnePattern) {
    test::expectCases(u"hledano"_s, [this](const QString& typed) {
        return u"%1 of %2"_s.arg(queries::ingredientsBeginning(db, typed).RecordCount())
            .arg(db.OpenTable(u"Suroviny"_s).RecordCount());
    });
}

TEST_F(RecordsetTest, ATransactionIsAllOrNothing) {
    EXPECT_FALSE(db.transaction([&] {
        db.Execute(u"DELETE * FROM Menu"_s);
        return false;
    }));
    EXPECT_EQ(db.OpenTable(u"Menu"_s).RecordCount(), 8);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
