#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "db/bookfact.h"
#include "db/database.h"
#include "disc/loadcookbook.h"
#include "disc/writedatabase.h"

namespace sarne::disc {
namespace {

/// The cookbook that ships, written as a database once for all tests.
class ShippedTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder_ = new QTemporaryDir;
        Problems problems(Edition::release);
        const ContentFolder content(QStringLiteral(SARNE_CONTENT), problems);
        const Cookbook book = loadCookbook(content, problems);
        proofread(content, book, problems);
        writeRecipeDatabase(book, folder_->filePath(QStringLiteral("Sarne.drc")), problems,
                            QStringLiteral("abc"));
        errors_ = problems.errors().join(u'\n').toStdString();
    }
    static void TearDownTestSuite() { delete folder_; }

    void SetUp() override {
        ASSERT_EQ(errors_, "");
        ASSERT_TRUE(db_.Open(folder_->filePath(QStringLiteral("Sarne.drc"))));
    }

    qint64 count(const QString& query) { return db_.OpenQuery(query).RecordCount(); }

    static inline QTemporaryDir* folder_ = nullptr;
    static inline std::string errors_;
    Database db_;
};

TEST_F(ShippedTest, HasWhatTheProgramCountsOn) {
    EXPECT_EQ(count(QStringLiteral("SELECT * FROM Recepty")), 50);
    EXPECT_EQ(count(QStringLiteral("SELECT * FROM Nastav")), 5);
    EXPECT_GE(count(QStringLiteral("SELECT * FROM IndexHesla WHERE id < 800")), 130);
    EXPECT_GE(count(QStringLiteral("SELECT * FROM Odkazy")), 16);
    EXPECT_EQ(count(QStringLiteral("SELECT * FROM IndexHesla, Odkazy WHERE IndexHesla.id = Odkazy.id + 800")),
              count(QStringLiteral("SELECT * FROM Odkazy")));
    EXPECT_GE(count(QStringLiteral("SELECT * FROM Vino")), 25);
    EXPECT_GE(count(QStringLiteral("SELECT * FROM RychleRecepty")), 30);
    EXPECT_GE(count(QStringLiteral("SELECT * FROM Help")), 15);
    EXPECT_GE(count(QStringLiteral("SELECT * FROM Suroviny WHERE Polozka LIKE 'kap*'")), 3);
    EXPECT_EQ(count(QStringLiteral("SELECT * FROM Menu WHERE ID LIKE '0*'")), 0);
    for (const auto& [fact, value] :
         {std::pair{"Vydani", "1"}, {"Otisk", "abc"}, {"Skupina3", "Slavnostní mísy"}})
        EXPECT_EQ(bookFact(db_, QLatin1String(fact)), QString::fromUtf8(value)) << fact;
}

TEST_F(ShippedTest, EveryTextIsADocumentThatTheRendererReads) {
    Recordset recipes = db_.OpenTable(QStringLiteral("Recepty"));
    for (recipes.MoveFirst(); !recipes.AtEnd(); recipes.MoveNext()) {
        for (const char* field : {"Recept", "Uvod", "Prezentace", "Poznamka", "vino"}) {
            const QString text = recipes.field(QLatin1String(field)).toString();
            EXPECT_TRUE(text.startsWith(QStringLiteral("{\\rtf1")) && text.endsWith(u'}')) << field;
            EXPECT_EQ(text.count(u'*') % 2, 0) << field;
            EXPECT_EQ(text.count(u'@') % 2, 0) << field;
            EXPECT_EQ(text.count(u'{'), text.count(u'}')) << field;
        }
        EXPECT_TRUE(recipes.field(QStringLiteral("Vlastni")).isNull());
    }
}

TEST_F(ShippedTest, EveryScreenHasItsHelp) {
    for (const char* screen : {"frmHlavni", "frmMenu", "frmSeznam", "frmRychlyRecept", "frmSit", "frmFotoBig",
                               "frmRecept", "frmVideo", "frmNastavHudbu", "frmSave", "frmPrint", "FrmTabulky",
                               "frmIndex", "frmSponzor", "frmStranka"})
        EXPECT_EQ(count(QStringLiteral("SELECT * FROM Stranky WHERE Obrazovka LIKE '*%1*'")
                            .arg(QLatin1String(screen))),
                  1)
            << screen;
}

TEST_F(ShippedTest, NotesSurviveANewEdition) {
    const QString file = folder_->filePath(QStringLiteral("Own.drc"));
    ASSERT_TRUE(QFile::copy(folder_->filePath(QStringLiteral("Sarne.drc")), file));
    Database own;
    ASSERT_TRUE(own.Open(file));
    Recordset recipes = own.OpenTable(QStringLiteral("Recepty"));
    recipes.Seek(QStringLiteral("="), 6);
    recipes.Edit();
    recipes.setField(QStringLiteral("Vlastni"), QStringLiteral("víc citronu"));
    ASSERT_TRUE(recipes.Update());
    recipes.Close();
    own.Close();

    Problems problems;
    const ContentFolder content(QStringLiteral(SARNE_CONTENT), problems);
    writeRecipeDatabase(loadCookbook(content, problems), file, problems);
    ASSERT_TRUE(own.Open(file));
    Recordset renewed = own.OpenTable(QStringLiteral("Recepty"));
    renewed.Seek(QStringLiteral("="), 6);
    EXPECT_EQ(renewed.field(QStringLiteral("Vlastni")).toString(), QStringLiteral("víc citronu"));
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
