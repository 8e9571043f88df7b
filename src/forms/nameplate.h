#pragma once

#include <QPointer>

#include "forms/timer.h"
#include "forms/twipwidget.h"
#include "richtext/surface.h"

namespace sarne {

class Control;
class Stage;

/// Where a name plate of \a size lies, in twips: below \a thing and in its middle, or above it where the
/// stage ends; always whole on the stage and never on \a pointer, the place that the mouse pointer covers.
QRect namePlatePlace(QSize size, const QRect& thing, const QRect& pointer);

/// The one plate that says what a thing is called where its caption does not: its tip, below it, in the
/// program's dress and as large as the stage makes all texts. It comes when the pointer has rested on the
/// thing for a moment, and at once when the thing gets the focus from the keyboard; it goes when the pointer
/// leaves, and with every key, click, turn of the wheel and change of screen. The mouse goes through it.
class NamePlate : public TwipWidget {
    Q_OBJECT
  public:
    explicit NamePlate(Stage& stage);

    /// Takes note of \a event, which \a watched is about to get.
    void see(const QObject* watched, const QEvent& event);
    void dismiss();
    /// Names \a thing at once.
    void nameIt(Control& thing);
    /// What the plate says; empty while it is not shown.
    QString text() const;

  protected:
    void paint(QPainter& painter) override;

  private:
    void pointAt(QPoint global);
    void seeFocus(const QObject* watched);
    void seeThing(const QEvent& event);
    void seeInFront(const QObject* watched);
    void setThing(Control* thing);
    void settle();
    Control* thingAt(QPoint pixels) const;
    QRect pointerPlace() const;
    TextFont font() const;
    QSize sizeFor(const QString& text) const;

    Stage& stage_;
    Timer delay_;
    QPointer<Control> thing_;   ///< named, or about to be
    QPointer<QObject> object_;  ///< the same, for events of a thing that is going and is no Control any more
    QPointer<Control> used_;    ///< just clicked: it needs no name until the pointer has left it
    bool byPointer_ = false;
    QPoint pointer_;  ///< where it was seen last, on the display
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
