#include <gtest/gtest.h>

#include "core/czech.h"
#include "kitchen/foundtimes.h"
#include "kitchen/timers.h"
#include "kitchen/units.h"

namespace sarne {
namespace {

const QLocale kCzech(QLocale::Czech, QLocale::CzechRepublic);

struct NamedTimes {
    const char* text;
    std::vector<std::pair<int, int>> minutes;  // shortest, longest
};

TEST(FindTimes, WhatRecipesSay) {
    const NamedTimes cases[] = {
        {"Pečeme 25 minut bez přikrytí.", {{25, 25}}},
        {"pečeme ještě 8–10 minut, až zezlátne", {{8, 10}}},
        {"10–12 min", {{10, 12}}},
        {"táhneme 1 a 1/2 hodiny", {{90, 90}}},
        {"vaříme 1/2 hodiny", {{30, 30}}},
        {"1,5 hodiny", {{90, 90}}},
        {"hodinu a půl v chladu", {{90, 90}}},
        {"Půl hodiny počkáme a minutu mícháme.", {{30, 30}, {1, 1}}},
        {"z každé strany dvě minuty", {{2, 2}}},
        {"smažíme čtyři minuty, potom dvacet minut odpočívá", {{4, 4}, {20, 20}}},
        {"v chladničce 36–48 hodin", {{36 * 60, 48 * 60}}},
        {"za dva dny", {{2 * 24 * 60, 2 * 24 * 60}}},
        // No time to wait for:
        {"Každých 12 hodin ho obrátíme", {}},
        {"poslední 2 minuty bez pokličky", {}},
        {"na 180 °C, 2 cm vysoko, 3 minci, 5 hodinářů", {}},
        {"za hodiny a dny", {}},
        {"", {}},
    };
    for (const NamedTimes& one : cases) {
        const auto found = findTimes(QString::fromUtf8(one.text));
        ASSERT_EQ(found.size(), one.minutes.size()) << one.text;
        for (size_t i = 0; i < found.size(); ++i) {
            EXPECT_EQ(found[i].shortest, one.minutes[i].first * 60) << one.text;
            EXPECT_EQ(found[i].longest, one.minutes[i].second * 60) << one.text;
        }
    }
}

TEST(FindTimes, SaysWhereTheWordsStandAlsoBehindHardBlanks) {
    const QString text = u"Vaříme 10–12\u00a0minut doměkka."_s;
    const auto found = findTimes(text);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(text.mid(found[0].at, found[0].length), u"10–12\u00a0minut"_s);
}

TEST(Times, AreWrittenAsOneReadsThem) {
    EXPECT_EQ(clockText(25 * 60 * 1000), u"25:00"_s);
    EXPECT_EQ(clockText(59001), u"1:00"_s);
    EXPECT_EQ(clockText(3900 * 1000), u"1:05:00"_s);
    EXPECT_EQ(clockText(-5), u"0:00"_s);
    EXPECT_EQ(durationText(5400), u"1\u00a0hodina 30\u00a0minut"_s);
    EXPECT_EQ(durationText(121), u"2\u00a0minuty 1\u00a0vteřina"_s);
}

TEST(Counted, FollowsTheCzechPlural) {
    const Noun portion = portionNoun();
    const Noun clove{u"stroužek"_s, u"stroužky"_s, u"stroužků"_s, u"stroužku"_s};
    const std::tuple<double, Noun, const char*> cases[] = {
        {1, portion, "1 porce"},     {4, portion, "4 porce"},  {5, portion, "5 porcí"},
        {0, portion, "0 porcí"},     {1, clove, "1 stroužek"}, {22, clove, "22 stroužků"},
        {1.5, clove, "1,5 stroužku"}};
    for (const auto& [number, noun, text] : cases)
        EXPECT_EQ(counted(number, noun, kCzech).replace(QChar(0xa0), u' ').toStdString(), text);
}

TEST(BoughtAmount, IsWhatAShopSells) {
    const std::tuple<double, const char*, const char*> cases[] = {
        {1234, "g", "1,23 kg"}, {375, "g", "380 g"}, {997, "ml", "1 l"}, {2.1, "stroužky", "2,5 stroužku"},
        {5, "ks", "5 ks"},      {0, "g", ""}};
    for (const auto& [amount, unit, text] : cases)
        EXPECT_EQ(boughtAmountText(amount, QString::fromUtf8(unit), kCzech)
                      .replace(QChar(0xa0), u' ')
                      .toStdString(),
                  text);
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
