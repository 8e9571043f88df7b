#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "dialogs/frmmessage.h"
#include "dialogs/messagelayout.h"
#include "support/acts.h"
#include "support/fakesarne.h"
#include "support/kept.h"

namespace sarne {
namespace {

/// Asks in the style that \a way begins with, which goes on with words as test::perform() takes them, or with
/// "close", as from the window manager; "leave:" in front of the style is for who may leave it unanswered.
/// The answer, and whether the box had to be hidden.
QString answer(const QString& way) {
    FakeSarne run;
    auto* box = new frmMessage(run);
    bool isHidden = false;
    QTimer::singleShot(0, [&] {
        for (const QString& word : way.split(u' ').sliced(1))
            if (word == u"close")
                box->closeRequested();
            else
                test::perform(run, word);
        isHidden = box->isVisible();
        if (isHidden) box->hideForm();
    });
    const QString style = way.section(u' ', 0, 0);
    const int code = style.startsWith(u"leave:")
                         ? box->askOrLeave(u"?"_s, style.mid(6).toInt())
                         : box->ask(u"Chcete?"_s, style.toInt(), 0, way.endsWith(u"close") ? 2 : 0);
    return QString::number(code) + (isHidden ? u" still asks"_s : QString());
}

TEST(MessageTest, AnswersByMouseAndByKeyboard) {
    test::expectCases(u"odpovedi"_s, &answer);
}

TEST(MessageTest, IsDraggedByItsGroundAndStaysOnTheScreen) {
    FakeSarne run;
    auto* box = new frmMessage(run);
    QTimer::singleShot(0, [&] {
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
        box->hideForm();
    });
    box->ask(u"posuň mě"_s, 48, 0);
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
