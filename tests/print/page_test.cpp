#include <gtest/gtest.h>

#include <QRegularExpression>
#include <algorithm>
#include <climits>
#include <set>

#include "platform/pagesonsheet.h"
#include "platform/pdfnotes.h"
#include "print/recipeflow.h"
#include "print/shortsteps.h"
#include "printcookbook.h"
#include "richtext/layoutdump.h"
#include "support/fakeprinter.h"

namespace sarne {
namespace {

using test::PrintCookbook;
using Kind = PrintOutcome::Kind;

QString str(const char* text) {
    return QString::fromUtf8(text);
}

const QStringList kCookbook{
    PrintCookbook::recipe(
        7, str("Kapr na černo"),
        {str("DlouhyNazev"), str("Kapr na černo s povidly"), str("Uvod"),
         test::rtf(str("\\'d8ek nikdo, jak *12starý recept* to je.")), str("Recept"),
         test::rtf(str("Rybu o#3čistíme#.\\par\\b Hlava\\b0\\par Tělo.")), str("Poznamka"),
         test::rtf(str("Pozor na kosti.")), str("Prezentace"), test::rtf(str("S knedlíkem.")), str("vino"),
         test::rtf(str("Frankovka.")), str("Vlastni"), str("Babička * 3 dávala víc piva. ")}),
    PrintCookbook::recipe(8, str("Štika")),
    str("INSERT INTO Suroviny VALUES (1,'kapr'),(2,'amur'),(3,'sůl'),(4,'citron')"),
    str("INSERT INTO Upresneni VALUES (1,'podkovy')"),
    str("INSERT INTO Jednotky VALUES (1,'g'),(2,'lžíce'),(3,'ks')"),
    str("INSERT INTO SpojSur VALUES (7,1,1,1,250,3,2,2),(7,3,0,1,5.5,2,0.5,0),(7,4,0,3,1,3,1,0)"),
    str("INSERT INTO Pomucky VALUES (1,'pekáč'),(2,'nůž')"),
    str("INSERT INTO SpojPomucky VALUES (7,1),(7,2)"),
    str("INSERT INTO Odkazy VALUES (5,'Vývar',") + test::sqlText(test::rtf(str("Hlavy va@7říme@."))) + u')',
    str("INSERT INTO SpojOdkazy VALUES (7,5)")};

QString textOf(const PrintOutcome& outcome) {
    return test::pdfText(outcome.file).simplified();
}

TEST(PrintedPage, HoldsTheSectionsInTheirOrder) {
    PrintCookbook book(kCookbook);
    PrintOptions options;
    options.portions = 6;
    const PrintOutcome outcome = book.print({7}, options);
    ASSERT_EQ(outcome.kind, Kind::Printed);
    EXPECT_EQ(outcome.file, book.folder.filePath(str("Dokumenty/Recept.pdf")));
    EXPECT_EQ(textOf(outcome),
              str("CD Tobrela - Velisa sarn Kapr na černo Kapr na černo s povidly Porce: 6 "
                  "kapr - podkovy (g): 380 (ks): 3 - nebo amur sůl (g): 8,2 (lžíce): 0,8 citron (ks): 1,5 "
                  "Řek nikdo, jak starý recept to je. Rybu očistíme. Hlava Tělo. Pozor na kosti. "
                  "S knedlíkem. Frankovka. Vlastní poznámka: Babička * 3 dávala víc piva. "
                  "Pomůcky: nůž, pekáč Odkaz: Vývar Hlavy vaříme."));
    static const QRegularExpression indented(str("\n( *)kapr.*\n\\1 {4,}- nebo amur"));
    EXPECT_TRUE(test::pdfText(outcome.file).contains(indented)) << test::pdfText(outcome.file).toStdString();
    options.units = UnitSystem::Spoons;
    options.portions = 2.5;
    const PrintOutcome spoons = book.print({7}, options);
    EXPECT_TRUE(textOf(spoons).contains(
        str("Porce: 2,5 kapr - podkovy (ks): 1,2 - nebo amur sůl (lžíce): 0,3 citron (ks): 0,6")))
        << textOf(spoons).toStdString();
}

TEST(PrintedPage, WithoutSectionsHoldsHeaderAndNameOnly) {
    PrintCookbook book(kCookbook);
    book.addPhoto(7, {40, 30}, Qt::red);
    PrintOptions none;
    none.sections.fill(false);
    EXPECT_EQ(textOf(book.print({7}, none)),
              str("CD Tobrela - Velisa sarn Kapr na černo Kapr na černo s povidly"));
    EXPECT_EQ(textOf(book.print({8})), str("CD Tobrela - Velisa sarn Štika Porce: 4"))
        << "what a recipe has not leaves no heading";
    const char* const heads[kPrintSections] = {"(nic)",     "Porce",   "Řek",     "S knedlíkem",
                                               "Frankovka", "Vlastní", "Pomůcky", "Odkaz"};
    for (size_t section = 0; section < kPrintSections; ++section) {
        PrintOptions one = none;
        one.sections[section] = true;
        const QString text = textOf(book.print({7}, one));
        for (size_t head = 1; head < kPrintSections; ++head)
            EXPECT_EQ(text.contains(str(heads[head])), head == section)
                << section << ' ' << text.toStdString();
    }
}

TEST(PrintedPage, FontsAreEmbedded) {
    PrintCookbook book(kCookbook);
    const QString fonts = test::pdfTool(str("pdffonts"), {book.print({7}).file});
    const QStringList lines = fonts.split(u'\n', Qt::SkipEmptyParts).mid(2);
    EXPECT_EQ(lines.size(), 4) << "header, name, headings of all kinds and text" << fonts.toStdString();
    static const QRegularExpression embedded(str("Identity-H +yes"));
    for (const QString& line : lines) EXPECT_TRUE(line.contains(embedded)) << line.toStdString();
}

TEST(PrintedPage, AWrappedLineLosesNoLetter) {
    QStringList words;
    for (int i = 0; i < 60; ++i) words << str("slovo%1").arg(i);
    PrintCookbook book({PrintCookbook::recipe(1, words.join(u' '))});
    EXPECT_TRUE(textOf(book.print({1})).contains(words.join(u' '))) << textOf(book.print({1})).toStdString();
}

class PaperTest : public testing::TestWithParam<Paper> {};

TEST_P(PaperTest, NothingLeavesTheColumnAndTheHeaderEndsAtItsEdge) {
    const QString wide = QString(400, u'W');
    PrintCookbook book({PrintCookbook::recipe(
        1, test::longText(90, str("Kapr velmi dlouhého jména ")),
        {str("Recept"), test::rtf(test::longText(9000) + str("\\par ") + wide + str("\\par konec")),
         str("Vlastni"), QString(500, u'm')})});
    book.addPhoto(1, {400, 300}, Qt::red);
    const PrintOutcome outcome = book.print({1}, {}, GetParam());
    ASSERT_EQ(outcome.kind, Kind::Printed);
    const QSizeF paper = PagesOnSheet::of(GetParam()).page();
    const QRectF printable = QRectF({0, 0}, paper).adjusted(566, 566, -566, -566);
    const double right = paper.width() / 2 + printable.width() * .8 / 2;
    for (int page = 1; page <= outcome.pages; ++page) {
        double headerEnd = 0;
        for (const test::PdfWord& word : test::pdfWords(outcome.file, page)) {
            EXPECT_TRUE(printable.contains(word.place)) << page << word.text.left(20).toStdString();
            EXPECT_LE(word.place.right(), right + 20) << page << word.text.left(20).toStdString();
            EXPECT_GE(word.place.left(), paper.width() - right - 20);
            if (word.text == str("sarn")) headerEnd = word.place.right();
        }
        EXPECT_NEAR(headerEnd, right, 20) << page;
    }
    const QString text = test::pdfText(outcome.file);
    EXPECT_EQ(text.count(u'W'), wide.size()) << "a word that is longer than a line goes on in the next";
    EXPECT_EQ(text.count(str("konec")), 1);
}

INSTANTIATE_TEST_SUITE_P(Papers, PaperTest, testing::Values(Paper::A4, Paper::A5, Paper::Letter));

TEST(PrintedPage, RepeatsTheHeaderWithNameAndPageAndStartsEachRecipeOnItsOwn) {
    PrintCookbook book(
        {PrintCookbook::recipe(1, str("Candát"), {str("Recept"), test::rtf(test::longText(9000))}),
         PrintCookbook::recipe(2, str("Okoun"))});
    const PrintOutcome outcome = book.print({1, 99, 2});
    const QStringList pages = test::pdfPages(outcome.file);
    ASSERT_GE(pages.size(), 4);
    EXPECT_EQ(pages.size(), outcome.pages);
    EXPECT_EQ(pages[0].count(str("Candát")), 1);
    const int own = outcome.pages - 1;
    for (int page = 2; page <= own; ++page)
        EXPECT_TRUE(pages[page - 1].contains(str("Candát · %1 z %2").arg(page).arg(own))) << page;
    EXPECT_EQ(pages.last().simplified(), str("CD Tobrela - Velisa sarn Okoun Porce: 4"));
}

/// The smallest rectangle around all that is red on \a page.
QRect redPart(const QImage& page) {
    QRect red;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QColor color = page.pixelColor(x, y);
            if (color.red() > 200 && color.green() < 60) red |= QRect(x, y, 1, 1);
        }
    }
    return red;
}

