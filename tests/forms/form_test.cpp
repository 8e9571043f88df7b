#include "forms/form.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include "forms/button.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

struct Screen : Form {
    explicit Screen(basSarne& run, const char* name)
        : Form(run, QString::fromLatin1(name)), button(*this, u"imgBtn(0)"_s) {
        button.place({1500, 3000, 750, 450});
    }
    void restored() override { ++restores; }
    Button button;
    int restores = 0;
};

class FormTest : public testing::Test {
  protected:
    FakeSarne run;
    Screen* screen = new Screen(run, "frmA");
};

TEST_F(FormTest, TheDesignFitsEvenlyIntoEveryDisplay) {
    screen->showForm();
    const struct {
        QSize window;
        QRect button;
    } cases[] = {{{800, 600}, {100, 200, 50, 30}},
                 {{1920, 1080}, {420, 360, 90, 54}},
                 {{600, 800}, {75, 325, 38, 23}}};
    for (const auto& c : cases) {
        run.window.resize(c.window);
        QApplication::processEvents();
        EXPECT_EQ(screen->geometry(), QRect(QPoint(), c.window)) << "it fills the window";
        EXPECT_EQ(screen->button.geometry(), c.button);
    }
    run.window.resize(1234, 777);
    QApplication::processEvents();
    EXPECT_EQ(screen->button.toTwips(screen->button.rect().center()).x() / 20, 375 / 20);
}

TEST_F(FormTest, TheScreenBelowIsFoundAgainAndToldThatItIsBack) {
    auto* top = new Screen(run, "frmB");
    run.PushScreen(*screen);
    screen->showForm();
    run.PushScreen(*top);
    top->showForm();
    EXPECT_TRUE(run.BringTopToFront(u"frmA"_s));
    EXPECT_FALSE(run.BringTopToFront(u"frmB"_s));
    run.PopScreen(*top);
    EXPECT_FALSE(top->isLoaded());
    EXPECT_EQ(screen->restores, 1);
    EXPECT_EQ(run.window.forms(), std::vector<Form*>{screen});
    run.PushScreen(*new Screen(run, "frmC"), KeepEnabled::Yes);
    EXPECT_TRUE(screen->button.isEnabled());
}

TEST_F(FormTest, AModalFormTakesAllInput) {
    screen->showForm();
    auto* box = new Screen(run, "frmMessage");
    box->place({3000, 3000, 3000, 1500});
    int clicks = 0;
    QObject::connect(&screen->button, &Button::clicked, [&] { ++clicks; });
    QTimer::singleShot(0, [&] {
        EXPECT_TRUE(box->hasFocus());
        run.window.resize(1600, 1200);
        QApplication::processEvents();
        EXPECT_NE(run.window.childAt(1590, 1190), screen) << "nor what a larger window shows";
        const QPoint at = screen->button.mapTo(&run.window, screen->button.rect().center());
        QTest::mouseClick(run.window.childAt(at), Qt::LeftButton);
        box->hideForm();
    });
    box->showModal();
    EXPECT_EQ(clicks, 0);
    QTest::mouseClick(run.window.childAt(screen->button.mapTo(&run.window, QPoint(5, 5))), Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(screen->button.hasFocus());
}

TEST_F(FormTest, AScreenOpenedFromADialogStandsAboveItUntilItCloses) {
    run.PushScreen(*screen);
    screen->showForm();
    auto* box = new Screen(run, "frmMessage");
    box->place({3000, 3000, 3000, 1500});
    box->ring().setStops({&box->button});
    QTimer::singleShot(0, [&] {
        auto* page = new Screen(run, "frmStranka");
        run.PushScreen(*page);
        page->showForm();
        EXPECT_EQ(run.window.focusForm(), page);
        EXPECT_EQ(run.window.modalForm(), page);
        run.PopScreen(*page);
        EXPECT_EQ(run.window.modalForm(), box);
        EXPECT_TRUE(box->button.hasFocus()) << "the dialog goes on where it was";
        box->hideForm();
    });
    box->showModal();
    EXPECT_EQ(run.FormStack.top(), screen);
}

TEST_F(FormTest, TheWindowAsksBeforeItCloses) {
    int asked = 0;
    QObject::connect(&run.window, &Stage::closeRequested, [&asked] { ++asked; });
    EXPECT_FALSE(run.window.close());
    EXPECT_EQ(asked, 1);
    screen->showForm();
    screen->button.setTip(u"Tisk"_s);
    QHelpEvent hint(QEvent::ToolTip, {5, 5}, screen->button.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&screen->button, &hint);
    EXPECT_FALSE(QToolTip::isVisible()) << "the name plate says it";
}

TEST_F(FormTest, AClickNeedsPressAndReleaseOnTheSameEnabledControl) {
    screen->showForm();
    int clicks = 0;
    QObject::connect(&screen->button, &Button::clicked, [&] { ++clicks; });
    QTest::mousePress(&screen->button, Qt::LeftButton);
    QTest::mouseRelease(&screen->button, Qt::LeftButton, {}, {500, 5});
    QTest::mouseClick(&screen->button, Qt::RightButton);
    screen->button.setEnabled(false);
    screen->button.click();
    EXPECT_EQ(clicks, 0);
    screen->button.setEnabled(true);
    QTest::mouseClick(&screen->button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
