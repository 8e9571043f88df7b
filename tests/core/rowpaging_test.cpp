#include "core/rowpaging.h"

#include <gtest/gtest.h>

namespace sarne {
namespace {

TEST(RowPaging, ShowsWholeRowsAndNoEmptyEnd) {
    const struct {
        std::vector<int> heights;
        int view, scroll, top, end;
    } cases[] = {
        {{10, 10, 10}, 30, 1, 0, 3},           // all fit: nothing to scroll
        {{10, 10, 10, 10}, 30, 99, 1, 4},      // the last page is full
        {{10, 25, 10, 10, 10}, 30, 99, 2, 5},  // rows differ: the end still fits
        {{10, 25, 10, 10, 10}, 30, 1, 1, 2},   // a high row leaves no room for the next
        {{10, 90, 10}, 30, 1, 1, 2},           // higher than the view: seen alone
        {{10, 10, 90}, 30, 99, 2, 3},          // even at the end
        {{}, 30, 1, 0, 0},
    };
    for (const auto& c : cases) {
        RowPaging rows;
        rows.reset(c.heights, c.view);
        rows.scrollBy(c.scroll);
        EXPECT_EQ(rows.top(), c.top);
        EXPECT_EQ(rows.end(), c.end);
        rows.scrollBy(-1000);
        EXPECT_EQ(rows.top(), 0);
    }
}

TEST(RowPaging, TheSelectionIsAlwaysSeen) {
    RowPaging rows;
    rows.reset(std::vector<int>(20, 10), 45);
    rows.scrollBy(3);
    rows.moveBy(1);
    EXPECT_EQ(rows.selected(), 3) << "begins at the first row seen";
    for (int move : {1, 1, 1, 1, -7, 30, -2, -99}) {
        rows.moveBy(move);
        EXPECT_TRUE(rows.sees(rows.selected())) << rows.selected();
    }
    EXPECT_EQ(rows.selected(), 0);
    EXPECT_FALSE(rows.moveBy(-1));
    rows.movePage(1);
    EXPECT_EQ(rows.selected(), 4);
    rows.jumpTo(10);
    EXPECT_EQ(rows.top(), 10);
    rows.jumpTo(19);
    EXPECT_EQ(rows.end(), 20);
    EXPECT_FALSE(rows.jumpTo(20));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
