#include "db/installation.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <functional>

#include "db/database.h"
#include "support/files.h"
#include "support/recipedatabase.h"

namespace {
/// Called with the path of everything that is forced onto the disk.
std::function<void(const QString&)> onSync;
}  // namespace

/// In the place of the system's own, which it calls.
extern "C" int fsync(int file) {
    if (onSync) onSync(QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(file)));
    return int(syscall(SYS_fsync, file));
}

namespace sarne {
namespace {

class InstallationTest : public testing::Test {
  protected:
    void SetUp() override {
        QDir(folder.path()).mkpath(u"program"_s);
        QDir(folder.path()).mkpath(u"data"_s);
        shipped = folder.filePath(u"program/Sarne.drc"_s);
        own = folder.filePath(u"data/Sarne.drc"_s);
        ship("'Kapr'");
    }
    /// \a facts are rows of what the book says of itself.
    void ship(const char* name, const char* facts = "") {
        QFile::remove(shipped);
        test::writeRecipeDatabase(
            shipped, {u"INSERT INTO Recepty (ID,Nazev) VALUES (1,%1)"_s.arg(QString::fromUtf8(name)),
                      u"INSERT INTO Nastav VALUES (1,'Hudba',1)"_s, QLatin1String(facts)});
        setTime(0);  // as package formats do with all files
    }
    void setTime(time_t seconds) {
        const timespec time{seconds, 0};
        const timespec times[] = {time, time};
        ASSERT_EQ(utimensat(AT_FDCWD, qPrintable(shipped), times, 0), 0);
    }
    static ino_t inode(const QString& file) {
        struct stat info {};
        return stat(qPrintable(file), &info) == 0 ? info.st_ino : 0;
    }
    static QString read(const QString& file, const char* table, const char* field) {
        Database db;
        db.Open(file);
        return db.OpenTable(QLatin1String(table)).field(QLatin1String(field)).toString();
    }
    static void write(const QString& file, const QString& change) {
        Database db;
        ASSERT_TRUE(db.Open(file) && db.Execute(change));
    }
    /// Runs \a body as a user who cannot write the program folder, in a process of its own.
    template <typename Body>
    int asOrdinaryUser(Body body) {
        const pid_t child = fork();
        if (child == 0) {
            if (geteuid() == 0 && setuid(65534) != 0) _exit(99);
            _exit(body());
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 98;
    }
    void protectProgramFolder() {
        QFile::setPermissions(shipped, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
        QFile::setPermissions(folder.path(), QFile::Permissions(0x7755));
        ASSERT_EQ(chmod(qPrintable(folder.path()), 0755), 0);
        ASSERT_EQ(chmod(qPrintable(folder.filePath(u"program"_s)), 0555), 0);
        ASSERT_EQ(chmod(qPrintable(folder.filePath(u"data"_s)), 0777), 0);
    }
    /// The program starts with the shipped file, which it cannot write: it uses the own copy.
    void start() {
        ASSERT_EQ(asOrdinaryUser([&] { return usableRecipeDatabase(shipped, own).file == own ? 0 : 1; }), 0);
    }
    void TearDown() override { chmod(qPrintable(folder.filePath(u"program"_s)), 0755); }

    QTemporaryDir folder;
    QString shipped, own;
};

TEST_F(InstallationTest, AWritableFileIsUsedWhereItLiesAndTheOwnCopyWithoutOne) {
    EXPECT_EQ(usableRecipeDatabase(shipped, own).file, shipped);
    EXPECT_FALSE(QFile::exists(own));
    QFile::remove(shipped);
    EXPECT_EQ(usableRecipeDatabase(shipped, own).file, shipped);
    ASSERT_TRUE(test::write(own));
    EXPECT_EQ(usableRecipeDatabase(shipped, own).file, own);
}

TEST_F(InstallationTest, AReadOnlyProgramFolderLeadsToAnOwnCopyThatKeepsNotes) {
    protectProgramFolder();
    const QString journal = own + u"-journal"_s;
    ASSERT_TRUE(test::write(journal, "of a copy that is gone"));
    ASSERT_EQ(asOrdinaryUser([&] {
                  if (usableRecipeDatabase(shipped, own).file != own) return 1;
                  write(own, u"UPDATE Recepty SET Vlastni = 'moje'"_s);
                  write(own, u"UPDATE Nastav SET hodnota = 0"_s);
                  return usableRecipeDatabase(shipped, own).file == own ? 0 : 2;
              }),
              0);
    EXPECT_FALSE(QFile::exists(journal)) << "it would spoil the new one";
    EXPECT_EQ(read(own, "Recepty", "Vlastni"), u"moje"_s);

    const qint64 size = QFileInfo(shipped).size();
    chmod(qPrintable(folder.filePath(u"program"_s)), 0755);
    ship("'Kapr na kmíně'");
    ASSERT_EQ(QFileInfo(shipped).size(), size) << "neither time nor size tells the two apart";
    protectProgramFolder();
    start();
    EXPECT_EQ(read(own, "Recepty", "Nazev"), u"Kapr na kmíně"_s) << "the newer file's recipe";
    EXPECT_EQ(read(own, "Recepty", "Vlastni"), u"moje"_s) << "the user's note";
    EXPECT_EQ(read(own, "Nastav", "hodnota"), u"0"_s);

    const ino_t copy = inode(own);
    setTime(1000000000);
    start();
    EXPECT_EQ(inode(own), copy) << "the same book is not copied again, whatever its time";
}

TEST_F(InstallationTest, ACopyIsOnTheDiskBeforeItsNameAndItsNameBeforeItsMark) {
    protectProgramFolder();
    ASSERT_EQ(asOrdinaryUser([&] {
                  bool copy = false, name = false;
                  onSync = [&](const QString& path) {
                      copy |= path == own + u".new"_s && QFile::exists(path);
                      name |= path + u"/Sarne.drc"_s == own && copy && QFile::exists(own) &&
                              !QFile::exists(own + u".origin"_s);
                  };
                  return usableRecipeDatabase(shipped, own).file == own && copy && name ? 0 : 1;
              }),
              0);
}

TEST_F(InstallationTest, AnotherEditionIsOneOfAnotherNumberOrDigest) {
    const char* const editions[][3] = {
        {"'Kapr'", "INSERT INTO Kniha VALUES (1,'Vydani','1'),(2,'Otisk','a')", "Kapr"},
        {"'Lín'", "INSERT INTO Kniha VALUES (1,'Vydani','2'),(2,'Otisk','a')", "Lín"},
        {"'Sum'", "INSERT INTO Kniha VALUES (1,'Vydani','2'),(2,'Otisk','b')", "Sum"},
        {"'Úhoř'", "INSERT INTO Kniha VALUES (1,'Vydani','2'),(2,'Otisk','b')", "Sum"}};
    for (const auto& [name, facts, shown] : editions) {
        chmod(qPrintable(folder.filePath(u"program"_s)), 0755);
        ship(name, facts);
        protectProgramFolder();
        start();
        EXPECT_EQ(read(own, "Recepty", "Nazev"), QString::fromUtf8(shown));
    }
}

TEST_F(InstallationTest, WhereNothingCanBeWrittenTheShippedFileIsRead) {
    protectProgramFolder();
    chmod(qPrintable(folder.filePath(u"data"_s)), 0555);
    EXPECT_EQ(asOrdinaryUser([&] {
                  Database db;
                  const bool opens = usableRecipeDatabase(shipped, own).file == shipped && db.Open(shipped);
                  Recordset rows = db.OpenTable(u"Recepty"_s);
                  rows.Edit();
                  rows.setField(u"Vlastni"_s, u"x"_s);
                  return opens && !rows.AtEnd() && !rows.Update() ? 0 : 1;
              }),
              0);
}

TEST_F(InstallationTest, FileAndFolderMustBothBeWritable) {
    protectProgramFolder();
    chmod(qPrintable(folder.filePath(u"program"_s)), 0777);
    start();  // a read-only file in a writable folder, as it comes from a disc
    protectProgramFolder();
    QFile::setPermissions(shipped, QFile::Permissions(0x6666));
    start();
}

/// Notes in an own copy of many pages, some of which are then damaged.
class DamagedCopyTest : public InstallationTest {
  protected:
    void SetUp() override {
        InstallationTest::SetUp();
        QFile::remove(shipped);
        QStringList rows{u"INSERT INTO Nastav VALUES (1,'Hudba',1)"_s};
        for (int id = 1; id <= 50; ++id)
            rows << u"INSERT INTO Recepty (ID,Nazev,Recept) VALUES (%1,'Kapr %1','%2')"_s.arg(id).arg(
                QString(3000, u'x'));
        test::writeRecipeDatabase(shipped, rows);
        protectProgramFolder();
        start();
        ASSERT_EQ(asOrdinaryUser([&] {
                      write(own, u"UPDATE Recepty SET Vlastni = 'moje ' || ID WHERE ID < 4"_s);
                      return HasFailure() ? 1 : 0;
                  }),
                  0);
    }
    void damage(qint64 at, const QByteArray& bytes) {
        QFile file(own);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.seek(at);
        file.write(bytes);
    }
    qint64 lastRecipesPage() const { return test::bytesOf(own).lastIndexOf("Kapr 50") / 4096 * 4096; }
    QString note(int id) {
        Database db;
        db.Open(own);
        return db.OpenQuery(u"SELECT Vlastni FROM Recepty WHERE ID = %1"_s.arg(id))
            .field(u"Vlastni"_s)
            .toString();
    }
    QStringList aside() { return QDir(folder.filePath(u"data"_s)).entryList({u"Sarne.drc.2*"_s}); }
};

TEST_F(DamagedCopyTest, OneBadPageCostsNoOtherNote) {
    damage(lastRecipesPage(), QByteArray(8, '\xEE'));
    start();
    for (const int id : {1, 2, 3}) EXPECT_EQ(note(id), u"moje %1"_s.arg(id));
    EXPECT_EQ(read(own, "Recepty", "Nazev"), u"Kapr 1"_s);
    EXPECT_EQ(aside().size(), 1) << "the damaged copy is kept";
    start();
    EXPECT_EQ(aside().size(), 1) << "and only once";
}

TEST_F(DamagedCopyTest, ACopyThatDoesNotOpenIsReplacedAndKept) {
    for (const qint64 size : {qint64(0), qint64(100), qint64(20000)}) {
        QFile::resize(own, size);
        start();
        EXPECT_EQ(read(own, "Recepty", "Nazev"), u"Kapr 1"_s) << size;
        damage(0, QByteArray(200, 'x'));
        start();
        EXPECT_EQ(read(own, "Recepty", "Nazev"), u"Kapr 1"_s) << size;
    }
    EXPECT_EQ(aside().size(), 6);
}

TEST_F(DamagedCopyTest, ADamagedShippedFileLeavesTheOwnCopyInUse) {
    chmod(qPrintable(folder.filePath(u"program"_s)), 0755);
    QFile::remove(shipped);
    ASSERT_TRUE(test::write(shipped));
    protectProgramFolder();
    start();
    EXPECT_EQ(note(2), u"moje 2"_s);
}

TEST_F(DamagedCopyTest, ANoteWithoutARecipeIsHandedOver) {
    const QString newer = folder.filePath(u"newer.drc"_s);
    test::writeRecipeDatabase(newer, {u"INSERT INTO Recepty (ID,Nazev) VALUES (2,'Kapr 2')"_s});
    const CarriedData carried = carryOverUserData(own, newer);
    EXPECT_TRUE(carried.stored);
    ASSERT_EQ(carried.homeless.size(), 2U);
    EXPECT_EQ(carried.homeless[1].name, u"Kapr 3"_s);
    EXPECT_EQ(carried.homeless[1].text, u"moje 3"_s);
    EXPECT_EQ(read(newer, "Recepty", "Vlastni"), u"moje 2"_s);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
