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
#include "support/kept.h"

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
    const char* const kinds[] = {"none", "keyword", "video", "beep", "picture"};
    test::expectCases(u"cile"_s, [&](const QString& text) {
        const GalleryTarget target = GalleryTarget::of(text);
        return u"%1 %2"_s.arg(QLatin1String(kinds[int(target.kind)])).arg(target.number);
    });
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
    QString letters;
    for (const QChar first : u"ÁÄĎÉĚÍŇÓÖŤÚŮÜÝŘŠŽé"_s) letters += indexLetter(first + u"x"_s);
    EXPECT_EQ(letters, u"AADEEINOOTUUUYŘŠŽE"_s);
    EXPECT_EQ(indexLetter({}), QString());
}

TEST(KeywordIndex, ShowsWholeFirstSentencesWithoutHeadingAndMarkers) {
    test::expectCases(u"nahledy"_s, [](const QString& text) {
        Cookbook book({Cookbook::keyword(1, u"Kapr"_s, text)});
        return readLookupTable(book.run.database, kKeywordIndexItem).rows.at(0).cells.at(1);
    });
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

TEST(Pages, EachScreenFindsItsHelp) {
    Cookbook book({Cookbook::page(10, u"Jak na to"_s, u"x"_s, {}),
                   Cookbook::page(300, u"Recept"_s, u"x"_s, u"frmRecept"_s),
                   Cookbook::page(20, u"Seznamy"_s, u"x"_s, u"frmSeznam, frmRychlyRecept"_s)});
    const std::pair<const char*, const char*> pages[] = {
        {"frmRecept", "300"}, {"frmRychlyRecept", "20"}, {"frmSez", ""}, {"", ""}};
    for (const auto& [form, page] : pages)
        EXPECT_EQ(helpPageFor(book.run.database, QLatin1String(form)), QLatin1String(page)) << form;
    ASSERT_TRUE(readPage(book.run.database, u"300"_s));
    EXPECT_EQ(readPage(book.run.database, u"300"_s)->name, u"Recept"_s);
    for (const char* id : {"", "abc", "11", "70000"})
        EXPECT_FALSE(readPage(book.run.database, QString::fromUtf8(id))) << id;
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
