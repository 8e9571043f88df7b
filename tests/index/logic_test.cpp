#include <gtest/gtest.h>

#include "cookbook.h"
#include "core/value.h"
#include "richtext/plaintext.h"
#include "richtext/rtfdocument.h"
#include "screens/index/gallery.h"
#include "screens/index/headings.h"
#include "screens/index/keywordhistory.h"
#include "screens/index/lookuptable.h"
#include "screens/index/pages.h"
#include "screens/index/tablelayout.h"

namespace sarne {
namespace {

TEST(KeywordHistory, CirclesAreRetracedVisitByVisit) {
    KeywordHistory visits;
    visits.visit(1);
    EXPECT_FALSE(visits.goBack()) << "the first one leaves to the caller";
    visits.visit(2, 300, 4);
    visits.visit(1, 50);
    ASSERT_TRUE(visits.goBack());
    EXPECT_EQ(visits.current().keyword, 2);
    EXPECT_EQ(visits.current().offset, 50);
    ASSERT_TRUE(visits.goBack());
    EXPECT_EQ(visits.current().offset, 300);
    EXPECT_EQ(visits.current().link, 4);
    for (int i = 0; i < 5000; ++i) visits.visit(i);
    EXPECT_EQ(visits.current().keyword, 4999);
}

TEST(Gallery, TargetsAreReadOrAreNone) {
    using Kind = GalleryTarget::Kind;
    const struct {
        const char* text;
        GalleryTarget target;
    } cases[] = {{"*12", {Kind::Keyword, 12}},
                 {"@3", {Kind::Video, 3}},
                 {" >9 ", {Kind::Picture, 9}},
                 {"#", {Kind::Beep, 0}},
                 {"", {}},
                 {"*", {}},
                 {"*x", {}},
                 {"12", {}},
                 {"*99999", {}},
                 {"@-1", {}}};
    for (const auto& c : cases) EXPECT_EQ(GalleryTarget::of(QString::fromUtf8(c.text)), c.target) << c.text;
}

TEST(LookupTable, KeywordsStandInCzechOrderUnderTheirLetters) {
    Cookbook book({Cookbook::keyword(1, u"Úhoř"_s, u"x"_s), Cookbook::keyword(2, u"Chřest"_s, u"x"_s),
                   Cookbook::keyword(3, u"Hejk"_s, u"x"_s), Cookbook::keyword(4, u"Candát"_s, u"x"_s),
                   Cookbook::keyword(5, u"Čich"_s, u"x"_s), Cookbook::keyword(6, u"Cibule"_s, u"x"_s)});
    const LookupTable table = readLookupTable(book.run.database, kKeywordIndexItem);
    QStringList order;
    for (const LookupRow& row : table.rows) order << indexLetter(row.cells[0]) + u' ' + row.cells[0];
    EXPECT_EQ(order, (QStringList{u"C Candát"_s, u"C Cibule"_s, u"Č Čich"_s, u"H Hejk"_s, u"Ch Chřest"_s,
                                  u"U Úhoř"_s}));
    EXPECT_EQ(table.rows[5].keyword, 1);
    EXPECT_EQ(indexLetter({}), QString());
}

TEST(LookupTable, ThePreviewLeavesOutHeadingAndMarkers) {
    Cookbook book(
        {Cookbook::keyword(1, u"Kapr"_s, u"\\b Kapr\\b0\\par Ryba na *112 kmín* i \\'e8ern\\'e1."_s),
         Cookbook::keyword(2, u"Lín"_s, u"Jen text."_s)});
    const LookupTable table = readLookupTable(book.run.database, kKeywordIndexItem);
    EXPECT_EQ(table.rows[0].cells[1].simplified(), u"Ryba na kmín i černá."_s);
    EXPECT_EQ(table.rows[1].cells[1], u"Jen text."_s);
}

TEST(LookupTable, RowsAreAsWideAsTheTable) {
    Cookbook book({u"INSERT INTO Tabulky VALUES (3, 'Ryby', 'Ryba\tMíra\tHájení', 'Podle vyhlášky.')"_s,
                   u"INSERT INTO RadkyTabulek VALUES (1, 3, 7, 'Kapr\t40 cm')"_s,
                   u"INSERT INTO RadkyTabulek VALUES (2, 3, 0, 'a\tb\tc\td')"_s,
                   u"INSERT INTO RadkyTabulek VALUES (3, 4, 0, 'jiná')"_s});
    const LookupTable table = readLookupTable(book.run.database, 3);
    ASSERT_EQ(table.rows.size(), 2u);
    EXPECT_EQ(table.rows[0].cells, (QStringList{u"Kapr"_s, u"40 cm"_s, {}}));
    EXPECT_EQ(table.rows[1].cells.size(), 3);
    EXPECT_EQ(table.rows[0].keyword, 7);
    EXPECT_TRUE(readLookupTable(book.run.database, 99).isEmpty());
}

TEST(TableLayout, ColumnsFillTheWidthAndBreakNoWord) {
    const TextFont font{u"Arial"_s, 12};
    const QString longText = u"slovo "_s.repeated(40).trimmed();
    const struct {
        QStringList cells;
        LookupTable::Rows rows;
        bool high;
    } cases[] = {{{u"a"_s, u"b"_s}, LookupTable::Rows::Wrapped, false},
                 {{u"nejdelší"_s, longText}, LookupTable::Rows::Wrapped, true},
                 {{u"nejdelší"_s, longText}, LookupTable::Rows::Names, true},
                 {{QString(400, u'm'), longText}, LookupTable::Rows::Wrapped, true}};
    for (const auto& c : cases) {
        LookupTable table;
        table.columns = QStringList{u"Ryba"_s, u"Text"_s};
        table.layout = c.rows;
        table.rows.push_back({c.cells, 0});
        const TableLayout layout = TableLayout::of(table, 9000, font, font);
        ASSERT_EQ(layout.widths.size(), 2u);
        EXPECT_EQ(layout.lefts[1], layout.widths[0]);
        EXPECT_GT(layout.widths[1], 500);
        EXPECT_LE(std::abs(layout.lefts[1] + layout.widths[1] - 9000), 9000 / 4);
        EXPECT_EQ(layout.heights[0] > 2 * layout.headHeight, c.high) << c.cells[0].toStdString();
    }
}

TEST(RtfDocument, PlainTextsStandForThemselves) {
    const QString hostile = u"50 % *cukr* #1 {\\par} @7 žluť – ½ 漢"_s;
    RtfDocument document;
    document.heading(u"Nadpis"_s);
    document.paragraph(u"Tučně"_s, hostile);
    document.paragraph(u"dva\nřádky"_s);
    EXPECT_EQ(plainText(document.text(), 1000),
              u"Nadpis\n\nTučně 50 % *cukr* #1 {\\par} @7 žluť – ? ?\ndva\nřádky"_s);
    EXPECT_TRUE(beginsWithHeading(document.text(), u"Nadpis"_s));
    EXPECT_FALSE(beginsWithHeading(document.text(), u"Nad"_s));
}

TEST(Headings, AreTakenOutWhereTheTitleSaysThem) {
    RtfDocument document;
    document.heading(u"Váhy a\u00a0lžíce"_s);
    document.paragraph(u"Dále."_s);
    const QString text = document.text();
    EXPECT_EQ(plainText(withoutHeading(text, u"Váhy a lžíce"_s), 100).trimmed(), u"Dále."_s);
    EXPECT_EQ(withoutHeading(text, u"Váhy"_s), text) << "another name";
    EXPECT_EQ(withoutHeading(u"{\\rtf1 \\b Kapr\\b0\\par Text.}"_s, u"Kapr"_s), u"{\\rtf1 \\b \\b0 Text.}"_s)
        << "what follows is not bold";
    EXPECT_EQ(withoutHeading(u"{\\rtf1 Kapr"_s, u"Kapr"_s), u"{\\rtf1 Kapr"_s);
}

TEST(KeywordIndex, ShowsWholeFirstSentences) {
    const struct {
        const char *text, *shown;
    } cases[] = {{"Ryba do 1. 9. hájená. Potom ne.", "Ryba do 1. 9. hájená."},
                 {"Plave? Ano.", "Plave?"},
                 {"Bez konce", "Bez konce"}};
    for (const auto& c : cases) {
        Cookbook book({Cookbook::keyword(1, u"Slovo"_s, QString::fromUtf8(c.text))});
        EXPECT_EQ(readLookupTable(book.run.database, kKeywordIndexItem).rows.at(0).cells.at(1),
                  QString::fromUtf8(c.shown));
    }
}

TEST(Pages, EachScreenFindsItsHelp) {
    Cookbook book({Cookbook::page(10, u"Jak na to"_s, u"x"_s, {}),
                   Cookbook::page(300, u"Recept"_s, u"x"_s, u"frmRecept"_s),
                   Cookbook::page(20, u"Seznamy"_s, u"x"_s, u"frmSeznam, frmRychlyRecept"_s)});
    EXPECT_EQ(helpPageFor(book.run.database, u"frmRecept"_s), u"300"_s);
    EXPECT_EQ(helpPageFor(book.run.database, u"frmRychlyRecept"_s), u"20"_s);
    EXPECT_EQ(helpPageFor(book.run.database, u"frmSez"_s), QString());
    EXPECT_EQ(helpPageFor(book.run.database, {}), QString()) << "a page of no screen is the help of none";
    ASSERT_TRUE(readPage(book.run.database, u"300"_s));
    EXPECT_EQ(readPage(book.run.database, u"300"_s)->name, u"Recept"_s);
    for (const char* id : {"", "abc", "11", "70000"})
        EXPECT_FALSE(readPage(book.run.database, QString::fromUtf8(id))) << id;
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
