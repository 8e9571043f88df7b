#include <gtest/gtest.h>

#include <QRegularExpression>
#include <algorithm>
#include <climits>
#include <set>

#include "platform/pagesonsheet.h"
#include "print/recipeflow.h"
#include "printcookbook.h"
#include "richtext/layoutdump.h"
#include "support/fakeprinter.h"
#include "support/kept.h"

namespace sarne {
namespace {

using test::PrintCookbook;
using test::str;
using Kind = PrintOutcome::Kind;

TEST(SystemPrinter, WritesTheFileOfTheUsersChoice) {
    PrintCookbook book({PrintCookbook::recipe(7, u"Kapr"_s), PrintCookbook::recipe(8, u"Štika"_s)});
    SystemPrinter printer(book.folder.path());
    EXPECT_FALSE(printer.use({u"Tiskárna, která zmizela"_s}));
    EXPECT_TRUE(printer.choice().printer.isEmpty()) << "without it there is a file";
    EXPECT_EQ(printer.fileFor(u"a/b:c. "_s), book.folder.filePath(u"a b c..pdf"_s));
    PrinterChoice choice;
    choice.folder = book.folder.filePath(u"nová složka"_s);
    choice.file = u"vybraný"_s;
    ASSERT_TRUE(printer.use(choice));
    EXPECT_EQ(book.printOn(printer, {7}).file, choice.folder + u"/vybraný.pdf"_s);
    EXPECT_EQ(book.printOn(printer, {8}).file, choice.folder + u"/vybraný.pdf"_s)
        << "who prints has asked whether to replace it";
    EXPECT_TRUE(test::pdfText(choice.folder + u"/vybraný.pdf"_s).contains(u"Štika"_s));
    const QString info = test::output(u"pdfinfo"_s, {choice.folder + u"/vybraný.pdf"_s});
    EXPECT_TRUE(info.contains(QRegularExpression(u"Title: +Recept"_s))) << info.toStdString();
    EXPECT_TRUE(
        test::output(u"pdfinfo"_s, {u"-meta"_s, choice.folder + u"/vybraný.pdf"_s}).contains(u"cs-CZ"_s));
    test::expectCases(u"jmena"_s, [](const QString& document) { return printFileName(document); });
    EXPECT_LE(printFileName(QString(300, u'ř')).toUtf8().size() + 12, 255);
}

TEST(SystemPrinter, KeepsAChoiceAsText) {
    const PrinterChoice choice{u"HP v chodbě"_s, Paper::FourCards, 3, true, false, u"/tmp/Složka"_s, {}};
    EXPECT_EQ(PrinterChoice::fromText(choice.toText()), choice);
    QStringList kept{choice.toText()};
    for (int paper = 0; paper < kPapers; ++paper) {
        const PagesOnSheet pages = PagesOnSheet::of(Paper(paper));
        const PageScale scale = pages.scale();
        kept << u"%1: %2 pages, %3,%4 %5x%6"_s.arg(paperName(Paper(paper)))
                    .arg(pages.count())
                    .arg(scale.left)
                    .arg(scale.top)
                    .arg(scale.width)
                    .arg(scale.height);
        for (int page = 0; page < pages.count(); ++page)
            kept << u"    %1,%2"_s.arg(pages.corner(page).x()).arg(pages.corner(page).y());
        for (const QRect& cut : pages.cuts())
            kept
                << u"    cut %1,%2 %3,%4"_s.arg(cut.left()).arg(cut.top()).arg(cut.right()).arg(cut.bottom());
    }
    test::expectText(u"papiry"_s, kept.join(u'\n'));
    for (const char* broken : {"", "{", "[1]", "{\"paper\":99,\"copies\":-4}"}) {
        const PrinterChoice read = PrinterChoice::fromText(str(broken));
        EXPECT_GE(read.copies, 1);
        EXPECT_LT(int(read.paper), kPapers);
    }
}

TEST(SystemPrinter, PutsSmallPagesSideBySide) {
    PrintCookbook book({PrintCookbook::recipe(1, u"Candát"_s, {u"Recept"_s, test::rtf(test::longText(9000))}),
                        PrintCookbook::recipe(2, u"Okoun"_s), PrintCookbook::recipe(3, u"Lín"_s)});
    const PrintOutcome two = book.print({1, 2}, {}, Paper::TwoA5);
    EXPECT_EQ(test::pdfPages(two.file).size(), (two.pages + 1) / 2);
    const QSize a5 = PagesOnSheet::of(Paper::TwoA5).page();
    bool left = false, right = false;
    for (const test::PdfWord& word : test::pdfWords(two.file, 1)) {
        EXPECT_TRUE(word.place.right() < a5.width() || word.place.left() > a5.width())
            << "no word over the fold";
        (word.place.left() < a5.width() ? left : right) = true;
    }
    EXPECT_TRUE(left && right);
    const PrintOutcome cards = book.print({1, 2, 3, 2, 3}, {}, Paper::FourCards);
    EXPECT_EQ(test::pdfPages(cards.file).size(), 2);
    const QSize card = PagesOnSheet::of(Paper::FourCards).page();
    for (const test::PdfWord& word : test::pdfWords(cards.file, 1)) {
        EXPECT_TRUE(word.text != u"Okoun"_s || word.place.left() > card.width());
        EXPECT_TRUE(word.text != u"Lín"_s || word.place.top() > card.height());
    }
}

/// Notes what it is told, and says no when it was asked \a patience times.
class NotedProgress final : public PrintProgress {
  public:
    explicit NotedProgress(int patience = INT_MAX) : patience_(patience) {}
    void recipeStarted(const QString&) override {}
    void status(const QString&) override {}
    void progressed(double part) override { parts.push_back(part); }
    void recipeDone() override { ++recipes; }
    bool goOn() override { return ++asked < patience_; }

