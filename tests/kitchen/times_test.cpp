#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <map>

#include "core/czech.h"
#include "db/userfile.h"
#include "kitchen/foundtimes.h"
#include "kitchen/timers.h"
#include "kitchen/timerstore.h"
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
        if (kind == u"mnozstvi") return amountText(number, unit, kCzech);
        return kind == u"koupit" ? boughtAmountText(number, unit, kCzech)
                                 : counted(number, nouns.at(unit), kCzech);
    });
}

TEST(KitchenTimers, RingOnceInTheOrderInWhichTheyEnd) {
    KitchenTimers timers;
    const int potatoes = timers.start(u"brambory"_s, 1200, 0);
    const int fish = timers.start(u"ryba"_s, 600, 0);
    EXPECT_EQ(timers.all().front().id, fish);
    timers.prolong(potatoes, 60, 5);
    EXPECT_EQ(timers.all().back().end, 1260000) << "of one that still runs its end is moved";
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
    timers.prolong(77, 60, 0);
    timers.stop(fish);
    ASSERT_EQ(timers.all().size(), 1u);
    EXPECT_EQ(timers.all().front().id, potatoes);
    timers.stop(potatoes);
    timers.stop(77);
    EXPECT_FALSE(timers.ringing());
    EXPECT_TRUE(timers.all().empty());
}

TEST(TimerStore, GoesOnWithWhatARunHasLeftForHalfADay) {
    const QTemporaryDir folder;
    UserFile file(folder.filePath(u"vlastni.db"_s));
    constexpr qint64 kNow = 5000, kToday = 1'800'000'000'000, kHour = 3'600'000;
    std::vector<KitchenTimer> left;
    for (const qint64 end : {-12 * kHour, -12 * kHour + 1, -kHour, kHour, 24 * kHour, 24 * kHour + 1})
        left.push_back({0, QString::number(end), kNow + end, false});
    ASSERT_TRUE(storeTimers(file, left, kNow, kToday));
    KitchenTimers again;
    restoreTimers(file, again, 70, kToday);
    QStringList names;
    for (const KitchenTimer& timer : again.all()) {
        names << timer.name;
        EXPECT_EQ(timer.end, 70 + timer.name.toLongLong());
    }
    EXPECT_EQ(names, (QStringList{u"-43199999"_s, u"-3600000"_s, u"3600000"_s, u"86400000"_s}));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
