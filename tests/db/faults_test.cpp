#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <random>

#include "db/database.h"
#include "support/files.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

class DatabaseFaults : public testing::Test {
  protected:
    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    QString fileOf(const char* name, const QByteArray& bytes) const {
        EXPECT_TRUE(test::write(path(name), bytes));
        return path(name);
    }
    QString recipes() const {
        return test::writeRecipeDatabase(path("Sarne.drc"),
                                         {u"INSERT INTO Recepty (ID,Nazev) VALUES (1,'Kapr')"_s});
    }
    static bool storeNote(Database& db, const QString& note) {
        Recordset rows = db.OpenTable(u"Recepty"_s);
        rows.Edit();
        rows.setField(u"Vlastni"_s, note);
        return rows.Update();
    }
    static QString note(Database& db) { return db.OpenTable(u"Recepty"_s).field(u"Vlastni"_s).toString(); }

    QTemporaryDir folder;
};

TEST_F(DatabaseFaults, WhatIsNoDatabaseStaysEmpty) {
    const QString foreign = path("foreign");
    SQLite::Database(foreign.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("CREATE TABLE Recepty (jine TEXT)");
    for (const QString& file :
         {path("missing"), fileOf("empty", {}), fileOf("garbage", QByteArray(9000, 'x')), foreign,
          folder.path(), fileOf("half", "SQLite format 3\0abc")}) {
        Database db;
        db.Open(file);
        Recordset rows = db.OpenTable(u"Recepty"_s);
        rows.Seek(u"="_s, 1);
        EXPECT_TRUE(rows.NoMatch());
        EXPECT_TRUE(rows.field(u"Nazev"_s).isNull());
        EXPECT_FALSE(storeNote(db, u"x"_s)) << file.toStdString();
        EXPECT_EQ(db.OpenQuery(u"SELECT * FROM Suroviny"_s).RecordCount(), 0);
    }
    EXPECT_FALSE(Database().Open(path("garbage")));
    Database none;
    EXPECT_FALSE(none.isSound() || none.Execute(u"SELECT 1"_s) || none.keepInMemory(u"Menu"_s) ||
                 none.makeTables({}) || none.transaction([] { return true; }));
    EXPECT_FALSE(none.OpenQuery(u"SELECT 1"_s).isOpen() || none.OpenTable(u"Menu"_s).isOpen());
}

TEST_F(DatabaseFaults, AFullDiskLosesNeitherTheOldNoteNorTheSearch) {
    const QString file = recipes();
    const pid_t child = fork();
    if (child == 0) {
        Database db;
        bool asExpected = db.Open(file) && storeNote(db, u"stará"_s) && db.keepInMemory(u"Menu"_s);
        // From here on no file may grow: the disk is full.
        signal(SIGXFSZ, SIG_IGN);
        const rlimit none{512, 512};
        setrlimit(RLIMIT_FSIZE, &none);
        asExpected = asExpected && !storeNote(db, QString(100000, u'n')) && note(db) == u"stará";
        asExpected = asExpected && db.Execute(u"INSERT INTO Menu VALUES ('001','kapr','1')"_s) &&
                     db.OpenQuery(u"SELECT * FROM menu WHERE ID LIKE '0*' ORDER BY Id"_s).RecordCount() == 1;
        _exit(asExpected ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    Database db;
    ASSERT_TRUE(db.Open(file));
    EXPECT_EQ(note(db), u"stará"_s);
}

/// Stores notes with rising numbers until it is killed, telling each number once it is stored.
[[noreturn]] void storeForEver(const QString& file, int pipe) {
    Database db;
    if (!db.Open(file)) _exit(1);
    for (int number = 1;; ++number) {
        Recordset rows = db.OpenTable(u"Recepty"_s);
        rows.Edit();
        rows.setField(u"Vlastni"_s, QString::number(number).rightJustified(5000, u'0'));
        if (!rows.Update() || write(pipe, &number, sizeof number) != sizeof number) _exit(1);
    }
}

TEST_F(DatabaseFaults, NoStoredNoteIsLostToAKill) {
    const QString file = recipes();
    std::mt19937 random(20);
    for (int round = 0; round < 200; ++round) {
        int pipe[2];
        ASSERT_EQ(::pipe(pipe), 0);
        const pid_t child = fork();
        if (child == 0) storeForEver(file, pipe[1]);
        close(pipe[1]);
        int stored = 0, number = 0;
        ASSERT_EQ(read(pipe[0], &stored, sizeof stored), ssize_t(sizeof stored));
        usleep(random() % 4000);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        while (read(pipe[0], &number, sizeof number) == ssize_t(sizeof number)) stored = number;
        close(pipe[0]);

        Database db;
        ASSERT_TRUE(db.Open(file));
        ASSERT_EQ(note(db).size(), 5000);
        ASSERT_GE(note(db).toInt(), stored);
        ASSERT_LE(note(db).toInt(), stored + 1);
    }
    Database db;
    ASSERT_TRUE(db.Open(file));
    EXPECT_EQ(db.OpenQuery(u"PRAGMA integrity_check"_s).field(u"integrity_check"_s).toString(), u"ok"_s);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
