#include "app/windowplace.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QWidget>
#include <limits>

#include "app/displayquestions.h"

namespace sarne {
namespace {

QList<QRect> displays() {
    QList<QRect> places;
    for (const QScreen* screen : QGuiApplication::screens()) places << screen->geometry();
    return places;
}

int distance(const QRect& place, QPoint point) {
    const QPoint nearest(qBound(place.left(), point.x(), place.right()),
                         qBound(place.top(), point.y(), place.bottom()));
    return (point - nearest).manhattanLength();
}

}  // namespace

int displayAt(const QList<QRect>& displays, QPoint point) {
    int best = -1;
    int least = std::numeric_limits<int>::max();
    for (int i = 0; i < displays.size(); ++i) {
        if (const int far = distance(displays[i], point); far < least) {
            best = i;
            least = far;
        }
    }
    return best;
}

QRect windowWithin(const QRect& room) {
    const QSize wanted = kDesignResolution.scaled(room.size() * 3 / 4, Qt::KeepAspectRatio);
    const QSize least =
        kDesignResolution.scaled(room.size().boundedTo(kDesignResolution), Qt::KeepAspectRatio);
    QRect window({}, wanted.expandedTo(least));
    window.moveCenter(room.center());
    return window;
}

WindowPlace::WindowPlace(QWidget& window, WindowKind kind) : window_(window), kind_(kind) {
    qApp->installEventFilter(this);
    connect(qApp, &QGuiApplication::screenRemoved, this, &WindowPlace::screenGone, Qt::QueuedConnection);
}

void WindowPlace::settle() {
    settleOn(QGuiApplication::screens().value(displayAt(displays(), QCursor::pos())));
}

void WindowPlace::show() {
    settle();
    showSettled();
}

void WindowPlace::moveOn() {
    const QList<QScreen*> screens = QGuiApplication::screens();
    if (screens.size() < 2) return;
    settleOn(screens[(screens.indexOf(screen_) + 1) % screens.size()]);
    showSettled();
}

QRect WindowPlace::room() const {
    return kind_ == WindowKind::FullScreen ? screen_->geometry() : windowWithin(screen_->availableGeometry());
}

void WindowPlace::settleOn(QScreen* screen) {
    if (!screen) return;
    disconnect(modeChanges_);
    screen_ = screen;
    // A window manager moves no window that fills a display.
    if (window_.isVisible() && kind_ == WindowKind::FullScreen) window_.showNormal();
    window_.setScreen(screen);
    window_.setGeometry(room());
}

void WindowPlace::showSettled() {
    if (!screen_) return;
    kind_ == WindowKind::FullScreen ? window_.showFullScreen() : window_.show();
    // Where no window manager runs nobody else follows the display's mode.
    if (kind_ == WindowKind::FullScreen)
        modeChanges_ =
            connect(screen_.data(), &QScreen::geometryChanged, this, [this] { window_.setGeometry(room()); });
}

/// Told when the display is gone already: \a gone is compared, not used.
void WindowPlace::screenGone(const QScreen* gone) {
    if (!screen_ || screen_ == gone) show();
}

bool WindowPlace::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWindowType()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F8 || key->modifiers() != Qt::NoModifier || key->isAutoRepeat()) return false;
    moveOn();
    return true;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
