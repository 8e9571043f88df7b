#include "screens/navigation/frmhlavni.h"

#include <QTest>

#include "forms/nameplate.h"
#include "menudatabase.h"
#include "screens/navigation/frmmenu.h"
#include "support/files.h"
#include "support/pictures.h"

namespace sarne {
namespace {

class MainScreenTest : public MenuFixture {
  protected:
    /// Animations of three frames for the buttons 3 and 4, one colour each, and an effect for each button.
    void writeResources() {
        for (int button : {3, 4}) {
            for (int frame = 1; frame <= 3; ++frame)
                ASSERT_TRUE(test::write(folder.filePath(u"pohyby/0%1-0%2.png"_s.arg(button).arg(frame)),
                                        test::plain({40, 40}, QColor(80 * frame, 0, 10 * button))));
        }
        for (int i = 0; i < 19; ++i)
            ASSERT_TRUE(test::write(folder.filePath(u"zvuky/%1.wav"_s.arg(i + 101)),
                                    QByteArray("effect ") + QByteArray::number(i)));
        run.pictures = Resources(folder.path() + u'/');
    }
    void start() {
        main = new frmHlavni(run);
        main->Zobraz();
        timer = main->findChild<Timer*>();
    }
    QWidget* button(int i) { return main->findChild<QWidget*>(u"imgClick(%1)"_s.arg(i)); }
    void moveOver(int i) { QTest::mouseMove(button(i), button(i)->rect().center()); }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    int redAt(int i) {
        const QPoint at = button(i)->geometry().topLeft() + QPoint(5, 5);
        return main->grab().toImage().pixelColor(at).red();
    }

    frmHlavni* main = nullptr;
    Timer* timer = nullptr;
};

TEST_F(MainScreenTest, HoverPlaysTheAnimationAndItsEffectOnce) {
    writeResources();
    run.SoundFlags[kEffects] = true;
    start();
    EXPECT_EQ(main->currentButton(), -5);
    moveOver(3);
    QTest::mouseMove(button(3), {3, 3});
    EXPECT_EQ(run.sounds.played, QList<QByteArray>{"effect 3"})
        << "moving within a button starts nothing anew";
    EXPECT_TRUE(timer->isEnabled());
    EXPECT_EQ(timer->interval(), 100);
    for (const int red : {80, 160, 240, 80}) {
        timer->fire();
        EXPECT_EQ(redAt(3), red) << "the last frame leads to the first";
    }
    const int stops = run.sounds.stops;
    moveOver(4);
    EXPECT_EQ(run.sounds.stops, stops + 1) << "the first button ends before the second begins";
    EXPECT_EQ(timer->tag(), u"0"_s);
    EXPECT_EQ(run.sounds.played.last(), QByteArray("effect 4"));
    timer->fire();
    EXPECT_NE(redAt(3), 80);
    EXPECT_EQ(redAt(4), 80);
    QTest::mouseMove(main, {700, 590});
    EXPECT_EQ(main->currentButton(), -5);
    EXPECT_FALSE(timer->isEnabled());
    EXPECT_NE(redAt(4), 80);
}

TEST_F(MainScreenTest, MusicFollowsItsSwitches) {
    start();
    EXPECT_TRUE(run.player.commands.isEmpty());
    run.SoundFlags[kMusic] = true;
    run.player.opensLater = true;
    start();
    EXPECT_EQ(run.player.fileName(), u"hudba.wav"_s) << "the player is told what it does not find";
    run.player.failToOpen(MediaError::InvalidFile);
    QTest::qWait(0);
    EXPECT_EQ(run.messages, QStringList()) << "the start is silent about its music";
}

TEST_F(MainScreenTest, OrnamentsMoveOnlyWhileSomebodyLooks) {
    start();
    run.window.activateWindow();
    ASSERT_TRUE(run.window.isActiveWindow());
    Timer* life = main->findChildren<Timer*>().at(2);
    const auto moves = [&] {
        const QImage still = main->grab().toImage();
        bool moved = false;
        for (int tick = 0; tick < 30; ++tick) {
            life->fire();
            moved |= main->grab().toImage() != still;
        }
        return moved;
    };
    EXPECT_TRUE(moves());
    Form* above = run.openAbove("frmSeznam");
    life->fire();
    EXPECT_FALSE(moves()) << "another screen is on top";
    run.PopScreen(*above);
    EXPECT_TRUE(moves());
    QWidget other;
    other.show();
    other.activateWindow();
    life->fire();
    EXPECT_FALSE(moves()) << "another program has the keyboard";
}

TEST_F(MainScreenTest, TheScreenOnTopStaysOnTop) {
    start();
    moveOver(2);
    QTest::mouseClick(button(2), Qt::LeftButton);
    Form* top = run.openAbove("frmSeznam");
    main->SkryjMenu();
    EXPECT_FALSE(button(3)->isEnabled()) << "covered: controls come back with the screen";
    main->setFocus();
    EXPECT_TRUE(top->hasFocus());
    run.PopScreen(*top);
    EXPECT_TRUE(button(3)->isEnabled());
    EXPECT_EQ(main->currentButton(), -5);

    press(Qt::Key_PageUp);
    press(Qt::Key_Return);
    Form* other = run.openAbove("frmSponzor");
    main->SkryjMenu();
    run.PopScreen(*other);
    EXPECT_TRUE(button(1)->hasFocus()) << "who came by keyboard goes on from there";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
