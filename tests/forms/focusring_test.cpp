#include "forms/focusring.h"

#include <gtest/gtest.h>

#include <QTest>

#include "forms/button.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

using Order = std::vector<int>;

TEST(FocusOrder, TheNextPlaceIsTheNextUsableOne) {
    const std::vector<bool> places{false, true, false, true, false};
    EXPECT_EQ(nextPlace(places, 1, 1), 3);
    EXPECT_EQ(nextPlace(places, 3, 1), 1);
    EXPECT_EQ(nextPlace(places, 1, -1), 3);
    EXPECT_EQ(nextPlace(places, {}, 1), 1);
    EXPECT_EQ(nextPlace(places, {}, -1), 3);
    EXPECT_EQ(nextPlace({false, true}, 1, 1), 1) << "the only one stays";
    EXPECT_EQ(nextPlace({false, false}, 0, 1), std::nullopt);
    EXPECT_EQ(nextPlace({}, {}, -1), std::nullopt);
}

TEST(FocusOrder, PlacesAreReadRowByRow) {
    // Two large buttons above three small ones, given column by column.
    EXPECT_EQ(
        readingOrder(
            {{0, 0, 100, 100}, {0, 150, 60, 60}, {120, 20, 100, 100}, {70, 140, 60, 60}, {140, 150, 60, 60}}),
        (Order{0, 2, 1, 3, 4}));
    EXPECT_EQ(readingOrder({}), Order{});
}

TEST(FocusOrder, ArrowsGoToWhatLiesStraightAhead) {
    const std::vector<QRect> places{{0, 0, 10, 10}, {100, 0, 10, 10}, {40, 30, 10, 10}, {}, {0, 90, 10, 10}};
    EXPECT_EQ(nearest(places, 0, Direction::Right), 1);
    EXPECT_EQ(nearest(places, 0, Direction::Down), 4);
    EXPECT_EQ(nearest(places, 4, Direction::Up), 0);
    EXPECT_EQ(nearest(places, 0, Direction::Left), std::nullopt);
    EXPECT_EQ(nearest({{0, 0, 10, 10}, {100, 40, 10, 10}}, 0, Direction::Down), std::nullopt)
        << "aside, not below";
}

struct Screen : Form {
    explicit Screen(basSarne& run) : Form(run, u"frmA"_s) {
        for (int i = 0; i < 4; ++i) {
            auto* button = new Button(*this, u"imgBtn(%1)"_s.arg(i));
            button->place({i * 1500, 3000, 750, 450});
            buttons.push_back(button);
        }
        ring().setStops({buttons.begin(), buttons.end()});
    }
    std::vector<Button*> buttons;
};

class FocusRingTest : public testing::Test {
  protected:
    FakeSarne run;
    Screen* screen = new Screen(run);

    FocusRingTest() {
        run.PushScreen(*screen);
        screen->showForm();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(run.window.focusWidget(), Qt::Key(key), modifiers);
    }
    int focused() const {
        const auto at = std::ranges::find(screen->buttons, run.window.focusWidget());
        return static_cast<int>(at - screen->buttons.begin());
    }
};

TEST_F(FocusRingTest, ArrowsGoAsFarAsTheFormWants) {
    const auto after = [&](FocusRing::Arrows arrows, std::initializer_list<int> keys) {
        screen->ring().setArrows(arrows);
        screen->ring().focus(*screen->buttons[1]);
        for (int key : keys) press(key);
        return focused();
    };
    EXPECT_EQ(after(FocusRing::Arrows::Sideways, {Qt::Key_Right, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up}), 1);
    EXPECT_EQ(after(FocusRing::Arrows::All, {Qt::Key_Up, Qt::Key_Left}), 3);
    EXPECT_EQ(after(FocusRing::Arrows::All, {}), 1);
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(focused(), 1);
    const std::vector<TwipWidget*> first{screen->buttons[0], screen->buttons[1]};
    EXPECT_TRUE(screen->ring().stepTowards(Direction::Left, first));
    EXPECT_TRUE(screen->ring().stepTowards(Direction::Left, first));
    EXPECT_EQ(focused(), 0) << "no way round";
    screen->ring().focus(*screen->buttons[2]);
    EXPECT_FALSE(screen->ring().stepTowards(Direction::Left, first));
}

TEST_F(FocusRingTest, TabTakesAGroupAsOneAndArrowsMoveInIt) {
    const auto& b = screen->buttons;
    screen->ring().setGroups(
        {FocusGroup(std::vector{b[0], b[1]}, b[1]), FocusGroup(std::vector{b[2], b[3]})});
    screen->ring().focus(*b[2]);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), 1) << "the group's entry";
    EXPECT_TRUE(screen->ring().stepWithin(1));
    EXPECT_EQ(focused(), 0);
    b[2]->setEnabled(false);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), 3) << "the first that can take the keyboard";
    screen->ring().setStops({b[0]});
    EXPECT_FALSE(screen->ring().stepWithin(1)) << "the keyboard is at none of the stops";
}

TEST_F(FocusRingTest, AScreenBelowHandsTheKeyboardToTheOneOnTopAndGetsItBack) {
    screen->ring().focus(*screen->buttons[2]);
    auto* over = new Form(run, u"frmNad"_s);
    run.PushScreen(*over);
    over->showForm();
    screen->setFocus();  // as a click on what shows of it does
    EXPECT_EQ(run.window.focusForm(), over);
    screen->buttons[2]->hide();
    run.PopScreen(*over);
    EXPECT_EQ(focused(), 0) << "what has gone meanwhile gives way to the first stop";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