TEST(PrintedPage, ShowsThePhotoInItsProportionsBelowTheName) {
    PrintCookbook book(kCookbook);
    for (const QSize& size : {QSize(400, 300), QSize(60, 200)}) {
        book.addPhoto(7, size, Qt::red);
        const PrintOutcome outcome = book.print({7});
        const QRect red = redPart(test::pdfImage(outcome.file, 1));
        ASSERT_GT(red.height(), 100);
        EXPECT_NEAR(double(red.width()) / red.height(), double(size.width()) / size.height(), .03);
        for (const test::PdfWord& word : test::pdfWords(outcome.file, 1)) {
            const QRectF place(word.place.topLeft() / 20, word.place.size() / 20);
            EXPECT_FALSE(place.intersects(red.adjusted(1, 1, -1, -1))) << word.text.toStdString();
            EXPECT_TRUE(word.text != str("povidly") || place.bottom() < red.top() + 1);
        }
    }
    QFile broken(book.photo(7));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("BM no picture");
    broken.close();
    EXPECT_EQ(book.print({7}).kind, Kind::Printed);
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(PrintedPage, HoldsAPhotoAsItIsStored) {
    if (!PdfNotes::arePossible()) GTEST_SKIP() << "built without the library that puts it there";
    PrintCookbook book(kCookbook);
    book.addPhoto(7, {400, 300}, Qt::red, "JPG");
    book.addPhoto(8, {90, 90}, Qt::blue, "JPG");
    const QByteArray stored = bytesOf(book.photo(7));
    const PrintOutcome outcome = book.print({8, 7, 7});
    EXPECT_EQ(bytesOf(outcome.file).count(stored), 1) << "once, however often it shows";
    for (int page = 1; page <= 3; ++page)
        EXPECT_EQ(redPart(test::pdfImage(outcome.file, page)).height() > 100, page > 1) << page;
    QFile::resize(book.photo(7), stored.size() - 2);
    const PrintOutcome damaged = book.print({7});
    EXPECT_FALSE(bytesOf(damaged.file).contains(stored.chopped(2))) << "what a reader would stumble over";
    EXPECT_GT(redPart(test::pdfImage(damaged.file, 1)).height(), 100);
}

TEST(PrintedPage, TakesLargeMaterial) {
    const QString note = test::longText(1 << 20);
    QStringList cookbook{PrintCookbook::recipe(1, str("Úhoř"), {str("Vlastni"), note})};
    for (int link = 1; link <= 40; ++link) {
        const QString text = test::rtf(str("Text odkazu %1.").arg(link));
        cookbook
            << str("INSERT INTO Odkazy VALUES (%1,'Odkaz číslo %1',%2)").arg(link).arg(test::sqlText(text));
        cookbook << str("INSERT INTO SpojOdkazy VALUES (1,%1)").arg(link);
    }
    PrintCookbook book(cookbook);
    const PrintOutcome outcome = book.print({1});
    ASSERT_EQ(outcome.kind, Kind::Printed);
    const QString text = test::pdfText(outcome.file);
    EXPECT_EQ(text.count(str("necháme")), note.count(str("necháme")));
    for (int link = 1; link <= 40; ++link) {
        EXPECT_TRUE(text.contains(str("Odkaz: Odkaz číslo %1\n").arg(link))) << link;
        EXPECT_TRUE(text.contains(str("Text odkazu %1.").arg(link))) << link;
    }
}

TEST(PrintedPage, LeadsFromAMentionToTheLinkedTextAndBack) {
    if (!PdfNotes::arePossible()) GTEST_SKIP() << "built without the library that writes links";
    PrintCookbook book(
        {PrintCookbook::recipe(1, str("Kapr v aspiku"),
                               {str("Recept"), test::rtf(str("\\b Postup\\b0\\par Rybu va\\'f8\\'edme v "
                                                             "ryb\\'edm v\\'fdvaru, ryb k v\\'fdvaru "
                                                             "nelitujeme.\\par ") +
                                                         test::longText(9000))}),
         PrintCookbook::recipe(2, str("Lín")),
         str("INSERT INTO Odkazy VALUES (5,'Rybí vývar',") +
             test::sqlText(test::rtf(str("\\b Ryb\\'ed v\\'fdvar\\b0\\par Hlavy."))) + str("),(6,'Aspik',") +
             test::sqlText(test::rtf(str("Rybí vývar ztuhne."))) + u')',
         str("INSERT INTO SpojOdkazy VALUES (1,5),(1,6)")});
    for (const Paper paper : {Paper::A4, Paper::TwoA5}) {
        const PrintOutcome outcome = book.print({1, 2}, {}, paper);
        const QString xml =
            test::pdfTool(str("pdftohtml"), {str("-xml"), str("-i"), str("-stdout"), outcome.file});
        // Where a link leads, and what it is: two A5 stand on each sheet.
        static const QRegularExpression link(str("<a href=\"[^#\"]*#(\\d+)\">(.*?)</a>"));
        static const QRegularExpression markup(str("<[^>]*>"));
        QStringList links;
        for (const auto& match : link.globalMatch(xml))
            links << (match.captured(1) + u' ' + match.captured(2).remove(markup)).simplified();
        EXPECT_EQ(links, (QStringList{str("3 rybím vývaru,"), str("1 Odkaz: Aspik"), str("3 Rybí vývar"),
                                      str("1 Odkaz: Rybí vývar")}))
            << xml.right(3000).toStdString();
        EXPECT_TRUE(textOf(outcome).contains(str("Odkaz: Rybí vývar Rybí vývar Hlavy.")))
            << "as the data have it";
        static const QRegularExpression item(str("<item page=\"(\\d+)\">(.*?)</item>"));
        QStringList contents;
        for (const auto& match : item.globalMatch(xml)) contents << match.captured(2);
        EXPECT_EQ(contents, (QStringList{str("Kapr v aspiku"), str("Postup"), str("Odkaz: Aspik"),
                                         str("Odkaz: Rybí vývar"), str("Lín")}));
    }
    EXPECT_EQ(PdfNotes().writtenInto("no document"), QByteArray("no document"));
}

TEST(SystemPrinter, WritesTheFileOfTheUsersChoice) {
    PrintCookbook book(kCookbook);
    SystemPrinter printer(book.folder.path());
    EXPECT_FALSE(printer.use({str("Tiskárna, která zmizela")}));
    EXPECT_TRUE(printer.choice().printer.isEmpty()) << "without it there is a file";
    EXPECT_EQ(printer.fileFor(str("a/b:c. ")), book.folder.filePath(str("a b c..pdf")));
    PrinterChoice choice;
    choice.folder = book.folder.filePath(str("nová složka"));
    choice.file = str("vybraný");
    ASSERT_TRUE(printer.use(choice));
    EXPECT_EQ(book.printOn(printer, {7}).file, choice.folder + str("/vybraný.pdf"));
    EXPECT_EQ(book.printOn(printer, {8}).file, choice.folder + str("/vybraný.pdf"))
        << "who prints has asked whether to replace it";
    EXPECT_TRUE(textOf({{}, 1, choice.folder + str("/vybraný.pdf")}).contains(str("Štika")));
    const QString info = test::pdfTool(str("pdfinfo"), {choice.folder + str("/vybraný.pdf")});
    EXPECT_TRUE(info.contains(QRegularExpression(str("Title: +Recept")))) << info.toStdString();
    EXPECT_TRUE(test::pdfTool(str("pdfinfo"), {str("-meta"), choice.folder + str("/vybraný.pdf")})
                    .contains(str("cs-CZ")));
}

TEST(SystemPrinter, KeepsAChoiceAsText) {
    const PrinterChoice choice{str("HP v chodbě"), Paper::FourCards, 3, true, false, str("/tmp/Složka"), {}};
    EXPECT_EQ(PrinterChoice::fromText(choice.toText()), choice);
    for (const char* broken : {"", "{", "[1]", "{\"paper\":99,\"copies\":-4}"}) {
        const PrinterChoice read = PrinterChoice::fromText(str(broken));
        EXPECT_GE(read.copies, 1);
        EXPECT_LT(int(read.paper), kPapers);
    }
}

TEST(SystemPrinter, PutsSmallPagesSideBySide) {
    PrintCookbook book(
        {PrintCookbook::recipe(1, str("Candát"), {str("Recept"), test::rtf(test::longText(9000))}),
         PrintCookbook::recipe(2, str("Okoun")), PrintCookbook::recipe(3, str("Lín"))});
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
        EXPECT_TRUE(word.text != str("Okoun") || word.place.left() > card.width());
        EXPECT_TRUE(word.text != str("Lín") || word.place.top() > card.height());
    }
}

