#include "db/userfile.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QFile>

#include "db/recipemarks.h"
#include "db/schema.h"
#include "db/soundsettings.h"
#include "support/files.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

class UserFileTest : public testing::Test {
  protected:
    /// What the table \a name has, row by row.
    static QStringList rows(Database& db, const QString& name, const QStringList& fields) {
        QStringList all;
        for (Recordset row = db.OpenTable(name); !row.AtEnd(); row.MoveNext()) {
            QStringList values;
            for (const QString& field : fields) values << row.field(field).toString();
            all << values.join(u' ');
        }
        return all;
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"data/vlastni.db"_s);
    UserFile file{path};
};

TEST_F(UserFileTest, AnOlderFileGetsWhatItLacksAndANewerOneIsLeftAsItIs) {
    const auto version = [&](Database& db) {
        return db.OpenQuery(u"PRAGMA user_version"_s).field(u"user_version"_s).toInt();
    };
    Database old;
    ASSERT_TRUE(test::write(path) && old.Open(path) && old.makeTables({userSchema().first()}));
    EXPECT_EQ(version(old), 1);
    ASSERT_TRUE(old.Execute(u"INSERT INTO Hodnoty VALUES ('a','1')"_s));
    old.Close();
    EXPECT_EQ(file.value(u"a"_s), u"1"_s) << "reading alone makes it a new one";
    EXPECT_EQ(version(file.forReading()), userSchema().size());
    EXPECT_TRUE(RecipeMarks(file).setStars(5, u"Kapr"_s, 2));
    ASSERT_TRUE(file.forWriting().Execute(u"PRAGMA user_version = 99"_s));
    UserFile newer(path);
    EXPECT_EQ(newer.value(u"a"_s), u"1"_s);
    EXPECT_EQ(version(newer.forReading()), 99);
}

TEST_F(UserFileTest, AllRowsAreReplacedOrNone) {
    const auto timer = [](int id) { return QHash<QString, QVariant>{{u"ID"_s, id}, {u"Nazev"_s, u"x"_s}}; };
    const auto kept = [&] { return rows(file.forReading(), u"Casovace"_s, {u"ID"_s, u"Nazev"_s}); };
    EXPECT_TRUE(file.replaceAll(u"Casovace"_s, {timer(1), timer(2)}));
    EXPECT_FALSE(file.replaceAll(u"Casovace"_s, {timer(3), timer(4), timer(3)}));
    EXPECT_EQ(kept(), (QStringList{u"1 x"_s, u"2 x"_s}));
    EXPECT_FALSE(file.replaceAll(u"Neni"_s, {}));
    EXPECT_TRUE(file.replaceAll(u"Casovace"_s, {}));
    EXPECT_EQ(kept(), QStringList());
}

TEST_F(UserFileTest, StarsAndTheLastLookAreKeptByNumberAndName) {
    RecipeMarks marks(file);
    EXPECT_EQ(marks.stars(5, u"Kapr"_s), 0);
    for (const auto& [given, kept] : {std::pair(3, 3), {9, 5}, {-1, 0}, {4, 4}}) {
        EXPECT_TRUE(marks.setStars(5, u"Kapr"_s, given));
        EXPECT_EQ(marks.stars(5, u"Kapr"_s), kept);
    }
    EXPECT_EQ(marks.stars(5, u"Lín"_s), 0) << "another recipe with its number";
    EXPECT_EQ(marks.stars(6, u"Kapr"_s), 0);
    EXPECT_FALSE(marks.all().front().opened.isValid());
    const QDateTime when({2026, 12, 1}, {18, 30, 5});
    EXPECT_TRUE(marks.keepOpened(5, u"Kapr"_s, when));
    ASSERT_EQ(marks.all().size(), 1U);
    const RecipeMark mark = marks.all().front();
    EXPECT_EQ(mark.opened, when);
    EXPECT_EQ(mark.stars, 4) << "looking at it takes none away";
    EXPECT_EQ(mark.name + QString::number(mark.recipe), u"Kapr5"_s);
    ASSERT_TRUE(file.forWriting().Execute(u"UPDATE Kucharka SET Hvezdy = 77"_s));
    EXPECT_EQ(marks.stars(5, u"Kapr"_s), 5);
}

TEST_F(UserFileTest, CopiesAreKeptUnderFreeNamesThatTellTheirDay) {
    const QString today = path + u'.' + QDate::currentDate().toString(Qt::ISODate);
    for (const QString& expected : {today, today + u"-2"_s, today + u"-3"_s}) {
        EXPECT_EQ(keptAsideName(path), expected);
        ASSERT_TRUE(test::write(expected));
    }
    for (const char* other :
         {".origin", ".2026-1-1", ".3026-01-01", ".2026-41-01", ".2026-01-01x", "-journal"})
        ASSERT_TRUE(test::write(path + QLatin1String(other)));
    const QString oldest = path + u".2019-12-31"_s;
    ASSERT_TRUE(test::write(oldest));
    QFile changed(oldest);
    ASSERT_TRUE(changed.open(QIODevice::ReadWrite) &&
                changed.setFileTime(QDateTime({2019, 12, 31}, {1, 0}), QFile::FileModificationTime));
    EXPECT_EQ(keptAsideCopies(path).size(), 4);
    EXPECT_EQ(keptAsideCopies(path).front(), oldest);
}

TEST_F(UserFileTest, SwitchesAreTheFirstFiveRowsAndWrittenWhereTheyDiffer) {
    Database book;
    const auto open = [&](const char* values) {
        book.Close();
        QFile::remove(folder.filePath(u"Sarne.drc"_s));
        return book.Open(test::writeRecipeDatabase(
            folder.filePath(u"Sarne.drc"_s), {u"INSERT INTO Nastav VALUES "_s + QLatin1String(values)}));
    };
    const auto bits = [&] {
        QString all;
        for (const SoundSetting& one : readSoundSettings(book)) all += one.name + (one.on ? u'1' : u'0');
        return all;
    };
    ASSERT_TRUE(open("(3,'c',1),(1,'a',1),(9,'f',1),(2,'b',2),(4,'d',0),(5,'e',1)"));
    EXPECT_EQ(bits(), u"a1b0c1d0e1"_s);
    EXPECT_EQ(storeSoundSettings(book, {true, false, true, false, true, false}), 0);
    EXPECT_EQ(storeSoundSettings(book, {false, true, true, false, true, false}), 2);
    EXPECT_EQ(rows(book, u"Nastav"_s, {u"hodnota"_s}).join(u' '), u"0 1 1 0 1 1"_s)
        << "the sixth is no switch";
    EXPECT_EQ(storeSoundSettings(book, {true}), 1);
    EXPECT_EQ(bits(), u"a1b1c1d0e1"_s);
    ASSERT_TRUE(open("(1,'a',1),(2,'b',0)"));
    EXPECT_EQ(bits(), u"a1b0"_s);
    EXPECT_EQ(storeSoundSettings(book, {false, true, true, true}), 2);
    book.Close();
    EXPECT_EQ(storeSoundSettings(book, {true}), 0);
    EXPECT_EQ(bits(), QString());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
