#pragma once

#include <QList>
#include <QMetaObject>
#include <QObject>
#include <QPointer>
#include <QRect>

class QScreen;
class QWidget;

namespace sarne {

enum class WindowKind { FullScreen, Window };

/// Where the program's one window is: over the whole display on which the pointer was at the start, or, as a
/// window, in the middle of it. A display's new mode is followed; when the display goes, the window comes to
/// one that is left; the key F8 takes it to the next one.
class WindowPlace : public QObject {
    Q_OBJECT
  public:
    /// \a window outlives this object.
    WindowPlace(QWidget& window, WindowKind kind);

    /// Gives the window the display that the pointer is on, and its size there, without showing it.
    void settle();
    /// Shows the window where the pointer is.
    void show();
    /// Takes the window to the next display; nothing where there is only one.
    void moveOn();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void settleOn(QScreen* screen);
    void showSettled();
    void screenGone(const QScreen* gone);
    QRect room() const;

    QWidget& window_;
    WindowKind kind_;
    QPointer<QScreen> screen_;
    QMetaObject::Connection modeChanges_;
};

/// The index of the one of \a displays that holds \a point, or of the nearest one; -1 when there is none.
int displayAt(const QList<QRect>& displays, QPoint point);

/// The program's window on a display of which \a room is free: the design's shape, three quarters of the
/// height, in the middle; not smaller than the design's 800 x 600 pixels where there is room for them.
QRect windowWithin(const QRect& room);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
