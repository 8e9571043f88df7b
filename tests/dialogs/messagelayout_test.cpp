#include "dialogs/messagelayout.h"

#include <gtest/gtest.h>

namespace sarne {
namespace {

TEST(MessageLayout, StylesComeApart) {
    const struct {
        int style, buttons, icon, defaultButton;
    } cases[] = {{16, 0, 1, 0}, {36, 4, 2, 0},  {48, 0, 3, 0}, {52, 4, 3, 0},
                 {64, 0, 4, 0}, {292, 4, 2, 1}, {515, 3, 0, 2}};
    for (const auto& c : cases) {
        const auto parts = MessageStyle::split(c.style);
        EXPECT_EQ(parts.buttons, c.buttons) << c.style;
        EXPECT_EQ(parts.icon, c.icon) << c.style;
        EXPECT_EQ(parts.defaultButton, c.defaultButton) << c.style;
    }
}

TEST(MessageLayout, EverySetHasItsCaptionsAndCodes) {
    const struct {
        const char* buttons;
        int escape;
    } sets[] = {{"OK=6", 0},
                {"Ano=6 Storno=2", 1},
                {"Storno=3 Znovu=4 Pokračovat=5", 0},
                {"Ano=6 Ne=7 Storno=2", 2},
                {"Ano=6 Ne=7", 1},
                {"Znovu=4 Storno=2", 1},
                {"", 0}};
    for (int set = 0; set < 7; ++set) {
        QStringList shown;
        for (const auto& button : messageButtons(set))
            shown << QStringLiteral("%1=%2").arg(button.caption).arg(button.code);
        EXPECT_EQ(shown.join(u' '), QString::fromUtf8(sets[set].buttons));
        EXPECT_EQ(escapeButton(set), sets[set].escape) << set;
    }
}

TEST(MessageLayout, IconAndTextShareTheirMiddle) {
    const auto low = layOutMessage({3000, 251}, true, 2);
    EXPECT_EQ(low.label.topLeft(), QPoint(840, 180 + (480 - 251) / 2));
    EXPECT_EQ(low.icon.topLeft(), QPoint(180, 180));
    EXPECT_EQ(low.buttons[0].top(), 180 + 480 + 180);
    EXPECT_EQ(low.box.width(), 840 + 3000 + 180);

    const auto tall = layOutMessage({6000, 1001}, true, 1);
    EXPECT_EQ(tall.label.topLeft(), QPoint(840, 180));
    EXPECT_EQ(tall.icon.top(), 180 + (1001 - 480) / 2);
    EXPECT_EQ(tall.buttons[0].top(), 180 + 1001 + 180);

    const auto bare = layOutMessage({6000, 251}, false, 1);
    EXPECT_EQ(bare.label.topLeft(), QPoint(180, 180));
    EXPECT_TRUE(bare.icon.isNull());
    EXPECT_EQ(bare.box.width(), 180 + 6000 + 180);
}

TEST(MessageLayout, TheBoxHoldsItsButtonsInTheMiddleOfTheScreen) {
    for (int count = 1; count <= 3; ++count) {
        const auto geometry = layOutMessage({100, 240}, false, count);
        const QRect inside({0, 0}, geometry.box.size());
        for (const QRect& button : geometry.buttons) EXPECT_TRUE(inside.contains(button));
        EXPECT_NEAR(geometry.box.center().x(), 6000, 1);
        EXPECT_NEAR(geometry.buttons.front().left(), inside.width() - 1 - geometry.buttons.back().right(), 1);
    }
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
