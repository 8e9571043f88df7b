#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QTemporaryDir>
#include <climits>
#include <cmath>
#include <limits>

#include "core/checked.h"
#include "core/numbertext.h"
#include "core/quantities.h"
#include "core/sealedfile.h"
#include "core/value.h"
#include "support/files.h"

namespace sarne {
namespace {

TEST(LeadingNumber, ReadsWhatStandsAtTheBeginningAndNothingElse) {
    const struct {
        const char16_t* text;
        double number;
    } cases[] = {{u"4", 4},      {u" 7", 7},  {u"12abc", 12},   {u"2.5", 2.5}, {u"2,5", 2},
                 {u"-3", -3},    {u"abc", 0}, {u"", 0},         {u".5x", .5},  {u"1e2", 100},
                 {u"1e", 1},     {u"--3", 0}, {u"+6 porcí", 6}, {u".", 0},     {u"7.", 7},
                 {u"\t 9\n", 9}, {u"e5", 0},  {u"5e+", 5},      {u"1e999", 0}, {u"-1e999", 0}};
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(leadingNumber(c.text), c.number) << QStringView(c.text).toString().toStdString();
}

TEST(RecordId, NeverWraps) {
    EXPECT_EQ(toRecordId(qint64{32767}), 32767);
    EXPECT_FALSE(toRecordId(qint64{32768}));
    EXPECT_FALSE(toRecordId(qint64{65537}));
    EXPECT_EQ(toRecordId(QStringView(u" 12 ")), 12);
    EXPECT_FALSE(toRecordId(QStringView(u"12a")));
    EXPECT_FALSE(toRecordId(QStringView(u"")));
    EXPECT_EQ(leadingRecordId(u" 7.9 minut"), 7);
    for (const auto* text : {u"1e30", u"-1e30", u"1e999", u"32768"}) EXPECT_FALSE(leadingRecordId(text));
    EXPECT_FALSE(toRecordId(QStringView(u"99999999999999999999")));
}

TEST(Checked, ConversionsStayInRange) {
    const double infinite = std::numeric_limits<double>::infinity();
    const struct {
        double value;
        int whole;
    } cases[] = {{2.9, 2},
                 {-2.9, -2},
                 {1e308, INT_MAX},
                 {-infinite, INT_MIN},
                 {2147483648., INT_MAX},
                 {-2147483648., INT_MIN}};
    for (const auto& c : cases) EXPECT_EQ(wholeNumber(c.value), c.whole) << c.value;
    EXPECT_EQ(wholeNumber(infinite - infinite), 0);
    EXPECT_EQ(wholeNumber<qint64>(9.3e18), std::numeric_limits<qint64>::max());
    EXPECT_EQ(boundedProduct(1 << 20, -3), -(3 << 20));
    EXPECT_EQ(boundedProduct(6442450944, 2147483647), std::numeric_limits<qint64>::max());
    EXPECT_EQ(boundedProduct(-6442450944, 2147483647), std::numeric_limits<qint64>::min());
}

TEST(SealedFile, AnyDamageBreaksTheSeal) {
    QTemporaryDir folder;
    const QString name = folder.filePath(u"Sarne.rcc"_s);
    const auto write = [&](const QByteArray& bytes) { ASSERT_TRUE(test::write(name, bytes)); };
    write(QByteArray(700000, 'q'));
    EXPECT_FALSE(isSealed(name)) << "not sealed yet";
    ASSERT_TRUE(sealFile(name));
    EXPECT_TRUE(isSealed(name));
    const QByteArray sound = test::bytesOf(name);
    for (const qsizetype at : {qsizetype{0}, qsizetype{300000}, sound.size() - 17, sound.size() - 1}) {
        QByteArray damaged = sound;
        damaged[at] = 'x';
        write(damaged);
        EXPECT_FALSE(isSealed(name)) << at;
        write(sound.first(at));
        EXPECT_FALSE(isSealed(name)) << at;
    }
    EXPECT_FALSE(isSealed(folder.path()));
    const QByteArray pages = sound.first(sound.size() - 17);
    write(pages + QCryptographicHash::hash(pages, QCryptographicHash::Md5));
    EXPECT_TRUE(isSealed(name)) << "a disc of an earlier edition";
}

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
    EXPECT_EQ(numberText(.05f, czech), u"0,05"_s);
    EXPECT_EQ(numberText(.05f, english), u"0.05"_s);
    EXPECT_EQ(numberText(12.f, czech), u"12"_s);
    EXPECT_EQ(numberText(1234567.f, czech), u"1234567"_s);
    EXPECT_EQ(numberText(-0.f, czech), u"0"_s);
    EXPECT_EQ(numberText(1e20, czech), u"100000000000000000000"_s);
}

const QLocale kCzech(QLocale::Czech, QLocale::CzechRepublic);

/// What \a stored shows when it is not recalculated.
QString shown(double stored, const QLocale& locale = kCzech) {
    return Quantities(4, 4, locale).text(stored);
}

// Hundredths first, halves to the even neighbour of the decimal text; tenths below ten; whole numbers below a
// hundred; whole tens from there on; nothing for what is too small, negative, or beyond all bounds.
TEST(QuantitiesTest, ShowsNoMorePrecisionThanAKitchenHas) {
    const QString cases =
        u"0.125:0,1 0.135:0,1 0.165:0,2 0.05:0,05 0.045:0,04 0.055:0,06 0.005: 0.0051:0,01 0.015:0,02 "
        "0.094:0,09 0.095:0,1 0.1:0,1 0.25:0,2 0.35:0,4 1:1 3.33:3,3 9.94:9,9 9.95:10 9.994:10 10:10 "
        "10.5:10 11.5:12 12.5:12 12.505:12 12.51:13 95:95 99.4:99 99.5:100 99.99:100 100:100 105:100 "
        "105.01:110 115:120 150:150 154:150 155:160 375:380 385:380 999.9:1000 1e6:1000000 "
        "16777216:16777220 0: -1: -250: 0.004: 1e300:"_s;
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
    EXPECT_EQ(shown(0.05, QLocale(QLocale::English)), u"0.05"_s);
    EXPECT_EQ(shown(1234567, QLocale(QLocale::English)), u"1234570"_s);
    EXPECT_EQ(Quantities(2.5, 4, kCzech).portionsText(), u"2,5"_s);
    EXPECT_EQ(Quantities(31, 3, kCzech).portionsText(), u"31"_s) << "a third is no exact number";
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
        EXPECT_EQ(quantities.portionsText(), u"0"_s);
    }
    EXPECT_EQ(Quantities(endless, 4, kCzech).text(250), QString());
    EXPECT_EQ(Quantities(255, 255, kCzech).text(250), u"250"_s);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
