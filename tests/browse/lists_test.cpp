#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "browse/browsefixture.h"
#include "screens/browse/listentries.h"
#include "screens/browse/listpages.h"

namespace sarne {
namespace {

ListPages pagesOf(int count, int rows = 10) {
    ListPages pages;
    pages.fill(count, rows);
    return pages;
}

TEST(ListPages, ThePageStaysFilled) {
    ListPages pages = pagesOf(25);
    const struct {
        int step, top;
    } steps[] = {{-1, 0}, {1, 1}, {10, 11}, {10, 15}, {1, 15}, {-25, 0}, {25, 15}, {-7, 8}};
    for (const auto& [step, top] : steps) {
        pages.scroll(step);
        EXPECT_EQ(pages.top(), top) << "after a step of " << step;
    }
    EXPECT_EQ(pagesOf(25, 15).halfPage(1), 7);
    EXPECT_EQ(pagesOf(25, 15).halfPage(-1), -7) << "the remainder is dropped, not rounded down";
}

TEST(ListPages, ArrowsAreForListsLongerThanAPage) {
    EXPECT_FALSE(pagesOf(10).scrolls());
    ListPages one = pagesOf(11);
    EXPECT_TRUE(one.scrolls());
    one.scroll(5);
    EXPECT_EQ(one.top(), 1);
    ListPages few = pagesOf(3);
    few.scroll(2);
    EXPECT_EQ(few.top(), 0);
    EXPECT_EQ(few.entryAt(3), 2);
    EXPECT_EQ(few.entryAt(4), -1);
    EXPECT_FALSE(few.selectRow(4));
    EXPECT_EQ(few.selectedRow(), 0);
}

TEST(ListPages, TheSelectionBelongsToItsEntry) {
    ListPages pages = pagesOf(25);
    EXPECT_TRUE(pages.selectRow(4));
    EXPECT_FALSE(pages.selectRow(4));
    pages.scroll(2);
    EXPECT_EQ(pages.selectedRow(), 2);
    pages.scroll(5);
    EXPECT_EQ(pages.selectedRow(), 0);
    EXPECT_EQ(pages.selectedEntry(), 3);
    EXPECT_TRUE(pages.moveRow(1)) << "what is not seen is not moved: the page's first row";
    EXPECT_EQ(pages.selectedEntry(), 7);
}

TEST(ListPages, KeysMoveTheSelectionAndThePageFollows) {
    ListPages pages = pagesOf(25);
    pages.moveRow(-1);
    EXPECT_EQ(pages.selectedRow(), 10);
    pages.moveRow(1);
    EXPECT_EQ(pages.top(), 1);
    EXPECT_EQ(pages.selectedRow(), 10);
    pages.movePage(1);
    EXPECT_EQ(pages.top(), 11);
    EXPECT_EQ(pages.selectedEntry(), 20);
    pages.movePage(1);
    EXPECT_EQ(pages.selectedEntry(), 24);
    EXPECT_FALSE(pages.movePage(1));
    EXPECT_TRUE(pages.moveToFirst());
    EXPECT_EQ(pages.top(), 0);
    EXPECT_FALSE(pages.moveRow(-1));
    EXPECT_TRUE(pages.moveToLast());
    EXPECT_EQ(pages.top(), 15);
    ListPages few = pagesOf(3);
    few.selectRow(1);
    EXPECT_FALSE(few.movePage(1));
    EXPECT_EQ(few.selectedRow(), 1);
}

TEST(ListPages, NoSequenceOfStepsLeavesTheList) {
    std::mt19937 random(7);
    for (const int count : {0, 1, 9, 10, 11, 251}) {
        ListPages pages = pagesOf(count);
        for (int i = 0; i < 2000; ++i) {
            const int step = int(random() % 41) - 20;
            const std::function<void()> moves[] = {[&] { pages.scroll(step); },
                                                   [&] { pages.moveRow(step < 0 ? -1 : 1); },
                                                   [&] { pages.movePage(step < 0 ? -1 : 1); },
                                                   [&] { pages.selectRow(step); },
                                                   [&] { pages.moveToLast(); },
                                                   [&] { pages.moveToFirst(); }};
            moves[random() % std::size(moves)]();
            ASSERT_GE(pages.top(), 0);
            ASSERT_LE(pages.top(), std::max(0, count - 10));
            ASSERT_LT(pages.selectedEntry(), count);
            ASSERT_TRUE(pages.selectedRow() == 0 ||
                        pages.entryAt(pages.selectedRow()) == pages.selectedEntry());
        }
    }
}

using Ids = std::vector<std::int16_t>;

TEST(ListIds, EachEndsWithAComma) {
    const struct {
        const char* text;
        Ids ids;
    } cases[] = {{"12,40,7,", {12, 40, 7}},
                 {"5", {}},
                 {"5,9", {5}},
                 {"", {}},
                 {",", {}},
                 {",,3,", {3}},
                 {"32767,32768,", {32767}},
                 {"a,4,5x, 6 ,", {4, 6}},
                 {"5,5,", {5, 5}},
                 {"65541,", {}}};
    for (const auto& c : cases) EXPECT_EQ(parseIds(QString::fromLatin1(c.text)), c.ids) << c.text;
}

class ListEntriesTest : public BrowseTest {
  protected:
    QStringList names(const char* table, const char* ids) {
        QStringList all;
        for (const ListEntry& entry :
             readEntries(run.database, QString::fromLatin1(table), QString::fromLatin1(ids)))
            all << entry.Nazev;
        return all;
    }
};

TEST_F(ListEntriesTest, TheIdsGiveTheOrderAndMissingOnesAreSkipped) {
    EXPECT_EQ(names("recepty", "7,999,3,"), (QStringList{u"Recept 007"_s, u"Recept 003"_s}));
    EXPECT_EQ(names("recepty", "5"), QStringList());
    EXPECT_EQ(names("recepty", "").size(), kRecipes);
    EXPECT_EQ(names("recepty", "").front(), u"Recept 001"_s);
    EXPECT_EQ(names("help", "2,"), QStringList{u"Fotografie"_s});
    EXPECT_EQ(names("nowhere", "1,"), QStringList());
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
