#include "forms/fingers.h"

#include <gtest/gtest.h>

#include <QTest>

#include "forms/button.h"
#include "forms/nameplate.h"
#include "forms/textview.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

struct Touched : Form {
    explicit Touched(basSarne& run)
        : Form(run, QStringLiteral("frmA")),
          small(*this, QStringLiteral("cmdMale")),
          text(*this, QStringLiteral("picText")) {
        small.place({3000, 3000, 300, 300});
        small.setTip(QStringLiteral("Tisk"));
        connect(&small, &Button::clicked, this, [this] { ++clicks; });
        connect(&small, &Button::hovered, this, [this] { ++hovers; });
        text.place({6000, 1500, 3000, 1500});
        for (int line = 0; line < 40; ++line) text.drawPlainText(QStringLiteral("řádek\n"));
    }
    bool swiped(int direction) override {
        swipes << direction;
        return true;
    }
    Button small;
    TextView text;
    int clicks = 0, hovers = 0;
    QList<int> swipes;
};

class FingersTest : public testing::Test {
  protected:
    FakeSarne run;
    Touched* form = new Touched(run);

    FingersTest() {
        run.PushScreen(*form);
        form->showForm();
    }
    static QPoint pixels(QPoint twips) { return twips / 15; }
    /// A finger put down at the first place, moved over the others and taken up at the last; it stays down
    /// for \a milliseconds.
    void touch(const std::vector<QPoint>& way, int milliseconds = 0) {
        static const auto screen = std::unique_ptr<QPointingDevice>(QTest::createTouchDevice());
        auto finger = QTest::touchEvent(&run.window, screen.get(), false);
        finger.press(0, pixels(way.front()), &run.window).commit();
        QTest::qWait(milliseconds);
        for (const QPoint at : way) finger.move(0, pixels(at), &run.window).commit();
        finger.release(0, pixels(way.back()), &run.window).commit();
    }
};

TEST_F(FingersTest, AFingerPressesTheSmallButtonThatItFallsBeside) {
    touch({{3150, 3150}});
    EXPECT_EQ(form->clicks, 1) << "on it";
    touch({{2880, 3420}});
    EXPECT_EQ(form->clicks, 2) << "beside it";
    touch({{2700, 3150}});
    EXPECT_EQ(form->clicks, 2) << "too far from it";
    EXPECT_EQ(fingerPlace(form->small).size(), QSize(44, 44));
}

TEST_F(FingersTest, WhatLiesBetweenTwoThingsIsHalvedOnEverySide) {
    const QRect own = fingerPlace(form->small);
    std::vector<std::unique_ptr<Button>> around;
    for (const QPoint way : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)}) {
        around.push_back(std::make_unique<Button>(*form, QStringLiteral("cmdVedle")));
        around.back()->place(QRect(3000, 3000, 300, 300).translated(360 * way));
        around.back()->show();
    }
    const QRect between = fingerPlace(form->small);
    EXPECT_TRUE(own.contains(between) && own != between);
    EXPECT_TRUE(between.contains(QRect(form->small.mapTo(&run.window, QPoint(-1, -1)), QSize(22, 22))));
    for (const auto& button : around) EXPECT_FALSE(fingerPlace(*button).intersects(between));
}

TEST_F(FingersTest, ARestingFingerNamesTheThingAndLetsGoOfIt) {
    touch({{3150, 3150}});
    const int hovers = form->hovers;
    touch({{3150, 3150}}, Fingers::kHold + 150);
    EXPECT_EQ(form->clicks, 1) << "the first, short one";
    EXPECT_EQ(form->hovers, hovers + 1) << "as under a mouse";
    EXPECT_EQ(run.window.namePlate().text(), QStringLiteral("Tisk"));
}

TEST_F(FingersTest, AFingerThatMovesScrollsOrSwipesAndPressesNothing) {
    touch({{7500, 2700}, {7500, 2100}, {7500, 1600}});
    EXPECT_GT(form->text.scrolled(), 0);
    EXPECT_TRUE(form->swipes.isEmpty());
    touch({{3150, 3150}, {2000, 3150}, {1000, 3200}});
    touch({{1000, 6000}, {2000, 6050}, {3000, 6000}});
    EXPECT_EQ(form->swipes, (QList<int>{1, -1}));
    EXPECT_EQ(form->clicks, 0);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
