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
        writeRecipeDatabase(book, folder_->filePath(u"Sarne.drc"_s), problems, u"abc"_s);
        errors_ = problems.errors().join(u'\n').toStdString();
    }
    static void TearDownTestSuite() { delete folder_; }

    void SetUp() override {
        ASSERT_EQ(errors_, "");
        ASSERT_TRUE(db_.Open(folder_->filePath(u"Sarne.drc"_s)));
    }

    qint64 count(const QString& query) { return db_.OpenQuery(query).RecordCount(); }

    static inline QTemporaryDir* folder_ = nullptr;
    static inline std::string errors_;
    Database db_;
};

TEST_F(ShippedTest, HasWhatTheProgramCountsOn) {
    EXPECT_EQ(count(u"SELECT * FROM Recepty"_s), 50);
    EXPECT_EQ(count(u"SELECT * FROM Nastav"_s), 5);
    EXPECT_GE(count(u"SELECT * FROM IndexHesla WHERE id < 800"_s), 130);
    EXPECT_GE(count(u"SELECT * FROM Odkazy"_s), 16);
    EXPECT_EQ(count(u"SELECT * FROM IndexHesla, Odkazy WHERE IndexHesla.id = Odkazy.id + 800"_s),
              count(u"SELECT * FROM Odkazy"_s));
    EXPECT_GE(count(u"SELECT * FROM Vino"_s), 25);
    EXPECT_GE(count(u"SELECT * FROM RychleRecepty"_s), 30);
    EXPECT_GE(count(u"SELECT * FROM Help"_s), 15);
    EXPECT_GE(count(u"SELECT * FROM Suroviny WHERE Polozka LIKE 'kap*'"_s), 3);
    EXPECT_EQ(count(u"SELECT * FROM Menu WHERE ID LIKE '0*'"_s), 0);
    for (const auto& [fact, value] :
         {std::pair{"Vydani", "1"}, {"Otisk", "abc"}, {"Skupina3", "Slavnostní mísy"}})
        EXPECT_EQ(bookFact(db_, QLatin1String(fact)), QString::fromUtf8(value)) << fact;
}

TEST_F(ShippedTest, EveryTextIsADocumentThatTheRendererReads) {
    Recordset recipes = db_.OpenTable(u"Recepty"_s);
    for (recipes.MoveFirst(); !recipes.AtEnd(); recipes.MoveNext()) {
        for (const char* field : {"Recept", "Uvod", "Prezentace", "Poznamka", "vino"}) {
            const QString text = recipes.field(QLatin1String(field)).toString();
            EXPECT_TRUE(text.startsWith(u"{\\rtf1"_s) && text.endsWith(u'}')) << field;
            EXPECT_EQ(text.count(u'*') % 2, 0) << field;
            EXPECT_EQ(text.count(u'@') % 2, 0) << field;
            EXPECT_EQ(text.count(u'{'), text.count(u'}')) << field;
        }
        EXPECT_TRUE(recipes.field(u"Vlastni"_s).isNull());
    }
}

TEST_F(ShippedTest, EveryScreenHasItsHelp) {
    for (const char* screen : {"frmHlavni", "frmMenu", "frmSeznam", "frmRychlyRecept", "frmSit", "frmFotoBig",
                               "frmRecept", "frmVideo", "frmNastavHudbu", "frmSave", "frmPrint", "FrmTabulky",
                               "frmIndex", "frmSponzor", "frmStranka"})
        EXPECT_EQ(count(u"SELECT * FROM Stranky WHERE Obrazovka LIKE '*%1*'"_s.arg(QLatin1String(screen))), 1)
            << screen;
}

TEST_F(ShippedTest, NotesSurviveANewEdition) {
    const QString file = folder_->filePath(u"Own.drc"_s);
    ASSERT_TRUE(QFile::copy(folder_->filePath(u"Sarne.drc"_s), file));
    Database own;
    ASSERT_TRUE(own.Open(file) && own.Execute(u"UPDATE Recepty SET Vlastni = 'víc citronu' WHERE ID = 6"_s));
    own.Close();
    Problems problems;
    const ContentFolder content(QStringLiteral(SARNE_CONTENT), problems);
    writeRecipeDatabase(loadCookbook(content, problems), file, problems);
    ASSERT_TRUE(own.Open(file));
    EXPECT_EQ(own.OpenQuery(u"SELECT Vlastni FROM Recepty WHERE ID = 6"_s).field(u"Vlastni"_s),
              u"víc citronu"_s);
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
