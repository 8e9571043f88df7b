#include "screens/navigation/buttontable.h"

#include <gtest/gtest.h>

#include <set>

namespace sarne {
namespace {

TEST(ButtonTable, PositionsAreFixedAndAreasComeFromTheArt) {
    const auto table = buttonTable(QStringLiteral(
        "# tlačítko vlevo nahoře šířka výška snímek\n0 9000 300 900 2000 1200 2100\n"
        "5 4000 5000 x 600 700 800\n6 1 2 0 4 5 6\n19 0 0 600 600 600 600\n99 1 1 1 1 1 1\nnic"));
    EXPECT_EQ(table[0].position, QPoint(9335, 370));
    EXPECT_EQ(table[0].hotArea, QRect(9000, 300, 900, 2000));
    EXPECT_EQ(table[0].frame, QSize(1200, 2100));
    EXPECT_EQ(table[5].hotArea.topLeft(), QPoint(4288, 5003)) << "a bad line leaves the button its own place";
    EXPECT_EQ(table[6].hotArea.topLeft(), QPoint(4874, 1320));
    EXPECT_EQ(table[18].position, QPoint(8736, 6721));
    EXPECT_FALSE(table[19].isShown());
    EXPECT_FALSE(table[20].isShown());
}

TEST(ButtonTable, ArrowsGoToTheNearestAndEveryButtonCanBeReached) {
    const auto table = buttonTable({});
    EXPECT_EQ(nearestButton(table, 5, Direction::Right), 8);
    EXPECT_EQ(nearestButton(table, 0, Direction::Up), 0) << "nothing further up";
    EXPECT_EQ(nearestButton(table, -5, Direction::Down), firstButton(table));
    std::set<int> reached{firstButton(table)}, before;
    while (before != reached) {
        before = reached;
        for (const int from : before) {
            for (const auto direction : {Direction::Left, Direction::Right, Direction::Up, Direction::Down})
                reached.insert(nearestButton(table, from, direction));
        }
    }
    EXPECT_EQ(reached.size(), 19u);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
