#include "tour/blackline.h"

#include <gtest/gtest.h>

namespace sarne {
namespace {

TEST(BlackLine, OneBrightPixelIsEnoughForARowAndAColumn) {
    QImage screen(40, 30, QImage::Format_RGB32);
    screen.fill(QColor(11, 34, 38));
    EXPECT_EQ(blackLine(screen), QString());
    for (int y = 0; y < 30; ++y) screen.setPixelColor(39, y, QColor(2, 2, 2));
    EXPECT_EQ(blackLine(screen), QStringLiteral("column 39 is plain black"));
    screen.setPixelColor(39, 17, QColor(20, 0, 0));
    EXPECT_EQ(blackLine(screen), QString());
    for (int x = 0; x < 40; ++x) screen.setPixelColor(x, 0, Qt::black);
    EXPECT_EQ(blackLine(screen), QStringLiteral("row 0 is plain black"));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
