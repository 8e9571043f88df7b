#include "forms/fingers.h"

#include <gtest/gtest.h>

#include <QTest>

#include "forms/button.h"
#include "forms/entrylist.h"
#include "forms/holdrepeat.h"
#include "forms/nameplate.h"
#include "forms/textview.h"
#include "support/fakesarne.h"
#include "support/kept.h"

namespace sarne {
namespace {

struct Touched : Form {
    explicit Touched(basSarne& run)
        : Form(run, QStringLiteral("frmA")),
          small(*this, QStringLiteral("cmdMale")),
          text(*this, QStringLiteral("picText")) {
        small.place({3000, 3000, 300, 300});
        small.setTip(QStringLiteral("Tisk"));
        next.place({3000, 3900, 300, 300});
        arrow.place({600, 600, 900, 900});
        list.place({600, 6000, 1500, 1500});
        list.setAttribute(Qt::WA_TransparentForMouseEvents, false);
        plain.place({9600, 6000, 1500, 1500});
        for (Control* one : std::initializer_list<Control*>{&small, &next, &arrow, &list, &plain}) {
            const auto log = [this, one](const char* what) {
                return [this, one, what] { done << one->objectName() + u' ' + QLatin1String(what); };
            };
            connect(one, &Control::pressed, this, log("pressed"));
            connect(one, &Control::clicked, this, log("clicked"));
            connect(one, &Control::hovered, this, log("hovered"));
        }
        text.place({6000, 1500, 3000, 1500});
        for (int line = 0; line < 40; ++line) text.drawPlainText(QStringLiteral("řádek\n"));
    }
    bool swiped(int direction) override {
        done << u"swiped %1"_s.arg(direction);
        return true;
    }
    Button small;
    TextView text;
    Button next{*this, u"cmdVedle"_s}, arrow{*this, u"cmdSipka"_s};
    EntryList list{*this, u"lst"_s, QAccessible::List};
    Control plain{*this, u"obr"_s};
    HoldRepeat repeat{arrow, [] {}};  // how often depends on the machine
    QStringList done;
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

TEST_F(FingersTest, PressRestScrollAndSwipe) {
    test::expectCases(u"prsty"_s, [this](const QString& text) {
        form->done.clear();
        QTest::keyClick(form, Qt::Key_A);  // no name is left from before
        for (const QString& one : text.split(u" then "_s)) {
            std::vector<QPoint> way;
            int milliseconds = 0;
            for (const QString& word : one.split(u' ')) {
                const QStringList at = word.split(u',');
                if (at.size() == 2)
                    way.emplace_back(at[0].toInt(), at[1].toInt());
                else if (word == u"rests")
                    milliseconds = Fingers::kHold + 150;
                else
                    form->small.setEnabled(word == u"on");
            }
            touch(way, milliseconds);
        }
        if (const QString name = run.window.namePlate().text(); !name.isEmpty())
            form->done << u"named "_s + name;
        if (form->text.scrolled() > 0) form->done << u"scrolled %1"_s.arg(form->text.scrolled());
        form->text.scrollTo(0);
        return form->done.join(u' ');
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