TEST(RecipeCard, HoldsTheEssenceOnOnePage) {
    QString steps;
    for (int step = 1; step <= 9; ++step)
        steps += str("%1. Krok %1 popíšeme takto. %2\\par ").arg(step).arg(test::longText(400));
    PrintCookbook book({PrintCookbook::recipe(
        1, str("Candát"),
        {str("Uvod"), test::rtf(str("úvod")), str("Recept"), test::rtf(str("\\b Postup\\b0\\par ") + steps),
         str("vino"), test::rtf(str("víno"))})});
    const PrintOutcome card = book.print({1}, {}, Paper::Card);
    EXPECT_EQ(card.pages, 1);
    const QString text = textOf(card);
    EXPECT_TRUE(text.contains(str("Candát Porce: 4 1. Krok 1 popíšeme takto. 2. Krok 2")))
        << text.toStdString();
    for (const char* elsewhere : {"úvod", "víno", "Postup", "necháme"})
        EXPECT_FALSE(text.contains(str(elsewhere)));
    EXPECT_EQ(stepsInShort(str("Nadpis\nRybu osolíme a dáme na půl hodiny do chladu. Pak pečeme.")),
              QStringList{str("Rybu osolíme a dáme na půl hodiny do chladu.")});
}

TEST(SystemPrinter, NamesFilesSoThatEveryDiskTakesThem) {
    EXPECT_EQ(printFileName(str(" Kapr \"na\"  modro?\n")), str("Kapr na modro"));
    EXPECT_EQ(printFileName(str("../..")), str("Recepty"));
    EXPECT_EQ(printFileName({}), str("Recepty"));
    EXPECT_LE(printFileName(QString(300, u'ř')).toUtf8().size() + 12, 255);
}

