#include <gtest/gtest.h>

#include "browse/browsefixture.h"
#include "screens/browse/listentries.h"
#include "screens/browse/listpages.h"
#include "support/kept.h"

namespace sarne {
namespace {

ListPages pagesOf(int count, int rows = 10) {
    ListPages pages;
    pages.fill(count, rows);
    return pages;
}

/// Where \a pages are after each of \a moves: "3: top 2 row 1 of entry 2", with "!" where nothing moved.
QString after(ListPages pages, const QStringList& moves) {
    QStringList all;
    for (const QString& move : moves) {
        const int by = move.mid(1).toInt();
        const QChar kind = move[0];
        const bool moved = kind == u's'   ? (pages.scroll(by), true)
                           : kind == u'v' ? pages.selectRow(by)
                           : kind == u'r' ? pages.moveRow(by)
                           : kind == u'p' ? pages.movePage(by)
                           : kind == u'f' ? pages.moveToFirst()
                                          : pages.moveToLast();
        all << u"%1/%2/%3%4"_s.arg(pages.top())
                   .arg(pages.selectedRow())
                   .arg(pages.selectedEntry())
                   .arg(moved ? u""_s : u"!"_s);
    }
    return all.join(u' ');
}

TEST(ListPages, MoveAsTheyAreAsked) {
    test::expectCases(u"stranky"_s, [](const QString& text) {
        const QStringList words = text.split(u' ');
        const ListPages pages = pagesOf(words[0].toInt());
        return (pages.scrolls() ? u"scrolls "_s : u"stands "_s) + after(pages, words.mid(1));
    });
    EXPECT_EQ(pagesOf(25, 15).halfPage(1), 7);
    EXPECT_EQ(pagesOf(25, 15).halfPage(-1), -7) << "the remainder is dropped, not rounded down";
    EXPECT_EQ(pagesOf(3).entryAt(3), 2);
    EXPECT_EQ(pagesOf(3).entryAt(4), -1);
}

TEST(ListIds, EachEndsWithAComma) {
    test::expectCases(u"cisla"_s, [](const QString& text) {
        QStringList ids;
        for (const int id : parseIds(text)) ids << QString::number(id);
        return ids.join(u' ');
    });
}

using ListEntriesTest = BrowseTest;

TEST_F(ListEntriesTest, TheIdsGiveTheOrderAndMissingOnesAreSkipped) {
    test::expectCases(u"polozky"_s, [this](const QString& text) {
        QStringList names;
        for (const ListEntry& entry :
             readEntries(run.database, text.section(u' ', 0, 0), text.section(u' ', 1)))
            names << entry.Nazev;
        return u"%1: %2"_s.arg(names.size()).arg(names.mid(0, 3).join(u", "_s));
    });
}

TEST_F(ListEntriesTest, TheListHoldsTheFirst251) {
    QString ids;
    for (int i = 0; i < 300; ++i) ids += QString::number(i % kRecipes + 1) + u',';
    EXPECT_EQ(readEntries(run.database, u"recepty"_s, ids).size(), 251u);
    run.database.transaction([&] {
        for (int id = 51; id <= 300; ++id)
            run.database.Execute(u"INSERT INTO Recepty (ID, Nazev) VALUES (%1, 'X')"_s.arg(id));
        return true;
    });
    EXPECT_EQ(readEntries(run.database, u"recepty"_s, {}).back().id, 251);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
