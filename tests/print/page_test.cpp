#include <gtest/gtest.h>

#include <QRegularExpression>

#include "platform/pagesonsheet.h"
#include "platform/pdfnotes.h"
#include "printcookbook.h"
#include "support/kept.h"

namespace sarne {
namespace {

using test::PrintCookbook;
using test::str;
using Kind = PrintOutcome::Kind;

QString textOf(const PrintOutcome& outcome) {
    return test::pdfText(outcome.file).simplified();
}

TEST(PrintedPage, HoldsTheSectionsInTheirOrder) {
    PrintCookbook book(test::fiveRecipes());
    PrintOptions options;
    options.portions = 6;
    const PrintOutcome outcome = book.print({1}, options);
    ASSERT_EQ(outcome.kind, Kind::Printed);
    EXPECT_EQ(outcome.file, book.folder.filePath(u"Dokumenty/Recept.pdf"_s));
    test::expectText(u"oddily"_s, textOf(outcome));
    const QString fonts = test::output(u"pdffonts"_s, {outcome.file});
    EXPECT_EQ(fonts.count(QRegularExpression(u"Identity-H +yes"_s)), 4)
        << "embedded: header, name, headings and text";
}

class PaperTest : public testing::TestWithParam<Paper> {};

TEST_P(PaperTest, NothingLeavesTheColumnAndTheHeaderEndsAtItsEdge) {
    const QString wide = QString(400, u'W');
    PrintCookbook book({PrintCookbook::recipe(
        1, test::longText(90, u"Kapr velmi dlouhého jména "_s),
        {u"Recept"_s, test::rtf(test::longText(9000) + u"\\par "_s + wide + u"\\par konec"_s), u"Vlastni"_s,
         QString(500, u'm')})});
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
            if (word.text == u"sarn"_s) headerEnd = word.place.right();
        }
        EXPECT_NEAR(headerEnd, right, 20) << page;
    }
    const QString text = test::pdfText(outcome.file);
    EXPECT_EQ(text.count(u'W'), wide.size()) << "a word that is longer than a line goes on in the next";
    EXPECT_EQ(text.count(u"konec"_s), 1);
}

INSTANTIATE_TEST_SUITE_P(Papers, PaperTest, testing::Values(Paper::A4, Paper::A5, Paper::Letter));

TEST(PrintedPage, BeginsAnewWithEachRecipe) {
    PrintCookbook book(test::fiveRecipes());
    const PrintOutcome outcome = book.print({2, 99, 5});
    const QStringList pages = test::pdfPages(outcome.file);
    EXPECT_EQ(pages.size(), outcome.pages);
    EXPECT_EQ(pages.value(pages.size() - 1).simplified(), u"CD Tobrela - Velisa sarn Lín Porce: 4"_s);
    EXPECT_FALSE(pages.value(pages.size() - 2).contains(u"Lín"_s));
}

TEST(PrintedPage, ShowsThePhotoInItsProportionsBelowTheName) {
    PrintCookbook book(test::fiveRecipes());
    for (const QSize& size : {QSize(400, 300), QSize(60, 200)}) {
        book.addPhoto(1, size, Qt::red);
        const PrintOutcome outcome = book.print({1});
        const QRect red = test::redPart(test::pdfImage(outcome.file, 1));
        ASSERT_GT(red.height(), 100);
        EXPECT_NEAR(double(red.width()) / red.height(), double(size.width()) / size.height(), .03);
        for (const test::PdfWord& word : test::pdfWords(outcome.file, 1)) {
            const QRectF place(word.place.topLeft() / 20, word.place.size() / 20);
            EXPECT_FALSE(place.intersects(red.adjusted(1, 1, -1, -1))) << word.text.toStdString();
            EXPECT_TRUE(word.text != u"pečený"_s || place.bottom() < red.top() + 1);
        }
    }
    ASSERT_TRUE(test::write(book.photo(1), "BM no picture"));
    EXPECT_EQ(book.print({1}).kind, Kind::Printed);
}

TEST(PrintedPage, HoldsAPhotoAsItIsStored) {
    if (!PdfNotes::arePossible()) GTEST_SKIP() << "built without the library that puts it there";
    PrintCookbook book(test::fiveRecipes());
    book.addPhoto(3, {400, 300}, Qt::red, "JPG");
    book.addPhoto(5, {90, 90}, Qt::blue, "JPG");
    const QByteArray stored = test::bytesOf(book.photo(3));
    const PrintOutcome outcome = book.print({5, 3, 3});
    EXPECT_EQ(test::bytesOf(outcome.file).count(stored), 1) << "once, however often it shows";
    for (int page = 1; page <= 3; ++page)
        EXPECT_EQ(test::redPart(test::pdfImage(outcome.file, page)).height() > 100, page > 1) << page;
    QFile::resize(book.photo(3), stored.size() - 2);
    const PrintOutcome damaged = book.print({3});
    EXPECT_FALSE(test::bytesOf(damaged.file).contains(stored.chopped(2)))
        << "what a reader would stumble over";
    EXPECT_GT(test::redPart(test::pdfImage(damaged.file, 1)).height(), 100);
}

