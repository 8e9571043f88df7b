#include <gtest/gtest.h>

#include <QDir>

#include "db/database.h"
#include "db/notestore.h"
#include "db/ownnote.h"
#include "db/userfile.h"
#include "support/files.h"
#include "support/kept.h"
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

TEST_F(NoteStoreTest, WhatNoDiskTakesStaysInMemoryUntilOneDoes) {
    ASSERT_TRUE(test::write(folder.filePath(u"data"_s)));  // where the folder is to be
    for (const QString& impossible : {QString(), path}) {
        UserFile file(impossible);
        NoteStore notes(file);
        EXPECT_FALSE(notes.keepDraft(3, u"rozepsáno"_s));
        EXPECT_EQ(notes.draft(3), u"rozepsáno"_s);
        notes.dropDraft(3);
        EXPECT_EQ(notes.draft(3), std::nullopt);
        EXPECT_FALSE(notes.keep({1, u"Kapr"_s, u"x"_s}));
        EXPECT_FALSE(notes.keepDraft(3, u"první"_s));
        if (impossible.isEmpty()) continue;
        ASSERT_TRUE(QFile::remove(folder.filePath(u"data"_s)));
        EXPECT_TRUE(notes.keepDraft(3, u"druhá"_s));
        EXPECT_EQ(notes.draft(3), u"druhá"_s) << "later words take the place of those that no disk took";
    }
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

/// What \a steps leave of the note "stará" of recipe 5: after each whether the editor is open (* changed),
/// what is stored, the draft, and the copy beside the book. "open" tells what the editor shows, too.
QString told(const QString& steps) {
    const QTemporaryDir folder;
    Database db;
    EXPECT_TRUE(db.Open(
        test::writeRecipeDatabase(folder.filePath(u"Sarne.drc"_s),
                                  {u"INSERT INTO Recepty (ID,Nazev,Vlastni) VALUES (5,'Kapr','stará')"_s})));
    Recordset recipe = db.OpenTable(u"Recepty"_s);
    UserFile file(folder.filePath(u"vlastni.db"_s));
    NoteStore kept(file);
    OwnNote note(recipe, kept);
    QStringList all;
    for (const QString& step : steps.split(u' ')) {
        const QString word = step.section(u':', 0, 0), text = step.section(u':', 1).replace(u'_', u' ');
        QStringList row;
        if (word == u"open") row << u"»%1«"_s.arg(note.open());
        if (word == u"changed") note.changed();
        if (word == u"save") note.save(text);
        if (word == u"print") note.saveForPrint(text);
        if (word == u"close") note.close(OwnNote::Close::Save, text);
        if (word == u"discard") note.close(OwnNote::Close::Discard, {});
        if (word == u"draft") note.keepDraft(text);
        if (word == u"append" || word == u"astray")
            row << (appendToNote(db, kept, word == u"astray" ? 99 : 5, text) ? u"done"_s : u"no"_s);
        if (word == u"locked") db.Execute(u"PRAGMA query_only = ON"_s);
        if (word == u"free") db.Execute(u"PRAGMA query_only = OFF"_s);
        recipe.Seek(u"="_s, 5);
        row << (note.isOpen() ? u"open"_s : u"shut"_s) + (note.isDirty() ? u"*"_s : QString())
            << (recipe.field(u"Vlastni"_s).isNull() ? u"null"_s : note.stored())
            << u"draft "_s + kept.draft(5).value_or(u"none"_s);
        for (const KeptNote& one : kept.all()) row << u"%1 %2: %3"_s.arg(one.recipe).arg(one.name, one.text);
        all << row.join(u", "_s);
    }
    return all.join(u" / "_s);
}

TEST(OwnNoteTest, IsKeptAsItWasWritten) {
    test::expectCases(u"poznamky"_s, &told);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
