#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QRegularExpression>
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
#include "support/kept.h"

namespace sarne {
namespace {

TEST(LeadingNumber, ReadsWhatStandsAtTheBeginningAndNothingElse) {
    test::expectCases(u"cislo-na-zacatku"_s,
                      [](const QString& text) { return QString::number(leadingNumber(text)); });
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
    test::expectCases(u"zaokrouhleni"_s, [](const QString& text) {
        const float value = text.section(u' ', 0, 0).toFloat();
        return QString::number(roundHalfEven(value, text.section(u' ', 1).toInt()));
    });
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

TEST(QuantitiesTest, ShowsNoMorePrecisionThanAKitchenHas) {
    test::expectCases(u"mnozstvi"_s, [](const QString& stored) { return shown(stored.toDouble()); });
}

TEST(QuantitiesTest, RoundsTheProductOnItsShortestDecimalText) {
    test::expectCases(u"soucin"_s, [](const QString& text) {
        const QStringList parts = text.split(QRegularExpression(u"[ /]"_s));
        const Quantities quantities(parts[1].toDouble(), parts[2].toInt(), kCzech);
        return numberText(quantities.amount(parts[0].toDouble()), QLocale::c());
    });
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
