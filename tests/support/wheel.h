#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

namespace sarne::test {

/// Turns the wheel over the middle of \a on by \a angle, 120 to a notch, upwards where it is positive.
inline void wheel(QWidget& on, int angle) {
    const QPointF at = on.rect().center();
    QWheelEvent event(at, on.mapToGlobal(at), {}, {0, angle}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QSpontaneKeyEvent::setSpontaneous(&event);  // as from the window system, so that parents get it too
    qApp->notify(&on, &event);
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