    std::vector<double> parts;
    int asked = 0, recipes = 0;

  private:
    int patience_;
};

TEST(RecipeFlow, AsksAtEveryLineAndStopsAtOnce) {
    const PageGeometry page = PageGeometry::of({0, 0, 9000, 12000, {}});
    for (const QString& text : {test::longText(1'000'000), test::rtf(test::longText(1'000'000))}) {
        test::FixedMetrics metrics;
        NotedProgress progress(10);
        RecipeFlow flow(page, metrics, progress);
        flow.addRichText(text);
        EXPECT_FALSE(flow.wentOn());
        EXPECT_EQ(progress.asked, 10) << "who has said no is not asked again";
        EXPECT_LT(metrics.measured, 20 * 10);
    }
}

class PrintJobTest : public testing::Test {
  protected:
    PrintOutcome print(NotedProgress& progress) {
        test::FixedMetrics metrics;
        PageComposer composer(book.source(), printer.scale(), metrics);
        return PrintJob(printer, composer, progress).print({{1, 2}, {}}, {}, u"Recepty"_s);
    }

    PrintCookbook book{
        {PrintCookbook::recipe(1, u"Candát"_s, {u"Recept"_s, test::rtf(test::longText(20000))}),
         PrintCookbook::recipe(2, u"Lín"_s)}};
    FakePrinter printer;
};

TEST_F(PrintJobTest, TellsOfEveryLineAndPageAndIsFullAtTheEnd) {
    NotedProgress progress;
    const PrintOutcome outcome = print(progress);
    ASSERT_GT(outcome.pages, 3);
    const auto second = std::ranges::find(progress.parts, 1.);
    ASSERT_NE(second, progress.parts.end());
    const std::vector<double> first(progress.parts.begin(), second + 1);
    EXPECT_TRUE(std::ranges::is_sorted(first));
    const auto isPage = [](double part) { return part > kSetPart; };
    EXPECT_EQ(std::ranges::count_if(first, isPage), outcome.pages - 1) << "the second recipe has one page";
    const std::set<double> steps(first.begin(), first.end());
    EXPECT_GT(steps.size(), 20u) << "pieces of text and pages";
    EXPECT_EQ(progress.parts.back(), 1);
    EXPECT_EQ(progress.recipes, 2);
}

TEST_F(PrintJobTest, StopsAtTheLineWhereItIsToldTo) {
    NotedProgress patient;
    const int pages = print(patient).pages;
    EXPECT_GT(patient.asked, 400) << "once for each line that is set and each that is painted";
    for (int patience = 1; patience < patient.asked; patience += 13) {
        printer.pages = 0;
        NotedProgress progress(patience);
        const PrintOutcome outcome = print(progress);
        EXPECT_EQ(outcome.kind, Kind::Stopped);
        EXPECT_LE(progress.asked, patience + 1) << "nothing is done between two questions";
        EXPECT_LE(outcome.pages, pages);
        EXPECT_EQ(outcome.pages, printer.pages);
        EXPECT_LT(progress.recipes, 2);
    }
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
