#include <gtest/gtest.h>

#include <QRegularExpression>

#include "platform/pagesonsheet.h"
#include "platform/pdfnotes.h"
#include "print/shortsteps.h"
#include "printcookbook.h"

namespace sarne {
namespace {

using test::PrintCookbook;
using test::str;
using Kind = PrintOutcome::Kind;

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
    const QString fonts = test::pdfTool(str("pdffonts"), {outcome.file});
    EXPECT_EQ(fonts.count(QRegularExpression(str("Identity-H +yes"))), 4)
        << "embedded: header, name, headings and text";
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
        {PrintCookbook::recipe(1, str("Candát"), {str("Recept"), test::rtf(test::longText(12000))}),
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

TEST(PrintedPage, HoldsAPhotoAsItIsStored) {
    if (!PdfNotes::arePossible()) GTEST_SKIP() << "built without the library that puts it there";
    PrintCookbook book(kCookbook);
    book.addPhoto(7, {400, 300}, Qt::red, "JPG");
    book.addPhoto(8, {90, 90}, Qt::blue, "JPG");
    const QByteArray stored = test::bytesOf(book.photo(7));
    const PrintOutcome outcome = book.print({8, 7, 7});
    EXPECT_EQ(test::bytesOf(outcome.file).count(stored), 1) << "once, however often it shows";
    for (int page = 1; page <= 3; ++page)
        EXPECT_EQ(redPart(test::pdfImage(outcome.file, page)).height() > 100, page > 1) << page;
    QFile::resize(book.photo(7), stored.size() - 2);
    const PrintOutcome damaged = book.print({7});
    EXPECT_FALSE(test::bytesOf(damaged.file).contains(stored.chopped(2)))
        << "what a reader would stumble over";
    EXPECT_GT(redPart(test::pdfImage(damaged.file, 1)).height(), 100);
}

TEST(PrintedPage, TakesLargeMaterial) {
    const QString note = test::longText(1 << 20);
    QStringList cookbook{PrintCookbook::recipe(1, str("Úhoř"), {str("Vlastni"), note})};
    for (int link = 1; link <= 40; ++link)
        cookbook << str("INSERT INTO Odkazy VALUES (%1,'Odkaz číslo %1','Text odkazu %1.')").arg(link)
                 << str("INSERT INTO SpojOdkazy VALUES (1,%1)").arg(link);
    PrintCookbook book(cookbook);
    const QString text = test::pdfText(book.print({1}).file);
    EXPECT_EQ(text.count(str("necháme")), note.count(str("necháme")));
    EXPECT_EQ(text.count(QRegularExpression(str("Odkaz: Odkaz číslo (\\d+)\\s+Text odkazu \\1\\."))), 40);
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

TEST(RecipeCard, HoldsTheEssenceOnOnePage) {
    const auto card = [](int sentences) {
        QString steps;
        for (int step = 1; step <= 9; ++step)
            steps +=
                str("%1. Krok %1 popíšeme takto. %2\\par ").arg(step).arg(test::longText(sentences * 30 - 1));
        PrintCookbook book({PrintCookbook::recipe(
            1, str("Candát"),
            {str("Uvod"), test::rtf(str("úvod")), str("Recept"),
             test::rtf(str("\\b Postup\\b0\\par ") + steps), str("vino"), test::rtf(str("víno"))})});
        const PrintOutcome outcome = book.print({1}, {}, Paper::Card);
        EXPECT_EQ(outcome.pages, 1);
        return textOf(outcome);
    };
    const QString text = card(14);
    EXPECT_TRUE(
        text.contains(str("Candát Porce: 4 1. Krok 1 popíšeme takto. Rybu osolíme a necháme stát. 2. Krok")))
        << text.toStdString();
    for (const char* elsewhere : {"úvod", "víno", "Postup"}) EXPECT_FALSE(text.contains(str(elsewhere)));
    EXPECT_EQ(card(2).count(str("necháme")), 27) << "all of it where there is room";
    EXPECT_EQ(stepsInShort(str("Nadpis\nRybu osolíme a dáme na půl hodiny do chladu. Pak pečeme."), 1),
              QStringList{str("Rybu osolíme a dáme na půl hodiny do chladu.")});
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
