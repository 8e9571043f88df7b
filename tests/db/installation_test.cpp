#include "db/installation.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

#include "db/database.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

class InstallationTest : public testing::Test {
  protected:
    void SetUp() override {
        QDir(folder.path()).mkpath(QStringLiteral("program"));
        QDir(folder.path()).mkpath(QStringLiteral("data"));
        shipped = folder.filePath(QStringLiteral("program/Sarne.drc"));
        own = folder.filePath(QStringLiteral("data/Sarne.drc"));
        ship("'Kapr'");
    }
    void ship(const char* name) {
        QFile::remove(shipped);
        test::writeRecipeDatabase(
            shipped,
            {QStringLiteral("INSERT INTO Recepty (ID,Nazev) VALUES (1,%1)").arg(QString::fromUtf8(name)),
             QStringLiteral("INSERT INTO Nastav VALUES (1,'Hudba',1)")});
    }
    static QString read(const QString& file, const char* table, const char* field) {
        Database db;
        db.Open(file);
        return db.OpenTable(QLatin1String(table)).field(QLatin1String(field)).toString();
    }
    static void write(const QString& file, const char* table, const char* field, const QVariant& value) {
        Database db;
        ASSERT_TRUE(db.Open(file));
        Recordset rows = db.OpenTable(QLatin1String(table));
        rows.Edit();
        rows.setField(QLatin1String(field), value);
        ASSERT_TRUE(rows.Update());
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
        ASSERT_EQ(chmod(qPrintable(folder.filePath(QStringLiteral("program"))), 0555), 0);
        ASSERT_EQ(chmod(qPrintable(folder.filePath(QStringLiteral("data"))), 0777), 0);
    }
    void TearDown() override { chmod(qPrintable(folder.filePath(QStringLiteral("program"))), 0755); }

    QTemporaryDir folder;
    QString shipped, own;
};

TEST_F(InstallationTest, AWritableFileIsUsedWhereItLies) {
    EXPECT_EQ(usableRecipeDatabase(shipped, own), shipped);
    EXPECT_FALSE(QFile::exists(own));
}

TEST_F(InstallationTest, AReadOnlyProgramFolderLeadsToAnOwnCopyThatKeepsNotes) {
    protectProgramFolder();
    ASSERT_EQ(asOrdinaryUser([&] {
                  if (usableRecipeDatabase(shipped, own) != own) return 1;
                  write(own, "Recepty", "Vlastni", QStringLiteral("moje"));
                  write(own, "Nastav", "hodnota", 0);
                  return usableRecipeDatabase(shipped, own) == own ? 0 : 2;
              }),
              0);
    EXPECT_EQ(read(own, "Recepty", "Vlastni"), QStringLiteral("moje"));

    chmod(qPrintable(folder.filePath(QStringLiteral("program"))), 0755);
    ship("'Kapr na kmíně'");
    protectProgramFolder();
    ASSERT_EQ(asOrdinaryUser([&] { return usableRecipeDatabase(shipped, own) == own ? 0 : 1; }), 0);
    EXPECT_EQ(read(own, "Recepty", "Nazev"), QStringLiteral("Kapr na kmíně")) << "the newer file's recipe";
    EXPECT_EQ(read(own, "Recepty", "Vlastni"), QStringLiteral("moje")) << "the user's note";
    EXPECT_EQ(read(own, "Nastav", "hodnota"), QStringLiteral("0"));
}

TEST_F(InstallationTest, WhereNothingCanBeWrittenTheShippedFileIsRead) {
    protectProgramFolder();
    chmod(qPrintable(folder.filePath(QStringLiteral("data"))), 0555);
    EXPECT_EQ(asOrdinaryUser([&] {
                  Database db;
                  const bool opens = usableRecipeDatabase(shipped, own) == shipped && db.Open(shipped);
                  Recordset rows = db.OpenTable(QStringLiteral("Recepty"));
                  rows.Edit();
                  rows.setField(QStringLiteral("Vlastni"), QStringLiteral("x"));
                  return opens && !rows.AtEnd() && !rows.Update() ? 0 : 1;
              }),
              0);
}

}  // namespace
}  // namespace sarne
