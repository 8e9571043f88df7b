#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "dialogs/frmmessage.h"
#include "dialogs/messagelayout.h"
#include "support/fakesarne.h"
#include "support/kept.h"

namespace sarne {
namespace {

class MessageTest : public testing::Test {
  protected:
    /// Asks, and does \a answer while the box is open. A box that stays open is closed so that the test can
    /// end.
    template <typename Answer>
    int ask(const char* text, int style, Answer answer, int closeCode = 0) {
        QTimer::singleShot(0, [&] {
            answer();
            if (box->isVisible()) box->hideForm();
        });
        return box->ask(QString::fromUtf8(text), style, 0, closeCode);
    }
    int press(int style, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        return ask("Chcete ukončit program?  ", style,
                   [&] { QTest::keyClick(QApplication::focusWidget(), key, modifiers); });
    }
    Button* button(int i) { return box->findChild<Button*>(u"cmdBtn(%1)"_s.arg(i)); }

    FakeSarne run;
    frmMessage* box = new frmMessage(run);
};

TEST_F(MessageTest, AnswersByMouseAndByKeyboard) {
    EXPECT_EQ(ask("?", 36, [&] { QTest::mouseClick(button(1), Qt::LeftButton); }), 7);
    EXPECT_EQ(ask("?", 36, [&] { QTest::mouseClick(button(0), Qt::LeftButton); }), 6);
    EXPECT_EQ(press(36, Qt::Key_Return), 6);
    QTimer::singleShot(0, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
    EXPECT_EQ(box->askOrLeave(u"?"_s, 36), 0) << "left without an answer; the next wants one again";
    EXPECT_EQ(press(36, Qt::Key_Escape), 7);
    EXPECT_EQ(press(36 + 256, Qt::Key_Return), 7) << "the default button has the focus";
    EXPECT_EQ(press(48 + 256, Qt::Key_Return), 6) << "there is no second";
    EXPECT_EQ(press(48, Qt::Key_Space), 6);
    EXPECT_EQ(press(48, Qt::Key_Escape), 6);
    EXPECT_EQ(press(36, Qt::Key_N), 7);
    EXPECT_EQ(ask("?", 36,
                  [&] {
                      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
                  }),
              7);
}

TEST_F(MessageTest, ClosingItAnswersOnlyWhereThatIsAnAnswer) {
    EXPECT_EQ(press(6, Qt::Key_Escape), 0) << "there is no button";
    EXPECT_EQ(press(36, Qt::Key_F4, Qt::AltModifier), 0) << "it stayed open until the test hid it";
    bool stillOpen = false;
    EXPECT_EQ(ask(
                  "?", 36,
                  [&] {
                      box->closeRequested();
                      stillOpen = box->isVisible();
                  },
                  2),
              2);
    EXPECT_FALSE(stillOpen);
}

TEST_F(MessageTest, IsDraggedByItsGroundAndStaysOnTheScreen) {
    ask("posuň mě", 48, [&] {
        const QPoint before = box->twips().topLeft();
        QTest::mousePress(box, Qt::LeftButton, {}, {10, 10});
        QMouseEvent move(QEvent::MouseMove, QPointF(10, 10), box->mapToGlobal(QPointF(10, 10)),
                         Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(box, &move);
        QMouseEvent further(QEvent::MouseMove, QPointF(30, 20), box->mapToGlobal(QPointF(30, 20)),
                            Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(box, &further);
        EXPECT_EQ(box->twips().topLeft() - before, QPoint(300, 150));
        QMouseEvent away(QEvent::MouseMove, QPointF(9000, 9000), QPointF(9000, 9000), Qt::LeftButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(box, &away);
        EXPECT_EQ(box->twips().right() + 1, 12000);
    });
}

TEST(MessageLayout, StylesComeApartAndEverySetHasItsCaptionsAndCodes) {
    test::expectCases(u"zpravy"_s, [](const QString& style) {
        const auto parts = MessageStyle::split(style.toInt());
        QStringList shown{u"icon %1, default %2, escape %3:"_s.arg(parts.icon)
                              .arg(parts.defaultButton)
                              .arg(escapeButton(parts.buttons))};
        for (const auto& button : messageButtons(parts.buttons))
            shown << u"%1=%2"_s.arg(button.caption).arg(button.code);
        return shown.join(u' ');
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
