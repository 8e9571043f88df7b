#include "platform/systemprinter.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QPainter>
#include <QStandardPaths>

#include "platform/pagesonsheet.h"
#include "platform/pdfnotes.h"
#include "support/kept.h"
#include "support/pdf.h"

namespace sarne {
namespace {

/// Prints into files of its own folder.
class SystemPrinterTest : public testing::Test {
  protected:
    /// Begins a document called \a name with \a words on its first page.
    QPainter* begin(const QString& name, const QString& words = u"Kapr"_s) {
        QPainter* painter = printer.begin(name);
        if (painter) painter->drawText(1000, 1000, words);
        return painter;
    }
    PrintedDocument end() {
        return printer.end([this] { ++waited; });
    }

    QTemporaryDir folder;
    SystemPrinter printer{folder.path()};
    int waited = 0;
};

TEST_F(SystemPrinterTest, WritesTheFileOfTheUsersChoice) {
    EXPECT_FALSE(printer.use({u"Tiskárna, která zmizela"_s}));
    EXPECT_TRUE(printer.choice().printer.isEmpty()) << "without it there is a file";
    EXPECT_EQ(printer.choice().folder, folder.path());
    EXPECT_EQ(SystemPrinter().choice().folder,
              QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    EXPECT_EQ(printer.fileFor(u"a/b:c. "_s), folder.filePath(u"a b c..pdf"_s));
    test::expectCases(u"jmena"_s, [](const QString& document) { return printFileName(document); });
    EXPECT_EQ(printFileName(QString(300, u'ř')).size(), 100) << "with its ending at most 255 bytes";

    PrinterChoice choice;
    choice.folder = folder.filePath(u"nová složka"_s);
    choice.file = u"vybraný"_s;
    ASSERT_TRUE(printer.use(choice));
    EXPECT_EQ(printer.choice(), choice);
    const QString file = choice.folder + u"/vybraný.pdf"_s;
    for (const QString& words : {u"Kapr"_s, u"Štika"_s}) {  // who prints has asked whether to replace it
        ASSERT_TRUE(begin(u"Ryby & <raky>"_s, words));
        EXPECT_EQ(printer.begin(u"Další"_s), nullptr) << "one at a time";
        const PrintedDocument document = end();
        EXPECT_TRUE(document.complete);
        EXPECT_EQ(document.file, file);
        EXPECT_EQ(test::pdfText(file).trimmed(), words);
    }
    EXPECT_FALSE(end().complete) << "nothing was begun";
    const QString info = test::output(u"pdfinfo"_s, {file});
    for (const char* told : {"Title: +Ryby & <raky>\n", "Creator: +Velisa sarn\n"})
        EXPECT_TRUE(info.contains(QRegularExpression(QLatin1String(told)))) << info.toStdString();
    test::expectText(u"udaje"_s, test::output(u"pdfinfo"_s, {u"-meta"_s, file}).trimmed());
}

TEST_F(SystemPrinterTest, AFileThatCannotBeWrittenFailsAndTheNextOneDoesNot) {
    PrinterChoice choice;
    choice.folder = u"/proc/none"_s;
    printer.use(choice);
    EXPECT_EQ(begin(u"Kapr"_s), nullptr);
    EXPECT_FALSE(end().complete);
    choice.folder = folder.filePath(u"zmizelá"_s);
    printer.use(choice);
    ASSERT_TRUE(begin(u"Kapr"_s));
    QDir(choice.folder).removeRecursively();
    const PrintedDocument lost = end();
    EXPECT_FALSE(lost.complete);
    EXPECT_EQ(lost.file, QString());
    ASSERT_TRUE(begin(u"Kapr"_s));
    EXPECT_TRUE(end().complete);
}

TEST_F(SystemPrinterTest, WhoeverWaitsForALongFileIsCalled) {
    ASSERT_TRUE(begin(u"Dlouhý"_s));
    const std::vector<DocumentPlace> places(20000, {0, u"místo"_s, u"Nadpis"_s});
    printer.addNotes(places, {});
    EXPECT_TRUE(end().complete);
    EXPECT_TRUE(waited > 0 || !PdfNotes::arePossible());
}

TEST_F(SystemPrinterTest, PutsThePagesOfEachPaperOnItsSheets) {
    QStringList kept;
    for (int paper = 0; paper < kPapers; ++paper) {
        const PrinterChoice choice{{}, Paper(paper)};
        printer.use(choice);
        const PageScale scale = printer.scale();
        kept << u"%1: %2 pages, %3,%4 %5x%6%7"_s.arg(paperName(choice.paper))
                    .arg(PagesOnSheet::of(choice.paper).count())
                    .arg(scale.left)
                    .arg(scale.top)
                    .arg(scale.width)
                    .arg(scale.height)
                    .arg(scale.card ? u", cards"_s : QString());
        for (const int count : {3, 1}) {  // the second document begins anew
            QPainter* painter = printer.begin(u"papír"_s);
            for (int page = 0; page < count; ++page) {
                EXPECT_TRUE(page == 0 || printer.newPage());
                painter->fillRect(0, 0, 300, 300, Qt::red);
                painter->fillRect(scale.width - 300, scale.height - 300, 300, 300, Qt::blue);
            }
            const QString file = end().file;
            const int sheets = int(test::pdfText(file).count(u'\f'));
            for (int sheet = 1; sheet <= sheets; ++sheet) kept << test::marks(test::pdfImage(file, sheet));
        }
    }
    test::expectText(u"papiry"_s, kept.join(u'\n'));
}

TEST(PrinterChoiceTest, IsKeptAsTextAndReadBack) {
    PrinterChoice choice{u"HP v chodbě"_s, Paper::FourCards, 99, true, false, u"/tmp/Složka"_s, {}};
    EXPECT_EQ(PrinterChoice::fromText(choice.toText()), choice);
    test::expectCases(u"volby"_s, [](const QString& kept) { return PrinterChoice::fromText(kept).toText(); });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
