#include <gtest/gtest.h>

#include <algorithm>

#include "screens/browse/photogrid.h"

namespace sarne {
namespace {

TEST(PhotoGrid, SevenInARowAndGroupsThatOverlap) {
    QRegion taken;
    for (int cell = 1; cell <= kGridCells; ++cell) {
        const QRect place = gridCellRect(cell);
        EXPECT_FALSE(taken.intersects(place)) << cell;
        taken += place;
    }
    EXPECT_TRUE(QRect(0, 0, 12000, 9000).contains(taken.boundingRect()));
    EXPECT_EQ(gridCellRect(8).x(), gridCellRect(50).x());
    const size_t sizes[] = {5, 29, 22, 4, 0};
    for (int group = 0; group < 5; ++group) EXPECT_EQ(gridGroupIds(group).size(), sizes[group]);
    for (const int group : {1, 2}) EXPECT_EQ(std::ranges::count(gridGroupIds(group), 13), 1);
    for (int cell = 1; cell <= kGridCells; ++cell) {
        int groups = 0;
        for (int group = 0; group < kGridGroups; ++group)
            groups += static_cast<int>(std::ranges::count(gridGroupIds(group), cell));
        EXPECT_GE(groups, 1) << "recipe " << cell << " is in no group";
    }
}

TEST(PhotoGrid, KeysMoveOverTheLivingCells) {
    PhotoGrid grid;
    const auto go = [&](std::initializer_list<std::pair<int, int>> moves) {
        for (const auto& [right, down] : moves) grid.move(right, down);
        return grid.cell();
    };
    EXPECT_EQ(go({{1, 0}}), 1) << "without a choice the first";
    EXPECT_EQ(go({{0, 1}, {1, 0}}), 9);
    EXPECT_FALSE(go({{0, -1}}) != 2 || grid.move(0, -1)) << "no row above the first";
    EXPECT_EQ(go({{-1, 0}, {-1, 0}}), 1);
    grid.lock(44);
    EXPECT_EQ(go({{0, 1}}), 50) << "the nearest cell of the short last row";
    EXPECT_FALSE(grid.move(1, 0));
    grid.setGroup(3);
    EXPECT_EQ(grid.cell(), 50);
    EXPECT_EQ(go({{-1, 0}}), 46);
    EXPECT_EQ(go({{0, -1}}), 35);
    EXPECT_EQ(go({{0, -1}}), 9);
    grid.setGroup(0);
    EXPECT_EQ(grid.cell(), 0) << "a choice outside the group is given up";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
