#include <gtest/gtest.h>

#include "kitchen/timerstore.h"
#include "kitchenbook.h"
#include "screens/kitchen/kitchenplates.h"

namespace sarne {
namespace {

class PlatesTest : public testing::Test {
  protected:
    void clickFirst() { QTest::mouseClick(run_.window.findChild<QWidget*>(u"casovac(0)"_s), Qt::LeftButton); }

    KitchenRun run_;
    KitchenTimers timers_;
    KitchenPlates plates_{run_, timers_, run_.file()};
};

TEST_F(PlatesTest, RingAgainUntilStopped) {
    plates_.start(u"Brambory"_s, 1200);
    plates_.start(u"Ryba"_s, 600);
    run_.time.time = 600'000;
    plates_.look();
    EXPECT_EQ(run_.sounds.played.size(), 1);
    for (const int rung : {1, 1, 2}) {
        run_.time.time += 1'500;
        plates_.look();
        EXPECT_EQ(run_.sounds.played.size(), rung);
    }
    EXPECT_TRUE(plates_.stopRinging());
    EXPECT_FALSE(plates_.stopRinging());
    EXPECT_EQ(plates_.texts(), QStringList{u"9:56 Brambory"_s});
}

TEST_F(PlatesTest, LieOverEveryScreenThatIsShown) {
    plates_.start(u"Ryba"_s, 600);
    run_.openAbove("frmJina");
    const QWidget* plate = run_.window.findChild<QWidget*>(u"casovac(0)"_s);
    EXPECT_EQ(run_.window.childAt(plate->geometry().center()), plate);
}

TEST_F(PlatesTest, AClickAsksBeforeItStopsARunningTimer) {
    plates_.start(u"Ryba"_s, 600);
    run_.answers = {7, 6};
    clickFirst();
    EXPECT_EQ(plates_.texts().size(), 1);
    clickFirst();
    EXPECT_TRUE(plates_.texts().isEmpty());
    EXPECT_EQ(run_.messages.size(), 2);
    plates_.start(u"Ryba"_s, 1);
    run_.time.time = 2'000;
    plates_.look();
    clickFirst();  // one that rings is stopped at once
    EXPECT_TRUE(plates_.texts().isEmpty());
    EXPECT_EQ(run_.messages.size(), 2);
}

TEST_F(PlatesTest, TimersOutliveAProgramThatIsCutOff) {
    plates_.start(u"Ryba"_s, 600);
    plates_.start(u"Brambory"_s, 1200);
    KitchenTimers others;
    KitchenPlates next(run_, others, run_.file());
    next.resume();
    ASSERT_EQ(next.texts().size(), 2);
    EXPECT_TRUE(next.texts().first().endsWith(u" Ryba"_s));
    plates_.giveUp();  // the user ended the program and was asked
    KitchenTimers none;
    restoreTimers(run_.file(), none, 0, QDateTime::currentMSecsSinceEpoch());
    EXPECT_TRUE(none.all().empty());
}

TEST_F(PlatesTest, TheEndIsAskedAboutWhileATimerRuns) {
    EXPECT_TRUE(plates_.readyToEnd());
    EXPECT_TRUE(run_.messages.isEmpty());
    plates_.start(u"Ryba"_s, 600);
    run_.answers = {7};
    EXPECT_FALSE(plates_.readyToEnd());
    EXPECT_TRUE(plates_.readyToEnd());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
