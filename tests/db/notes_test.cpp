#include <gtest/gtest.h>

#include <QDir>

#include "db/database.h"
#include "db/notestore.h"
#include "db/ownnote.h"
#include "db/userfile.h"
#include "support/files.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

class NoteStoreTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"data/vlastni.db"_s);
};

TEST_F(NoteStoreTest, NotesAndDraftsOutliveTheRun) {
    {
        UserFile file(path);
        NoteStore notes(file);
        EXPECT_TRUE(notes.all().empty());
        EXPECT_FALSE(QFile::exists(path)) << "nothing was kept yet";
        EXPECT_TRUE(notes.keep({7, u"Štika"_s, u"méně soli"_s}));
        EXPECT_TRUE(notes.keep({7, u"Štika"_s, u"více soli"_s}));
        EXPECT_TRUE(notes.keepDraft(3, u"rozepsáno"_s));
    }
    UserFile file(path);
    NoteStore notes(file);
    ASSERT_EQ(notes.all().size(), 1U);
    EXPECT_EQ(notes.all()[0].text, u"více soli"_s);
    EXPECT_EQ(notes.draft(3), u"rozepsáno"_s);
    notes.dropDraft(3);
    EXPECT_EQ(notes.draft(3), std::nullopt);
    EXPECT_EQ(notes.draft(4), std::nullopt);
}

TEST_F(NoteStoreTest, WhatNoDiskTakesStaysInMemory) {
    for (const QString& impossible : {QString(), u"/proc/none/vlastni.db"_s}) {
        UserFile file(impossible);
        NoteStore notes(file);
        EXPECT_FALSE(notes.keepDraft(3, u"rozepsáno"_s));
        EXPECT_EQ(notes.draft(3), u"rozepsáno"_s);
        notes.dropDraft(3);
        EXPECT_EQ(notes.draft(3), std::nullopt);
        EXPECT_FALSE(notes.keep({1, u"Kapr"_s, u"x"_s}));
    }
}

TEST_F(NoteStoreTest, LaterWordsTakeThePlaceOfThoseThatNoDiskTook) {
    ASSERT_TRUE(test::write(folder.filePath(u"data"_s)));  // where the folder is to be
    UserFile file(path);
    NoteStore notes(file);
    EXPECT_FALSE(notes.keepDraft(3, u"první"_s));
    ASSERT_TRUE(QFile::remove(folder.filePath(u"data"_s)));
    EXPECT_TRUE(notes.keepDraft(3, u"druhá"_s));
    EXPECT_EQ(notes.draft(3), u"druhá"_s);
}

TEST_F(NoteStoreTest, ADamagedFileIsPutAsideAndANewOneBegun) {
    ASSERT_TRUE(test::write(path, QByteArray(9000, 'x')));
    UserFile file(path);
    EXPECT_EQ(file.value(u"a"_s), QString());
    EXPECT_TRUE(file.setValue(u"a"_s, u"1"_s));
    EXPECT_EQ(file.value(u"a"_s), u"1"_s);
    for (int i = 0; i < 50; ++i) ASSERT_TRUE(file.setValue(u"b%1"_s.arg(i), QString(3000, u'b')));
    file = UserFile();
    QByteArray bytes = test::bytesOf(path);
    bytes.replace(bytes.size() / 4096 / 2 * 4096, 8, QByteArray(8, '\xEE'));  // it still opens
    ASSERT_TRUE(test::write(path, bytes));
    UserFile again(path);
    EXPECT_EQ(again.value(u"a"_s), QString());
    EXPECT_TRUE(again.setValue(u"a"_s, u"2"_s));
    EXPECT_EQ(again.value(u"b1"_s), QString());
    EXPECT_EQ(QDir(folder.filePath(u"data"_s)).entryList({u"vlastni.db.2*"_s}).size(), 2);
}

TEST_F(NoteStoreTest, NotesComeBackToTheirRecipesInAnotherEdition) {
    Database db;
    ASSERT_TRUE(db.Open(test::writeRecipeDatabase(
        folder.filePath(u"Sarne.drc"_s), {u"INSERT INTO Recepty (ID,Nazev,Vlastni) VALUES (1,'Kapr',NULL),"
                                          "(2,'Úhoř',NULL),(3,'Lín',''),(4,'Siven','nová')"_s})));
    const std::vector<KeptNote> homeless = restoreNotes(db, {{1, u"Kapr"_s, u"a"_s},
                                                             {9, u"Úhoř"_s, u"b"_s},
                                                             {3, u"Lín"_s, u"smazaná"_s},
                                                             {4, u"Siven"_s, u"stará"_s},
                                                             {2, u"Hejk"_s, u"c"_s},
                                                             {5, u"Nic"_s, QString()}});
    ASSERT_EQ(homeless.size(), 1U);
    EXPECT_EQ(homeless[0].name, u"Hejk"_s);
    QStringList own;
    for (Recordset rows = db.OpenTable(u"Recepty"_s); !rows.AtEnd(); rows.MoveNext())
        own << rows.field(u"Vlastni"_s).toString();
    EXPECT_EQ(own, (QStringList{u"a"_s, u"b"_s, QString(), u"nová"_s}));
}

class OwnNoteTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(db.Open(test::writeRecipeDatabase(
            folder.filePath(u"Sarne.drc"_s),
            {u"INSERT INTO Recepty (ID,Nazev,Vlastni) VALUES (5,'Kapr','stará')"_s})));
        recipe = db.OpenTable(u"Recepty"_s);
    }

    QTemporaryDir folder;
    Database db;
    Recordset recipe;
    UserFile file{folder.filePath(u"vlastni.db"_s)};
    NoteStore kept{file};
    OwnNote note{recipe, kept};
};

TEST_F(OwnNoteTest, AStoredNoteLeavesACopyBesideTheBook) {
    EXPECT_EQ(note.open(), u"stará"_s);
    EXPECT_FALSE(note.isDirty());
    note.changed();
    note.close(OwnNote::Close::Save, u"nová"_s);
    ASSERT_EQ(kept.all().size(), 1U);
    EXPECT_EQ(kept.all()[0].recipe, 5);
    EXPECT_EQ(kept.all()[0].name, u"Kapr"_s);
    EXPECT_EQ(kept.all()[0].text, u"nová"_s);
    EXPECT_EQ(kept.draft(5), std::nullopt);
}

TEST_F(OwnNoteTest, StoringForThePrintGoesOnEditing) {
    note.open();
    note.saveForPrint(u"nic nového"_s);
    EXPECT_EQ(note.stored(), u"stará"_s) << "an unchanged note is not stored";
    note.changed();
    note.saveForPrint(u"nová"_s);
    EXPECT_EQ(note.stored(), u"nová "_s);
    EXPECT_TRUE(note.isOpen() && !note.isDirty());
    note.changed();
    note.save({});
    EXPECT_EQ(note.stored(), QString());
    EXPECT_FALSE(recipe.field(u"Vlastni"_s).isNull()) << "an emptied note is a note";
    EXPECT_EQ(kept.all().front().text, QString());
}

TEST_F(OwnNoteTest, AClosedNoteTakesNoChange) {
    note.open();
    note.close(OwnNote::Close::Discard, {});
    EXPECT_FALSE(note.isOpen());
    note.changed();
    EXPECT_FALSE(note.isDirty());
}

TEST_F(OwnNoteTest, WordsThatCouldNotBeStoredComeBackAsChanged) {
    note.open();
    note.changed();
    ASSERT_TRUE(db.Execute(u"PRAGMA query_only = ON"_s));
    note.close(OwnNote::Close::Save, u"nová"_s);
    EXPECT_FALSE(note.isOpen()) << "it closes all the same";
    EXPECT_EQ(note.open(), u"nová"_s);
    EXPECT_TRUE(note.isDirty());
    EXPECT_EQ(note.stored(), u"stará"_s);

    ASSERT_TRUE(db.Execute(u"PRAGMA query_only = OFF"_s));
    note.close(OwnNote::Close::Save, u"nová"_s);
    EXPECT_EQ(note.open(), u"nová"_s);
    EXPECT_FALSE(note.isDirty());
    EXPECT_EQ(note.stored(), u"nová"_s);
}

TEST_F(OwnNoteTest, ADraftIsKeptAtASuddenEndAndForgottenWhenDeclined) {
    note.open();
    note.keepDraft(u"nic nového"_s);
    EXPECT_EQ(kept.draft(5), std::nullopt) << "an unchanged note needs none";
    note.changed();
    note.keepDraft(u"rozepsaná"_s);
    OwnNote later(recipe, kept);
    EXPECT_EQ(later.open(), u"rozepsaná"_s);
    later.close(OwnNote::Close::Discard, {});
    EXPECT_EQ(later.open(), u"stará"_s);
}

TEST_F(OwnNoteTest, ALineIsAddedBelowAlsoToWordsThatCouldNotBeStored) {
    EXPECT_TRUE(appendToNote(db, kept, 5, u"první"_s));
    recipe.Seek(u"="_s, 5);
    EXPECT_EQ(note.stored(), u"stará\nprvní"_s);
    kept.keepDraft(5, u"rozepsaná \n"_s);
    EXPECT_TRUE(appendToNote(db, kept, 5, u"druhá"_s));
    recipe.Seek(u"="_s, 5);
    EXPECT_EQ(note.stored(), u"rozepsaná\ndruhá"_s);
    EXPECT_EQ(kept.draft(5), std::nullopt);
    EXPECT_FALSE(appendToNote(db, kept, 99, u"nikam"_s));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