/// Wants no more when it has been asked so often.
struct ImpatientProgress final : PrintProgress {
    explicit ImpatientProgress(int patience) : left(patience) {}
    void recipeStarted(const QString&) override {}
    void status(const QString&) override {}
    void progressed(double) override {}
    void recipeDone() override {}
    bool goOn() override { return --left > 0; }
    int left;
};

TEST(RecipeFlow, AsksAtEveryLineAndStopsAtOnce) {
    const PageGeometry page = PageGeometry::of({0, 0, 9000, 12000, {}});
    for (const QString& text : {test::longText(1'000'000), test::rtf(test::longText(1'000'000))}) {
        test::FixedMetrics metrics;
        ImpatientProgress progress(10);
        RecipeFlow flow(page, metrics, progress);
        flow.addRichText(text);
        EXPECT_FALSE(flow.wentOn());
        EXPECT_EQ(progress.left, 0) << "who has said no is not asked again";
        EXPECT_LT(metrics.measured, 20 * 10);
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

class PrintJobTest : public testing::Test {
  protected:
    PrintOutcome print(NotedProgress& progress) {
        test::FixedMetrics metrics;
        PageComposer composer(book.source(), printer.scale(), metrics);
        return PrintJob(printer, composer, progress).print({{1, 2}, {}}, {}, str("Recepty"));
    }

    PrintCookbook book{
        {PrintCookbook::recipe(1, str("Candát"), {str("Recept"), test::rtf(test::longText(20000))}),
         PrintCookbook::recipe(2, str("Lín"))}};
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
    EXPECT_GT(steps.size(), 100u) << "lines";
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

TEST(PrintedPage, AnAmountWithoutAUnitStandsOffTheOther) {
    PrintCookbook book({PrintCookbook::recipe(1, str("Lín")), str("INSERT INTO Suroviny VALUES (4,'citron')"),
                        str("INSERT INTO Jednotky VALUES (1,'g')"),
                        str("INSERT INTO SpojSur VALUES (1,4,0,1,250,0,2,0)")});
    for (const Paper paper : {Paper::A4, Paper::Card})
        EXPECT_TRUE(textOf(book.print({1}, {}, paper)).endsWith(str("Porce: 4 citron (g): 250 2")))
            << textOf(book.print({1}, {}, paper)).toStdString();
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
