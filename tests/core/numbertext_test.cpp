#include "core/numbertext.h"

#include <gtest/gtest.h>

#include <limits>

namespace sarne {
namespace {

TEST(RoundHalfEven, WorksOnTheShortestDecimalText) {
    const struct {
        float value;
        int decimals;
        float rounded;
    } cases[] = {{.125f, 2, .12f}, {.135f, 2, .14f},  {.165f, 2, .16f},   {12.505f, 2, 12.5f},
                 {.005f, 2, 0},    {.095f, 2, .1f},   {9.95f, 1, 10},     {9.85f, 1, 9.8f},
                 {12.5f, 0, 12},   {37.5f, 0, 38},    {99.5f, 0, 100},    {1e6f, 2, 1e6f},
                 {-2.5f, 0, -2},   {.1251f, 2, .13f}, {999.995f, 2, 1000}};
    for (const auto& c : cases) EXPECT_FLOAT_EQ(roundHalfEven(c.value, c.decimals), c.rounded) << c.value;
    EXPECT_DOUBLE_EQ(roundHalfEven(0.5, 0), 0);
    EXPECT_DOUBLE_EQ(roundHalfEven(1.5, 0), 2);
    const float infinite = std::numeric_limits<float>::infinity();
    EXPECT_EQ(roundHalfEven(infinite, 2), infinite);
}

TEST(NumberText, IsShortAndFollowsTheLocale) {
    const QLocale czech(QLocale::Czech), english(QLocale::English);
    EXPECT_EQ(numberText(.05f, czech), QStringLiteral("0,05"));
    EXPECT_EQ(numberText(.05f, english), QStringLiteral("0.05"));
    EXPECT_EQ(numberText(12.f, czech), QStringLiteral("12"));
    EXPECT_EQ(numberText(1234567.f, czech), QStringLiteral("1234567"));
    EXPECT_EQ(numberText(-0.f, czech), QStringLiteral("0"));
    EXPECT_EQ(numberText(1e20, czech), QStringLiteral("100000000000000000000"));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
