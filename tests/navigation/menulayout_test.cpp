#include "screens/navigation/menulayout.h"

#include <gtest/gtest.h>

namespace sarne {
namespace {

constexpr QRect kScreen(0, 0, 12000, 9000);

TEST(MenuLayout, EveryLevelIsWholeOnTheScreenAndNothingOverlaps) {
    const struct {
        int count;
        double scale;
    } cases[] = {{0, 1}, {1, 1}, {9, 1}, {27, 1}, {28, 1}, {84, 1}, {9, 1.5}, {84, 1.5}};
    for (const auto& [count, scale] : cases) {
        for (const QPoint corner :
             {QPoint(0, 0), QPoint(9335, 370), QPoint(267, 8186), QPoint(8736, 6721), QPoint(11990, 8990)}) {
            const MenuContent content{std::vector<int>(size_t(count), int(2500 * scale)), 1800, 0, count == 1,
                                      scale};
            const auto geometry = layOutMenu(content, {corner, QSize(1, 1)});
            ASSERT_TRUE(kScreen.contains(geometry.level)) << count;
            ASSERT_EQ(geometry.items.size(), size_t(count));
            if (count == 9) {
                EXPECT_GE(geometry.items[0].height(), int(kMenuLine * scale)) << "texts are that much higher";
            }
            const QRect inside({0, 0}, geometry.level.size());
            for (size_t i = 0; i < geometry.items.size(); ++i) {
                EXPECT_TRUE(inside.contains(geometry.items[i]));
                EXPECT_GE(geometry.items[i].width(), 2500) << "readable";
                EXPECT_FALSE(geometry.items[i].intersects(geometry.heading));
                EXPECT_FALSE(geometry.items[i].intersects(geometry.entry));
                for (size_t j = 0; j < i; ++j) ASSERT_FALSE(geometry.items[i].intersects(geometry.items[j]));
            }
        }
    }
}

TEST(MenuLayout, ALevelStandsBesideWhatOpenedIt) {
    const MenuContent content{std::vector<int>(5, 2000)};
    const QRect left(100, 3000, 2500, 300), right(9000, 3000, 2500, 300);
    EXPECT_EQ(layOutMenu(content, left).level.left(), left.right() + 1);
    EXPECT_EQ(layOutMenu(content, left).level.top(), 3000);
    EXPECT_EQ(layOutMenu(content, right).level.right() + 1, right.left()) << "the other side";
}

TEST(MenuLayout, ColumnsFillALevelThatItsHeadingMakesWider) {
    MenuContent content{std::vector<int>(5, 1000), 4000};
    const auto wide = layOutMenu(content, {0, 0, 1, 1});
    EXPECT_EQ(wide.items[0].left(), wide.level.width() - 1 - wide.items[0].right());
    content.itemWidths = std::vector<int>(40, 1000);
    const auto columns = layOutMenu(content, {0, 0, 1, 1});
    EXPECT_EQ(columns.items[0].left(), columns.level.width() - 1 - columns.items[39].right());
}

TEST(MenuLayout, ALevelKeepsToTheHeightItIsGivenAndAHintHasItsLine) {
    for (const int count : {1, 13, 84}) {
        MenuContent content{std::vector<int>(size_t(count), 1700), 0, 2000};
        const auto geometry = layOutMenu(content, {0, 0, 1, 1}, 8000);
        EXPECT_LE(geometry.level.height(), 8000) << count;
        EXPECT_TRUE(kScreen.contains(geometry.level)) << count;
        EXPECT_GT(geometry.hint.top(), geometry.items.front().bottom());
        EXPECT_TRUE(QRect({0, 0}, geometry.level.size()).contains(geometry.hint));
    }
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
