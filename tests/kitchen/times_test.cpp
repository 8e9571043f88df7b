#include <gtest/gtest.h>

#include <map>

#include "core/czech.h"
#include "kitchen/foundtimes.h"
#include "kitchen/timers.h"
#include "kitchen/units.h"
#include "support/kept.h"

namespace sarne {
namespace {

const QLocale kCzech(QLocale::Czech, QLocale::CzechRepublic);

TEST(FindTimes, WhatRecipesSay) {
    test::expectCases(u"casy"_s, [](const QString& text) {
        QStringList all;
        for (const auto& time : findTimes(text)) all << u"%1–%2"_s.arg(time.shortest).arg(time.longest);
        return all.join(u' ');
    });
}

TEST(FindTimes, SaysWhereTheWordsStandAlsoBehindHardBlanks) {
    const QString text = u"Vaříme 10–12\u00a0minut doměkka."_s;
    const auto found = findTimes(text);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(text.mid(found[0].at, found[0].length), u"10–12\u00a0minut"_s);
}

TEST(Times, AndAmountsAreWrittenAsOneReadsThem) {
    const std::map<QString, Noun> nouns{
        {u"porce"_s, portionNoun()},
        {u"stroužek"_s, {u"stroužek"_s, u"stroužky"_s, u"stroužků"_s, u"stroužku"_s}}};
    test::expectCases(u"psano"_s, [&](const QString& text) {
        const QString kind = text.section(u' ', 0, 0), unit = text.section(u' ', 2);
        const double number = text.section(u' ', 1, 1).toDouble();
        if (kind == u"hodiny") return clockText(qint64(number));
        if (kind == u"doba") return durationText(int(number));
        return kind == u"koupit" ? boughtAmountText(number, unit, kCzech)
                                 : counted(number, nouns.at(unit), kCzech);
    });
}

TEST(KitchenTimers, RingOnceInTheOrderInWhichTheyEnd) {
    KitchenTimers timers;
    const int potatoes = timers.start(u"brambory"_s, 1200, 0);
    const int fish = timers.start(u"ryba"_s, 600, 0);
    EXPECT_EQ(timers.all().front().id, fish);
    EXPECT_TRUE(timers.over(599999).empty());
    ASSERT_EQ(timers.over(600000).size(), 1u);
    EXPECT_TRUE(timers.over(600001).empty());
    EXPECT_TRUE(timers.ringing());
    EXPECT_EQ(timers.running(), 1);
    // Five more minutes from now, not from the end that is past.
    timers.prolong(fish, 300, 700000);
    EXPECT_FALSE(timers.ringing());
    EXPECT_EQ(timers.all().front().left(700000), 300000);
    EXPECT_EQ(timers.over(5000000).size(), 2u);
    timers.stop(fish);
    timers.stop(potatoes);
    timers.stop(77);
    EXPECT_FALSE(timers.ringing());
    EXPECT_TRUE(timers.all().empty());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