TEST(PrintedPage, TakesLargeMaterial) {
    const QString note = test::longText(1 << 20);
    QStringList cookbook{PrintCookbook::recipe(1, u"Úhoř"_s, {u"Vlastni"_s, note})};
    for (int link = 1; link <= 40; ++link)
        cookbook << u"INSERT INTO Odkazy VALUES (%1,'Odkaz číslo %1','Text odkazu %1.')"_s.arg(link)
                 << u"INSERT INTO SpojOdkazy VALUES (1,%1)"_s.arg(link);
    PrintCookbook book(cookbook);
    const QString text = test::pdfText(book.print({1}).file);
    EXPECT_EQ(text.count(u"necháme"_s), note.count(u"necháme"_s));
    EXPECT_EQ(text.count(QRegularExpression(u"Odkaz: Odkaz číslo (\\d+)\\s+Text odkazu \\1\\."_s)), 40);
}

TEST(PrintedPage, LeadsFromAMentionToTheLinkedTextAndBack) {
    if (!PdfNotes::arePossible()) GTEST_SKIP() << "built without the library that writes links";
    PrintCookbook book(
        {PrintCookbook::recipe(1, u"Kapr v aspiku"_s,
                               {u"Recept"_s, test::rtf(u"\\b Postup\\b0\\par Rybu va\\'f8\\'edme v "
                                                       "ryb\\'edm v\\'fdvaru, ryb k v\\'fdvaru "
                                                       "nelitujeme.\\par "_s +
                                                       test::longText(9000))}),
         PrintCookbook::recipe(2, u"Lín"_s),
         u"INSERT INTO Odkazy VALUES (5,'Rybí vývar',"_s +
             test::sqlText(test::rtf(u"\\b Ryb\\'ed v\\'fdvar\\b0\\par Hlavy."_s)) + u"),(6,'Aspik',"_s +
             test::sqlText(test::rtf(u"Rybí vývar ztuhne."_s)) + u')',
         u"INSERT INTO SpojOdkazy VALUES (1,5),(1,6)"_s});
    for (const Paper paper : {Paper::A4, Paper::TwoA5}) {
        const PrintOutcome outcome = book.print({1, 2}, {}, paper);
        const QString xml = test::output(u"pdftohtml"_s, {u"-xml"_s, u"-i"_s, u"-stdout"_s, outcome.file});
        // Where a link leads, and what it is: two A5 stand on each sheet.
        static const QRegularExpression link(u"<a href=\"[^#\"]*#(\\d+)\">(.*?)</a>"_s);
        static const QRegularExpression markup(u"<[^>]*>"_s);
        QStringList links;
        for (const auto& match : link.globalMatch(xml))
            links << (match.captured(1) + u' ' + match.captured(2).remove(markup)).simplified();
        EXPECT_EQ(links, (QStringList{u"3 rybím vývaru,"_s, u"1 Odkaz: Aspik"_s, u"3 Rybí vývar"_s,
                                      u"1 Odkaz: Rybí vývar"_s}))
            << xml.right(3000).toStdString();
        EXPECT_TRUE(textOf(outcome).contains(u"Odkaz: Rybí vývar Rybí vývar Hlavy."_s))
            << "as the data have it";
        static const QRegularExpression item(u"<item page=\"(\\d+)\">(.*?)</item>"_s);
        QStringList contents;
        for (const auto& match : item.globalMatch(xml)) contents << match.captured(2);
        EXPECT_EQ(contents, (QStringList{u"Kapr v aspiku"_s, u"Postup"_s, u"Odkaz: Aspik"_s,
                                         u"Odkaz: Rybí vývar"_s, u"Lín"_s}));
    }
}

TEST(RecipeCard, HoldsTheEssenceOnOnePage) {
    const auto card = [](int sentences) {
        QString steps;
        for (int step = 1; step <= 9; ++step)
            steps +=
                u"%1. Krok %1 popíšeme takto. %2\\par "_s.arg(step).arg(test::longText(sentences * 30 - 1));
        PrintCookbook book({PrintCookbook::recipe(
            1, u"Candát"_s,
            {u"Uvod"_s, test::rtf(u"úvod"_s), u"Recept"_s, test::rtf(u"\\b Postup\\b0\\par "_s + steps),
             u"vino"_s, test::rtf(u"víno"_s)})});
        const PrintOutcome outcome = book.print({1}, {}, Paper::Card);
        EXPECT_EQ(outcome.pages, 1);
        return textOf(outcome);
    };
    const QString text = card(14);
    EXPECT_TRUE(
        text.contains(u"Candát Porce: 4 1. Krok 1 popíšeme takto. Rybu osolíme a necháme stát. 2. Krok"_s))
        << text.toStdString();
    for (const char* elsewhere : {"úvod", "víno", "Postup"}) EXPECT_FALSE(text.contains(str(elsewhere)));
    EXPECT_EQ(card(2).count(u"necháme"_s), 27) << "all of it where there is room";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
