#include "core/quantities.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace sarne {
namespace {

const QLocale kCzech(QLocale::Czech, QLocale::CzechRepublic);

/// What \a stored shows when it is not recalculated.
QString shown(double stored, const QLocale& locale = kCzech) {
    return Quantities(4, 4, locale).text(stored);
}

// Hundredths first, halves to the even neighbour of the decimal text; tenths below ten; whole numbers below a
// hundred; whole tens from there on; nothing for what is too small, negative, or beyond all bounds.
TEST(QuantitiesTest, ShowsNoMorePrecisionThanAKitchenHas) {
    const QString cases = QStringLiteral(
        "0.125:0,1 0.135:0,1 0.165:0,2 0.05:0,05 0.045:0,04 0.055:0,06 0.005: 0.0051:0,01 0.015:0,02 "
        "0.094:0,09 0.095:0,1 0.1:0,1 0.25:0,2 0.35:0,4 1:1 3.33:3,3 9.94:9,9 9.95:10 9.994:10 10:10 "
        "10.5:10 11.5:12 12.5:12 12.505:12 12.51:13 95:95 99.4:99 99.5:100 99.99:100 100:100 105:100 "
        "105.01:110 115:120 150:150 154:150 155:160 375:380 385:380 999.9:1000 1e6:1000000 "
        "16777216:16777220 0: -1: -250: 0.004: 1e300:");
    for (const QString& c : cases.split(u' '))
        EXPECT_EQ(shown(c.section(u':', 0, 0).toDouble()), c.section(u':', 1)) << c.toStdString();
}

TEST(QuantitiesTest, RoundsTheProductOnItsShortestDecimalText) {
    const struct {
        double stored, portions;
        int base;
        float amount;
    } cases[] = {{0.125, 1, 1, 0.12F}, {0.135, 1, 1, 0.14F}, {0.165, 1, 1, 0.16F},      {12.505, 1, 1, 12.5F},
                 {0.27, 2, 4, 0.14F},  {0.25, 2, 4, 0.12F},  {0.375, 1, 3, 0.12F},      {250, 6, 4, 375},
                 {0.1, 1, 10, 0.01F},  {1, 1, 3, 0.33F},     {2, 1, 3, 0.67F},          {10, 2.5, 4, 6.25F},
                 {1e6, 99, 1, 99e6F},  {-5, 6, 4, -7.5F},    {16777217, 1, 1, 16777216}};
    for (const auto& c : cases)
        EXPECT_EQ(Quantities(c.portions, c.base, kCzech).amount(c.stored), c.amount)
            << c.stored << " for " << c.portions << " instead of " << c.base;
}

TEST(QuantitiesTest, WritesNumbersAsTheUserDoes) {
    EXPECT_EQ(shown(0.05, QLocale(QLocale::English)), QStringLiteral("0.05"));
    EXPECT_EQ(shown(1234567, QLocale(QLocale::English)), QStringLiteral("1234570"));
    EXPECT_EQ(Quantities(2.5, 4, kCzech).portionsText(), QStringLiteral("2,5"));
    EXPECT_EQ(Quantities(7, 3, kCzech).portionsText(), QStringLiteral("7")) << "a third is no exact number";
    EXPECT_EQ(Quantities(6, 4, kCzech).portionsText(), QStringLiteral("6"));
}

TEST(QuantitiesTest, WithoutPortionsThereAreNoAmounts) {
    const double endless = std::numeric_limits<double>::infinity();
    const struct {
        double portions;
        int base;
    } none[] = {{0, 4}, {-2, 4}, {4, 0}, {4, -1}, {4, 256}, {0, 0}, {std::nan(""), 4}};
    for (const auto& c : none) {
        const Quantities quantities(c.portions, c.base, kCzech);
        EXPECT_EQ(quantities.factor(), 0) << c.portions << " of " << c.base;
        EXPECT_EQ(quantities.text(250), QString());
        EXPECT_EQ(quantities.portionsText(), QStringLiteral("0"));
    }
    EXPECT_EQ(Quantities(endless, 4, kCzech).text(250), QString());
    EXPECT_EQ(Quantities(255, 255, kCzech).text(250), QStringLiteral("250"));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
