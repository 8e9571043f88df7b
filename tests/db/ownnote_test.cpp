#include "db/ownnote.h"

#include <gtest/gtest.h>

#include "db/database.h"
#include "db/userfile.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

class OwnNoteTest : public testing::Test {
  protected:
    void SetUp() override {
        const QString book = folder.filePath(QStringLiteral("Sarne.drc"));
        test::writeRecipeDatabase(
            book, {QStringLiteral("INSERT INTO Recepty (ID,Nazev,Vlastni) VALUES (5,'Kapr','stará')")});
        ASSERT_TRUE(db.Open(book));
        recipe = db.OpenTable(QStringLiteral("Recepty"));
    }

    QTemporaryDir folder;
    Database db;
    Recordset recipe;
    UserFile file{folder.filePath(QStringLiteral("vlastni.db"))};
    NoteStore kept{file};
    OwnNote note{recipe, kept};
};

TEST_F(OwnNoteTest, AStoredNoteLeavesACopyBesideTheBook) {
    EXPECT_EQ(note.open(), QStringLiteral("stará"));
    EXPECT_FALSE(note.isDirty());
    note.changed();
    note.close(OwnNote::Close::Save, QStringLiteral("nová"));
    ASSERT_EQ(kept.all().size(), 1U);
    EXPECT_EQ(kept.all()[0].recipe, 5);
    EXPECT_EQ(kept.all()[0].name, QStringLiteral("Kapr"));
    EXPECT_EQ(kept.all()[0].text, QStringLiteral("nová"));
    EXPECT_EQ(kept.draft(5), std::nullopt);
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
    ASSERT_TRUE(db.Execute(QStringLiteral("PRAGMA query_only = ON")));
    note.close(OwnNote::Close::Save, QStringLiteral("nová"));
    EXPECT_FALSE(note.isOpen()) << "it closes all the same";
    EXPECT_EQ(note.open(), QStringLiteral("nová"));
    EXPECT_TRUE(note.isDirty());
    EXPECT_EQ(note.stored(), QStringLiteral("stará"));

    ASSERT_TRUE(db.Execute(QStringLiteral("PRAGMA query_only = OFF")));
    note.close(OwnNote::Close::Save, QStringLiteral("nová"));
    EXPECT_EQ(note.open(), QStringLiteral("nová"));
    EXPECT_FALSE(note.isDirty());
    EXPECT_EQ(note.stored(), QStringLiteral("nová"));
}

TEST_F(OwnNoteTest, ADraftIsKeptAtASuddenEndAndForgottenWhenDeclined) {
    note.open();
    note.keepDraft(QStringLiteral("nic nového"));
    EXPECT_EQ(kept.draft(5), std::nullopt) << "an unchanged note needs none";
    note.changed();
    note.keepDraft(QStringLiteral("rozepsaná"));
    OwnNote later(recipe, kept);
    EXPECT_EQ(later.open(), QStringLiteral("rozepsaná"));
    later.close(OwnNote::Close::Discard, {});
    EXPECT_EQ(later.open(), QStringLiteral("stará"));
}

TEST_F(OwnNoteTest, ALineIsAddedBelowAlsoToWordsThatCouldNotBeStored) {
    EXPECT_TRUE(appendToNote(db, kept, 5, QStringLiteral("první")));
    recipe.Seek(QStringLiteral("="), 5);
    EXPECT_EQ(note.stored(), QStringLiteral("stará\nprvní"));
    kept.keepDraft(5, QStringLiteral("rozepsaná \n"));
    EXPECT_TRUE(appendToNote(db, kept, 5, QStringLiteral("druhá")));
    recipe.Seek(QStringLiteral("="), 5);
    EXPECT_EQ(note.stored(), QStringLiteral("rozepsaná\ndruhá"));
    EXPECT_EQ(kept.draft(5), std::nullopt);
    EXPECT_FALSE(appendToNote(db, kept, 99, QStringLiteral("nikam")));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
