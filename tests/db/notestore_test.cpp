#include "db/notestore.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>

#include "db/database.h"
#include "db/userfile.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

class NoteStoreTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("data/vlastni.db"));
};

TEST_F(NoteStoreTest, NotesAndDraftsOutliveTheRun) {
    {
        UserFile file(path);
        NoteStore notes(file);
        EXPECT_TRUE(notes.all().empty());
        EXPECT_FALSE(QFile::exists(path)) << "nothing was kept yet";
        EXPECT_TRUE(notes.keep({7, QStringLiteral("Štika"), QStringLiteral("méně soli")}));
        EXPECT_TRUE(notes.keep({7, QStringLiteral("Štika"), QStringLiteral("více soli")}));
        EXPECT_TRUE(notes.keepDraft(3, QStringLiteral("rozepsáno")));
    }
    UserFile file(path);
    NoteStore notes(file);
    ASSERT_EQ(notes.all().size(), 1U);
    EXPECT_EQ(notes.all()[0].text, QStringLiteral("více soli"));
    EXPECT_EQ(notes.draft(3), QStringLiteral("rozepsáno"));
    notes.dropDraft(3);
    EXPECT_EQ(notes.draft(3), std::nullopt);
    EXPECT_EQ(notes.draft(4), std::nullopt);
}

TEST_F(NoteStoreTest, WhatNoDiskTakesStaysInMemory) {
    for (const QString& impossible : {QString(), QStringLiteral("/proc/none/vlastni.db")}) {
        UserFile file(impossible);
        NoteStore notes(file);
        EXPECT_FALSE(notes.keepDraft(3, QStringLiteral("rozepsáno")));
        EXPECT_EQ(notes.draft(3), QStringLiteral("rozepsáno"));
        notes.dropDraft(3);
        EXPECT_EQ(notes.draft(3), std::nullopt);
        EXPECT_FALSE(notes.keep({1, QStringLiteral("Kapr"), QStringLiteral("x")}));
    }
}

TEST_F(NoteStoreTest, ADamagedFileIsPutAsideAndANewOneBegun) {
    QDir().mkpath(folder.filePath(QStringLiteral("data")));
    QFile broken(path);
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write(QByteArray(9000, 'x'));
    broken.close();
    UserFile file(path);
    EXPECT_EQ(file.value(QStringLiteral("a")), QString());
    EXPECT_TRUE(file.setValue(QStringLiteral("a"), QStringLiteral("1")));
    EXPECT_EQ(file.value(QStringLiteral("a")), QStringLiteral("1"));
    EXPECT_EQ(
        QDir(folder.filePath(QStringLiteral("data"))).entryList({QStringLiteral("vlastni.db.2*")}).size(), 1);
}

TEST_F(NoteStoreTest, NotesComeBackToTheirRecipesInAnotherEdition) {
    const QString book = folder.filePath(QStringLiteral("Sarne.drc"));
    test::writeRecipeDatabase(
        book, {QStringLiteral("INSERT INTO Recepty (ID,Nazev,Vlastni) VALUES (1,'Kapr',NULL),(2,'Úhoř',NULL),"
                              "(3,'Lín',''),(4,'Siven','nová')")});
    Database db;
    ASSERT_TRUE(db.Open(book));
    const std::vector<KeptNote> homeless =
        restoreNotes(db, {{1, QStringLiteral("Kapr"), QStringLiteral("a")},
                          {9, QStringLiteral("Úhoř"), QStringLiteral("b")},
                          {3, QStringLiteral("Lín"), QStringLiteral("smazaná")},
                          {4, QStringLiteral("Siven"), QStringLiteral("stará")},
                          {2, QStringLiteral("Hejk"), QStringLiteral("c")},
                          {5, QStringLiteral("Nic"), QString()}});
    ASSERT_EQ(homeless.size(), 1U);
    EXPECT_EQ(homeless[0].name, QStringLiteral("Hejk"));
    QStringList own;
    for (Recordset rows = db.OpenTable(QStringLiteral("Recepty")); !rows.AtEnd(); rows.MoveNext())
        own << rows.field(QStringLiteral("Vlastni")).toString();
    EXPECT_EQ(own,
              (QStringList{QStringLiteral("a"), QStringLiteral("b"), QString(), QStringLiteral("nová")}));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
