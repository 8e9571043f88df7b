#pragma once

#include <QEvent>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>

#include "forms/timer.h"

class QMouseEvent;
class QWidget;

namespace sarne {

class Control;
class Form;
class NamePlate;
class Stage;

/// How large what can be touched is at least: 44 design pixels.
inline constexpr int kFingerTwips = 44 * 15;

/// Where \a control, which can be pressed, takes a finger, in pixels of the stage: its own place, widened to
/// what a finger needs as far as nothing else that can be pressed is nearer.
QRect fingerPlace(const Control& control);

/// What a finger on a touch screen does where a mouse would hover, turn its wheel, or aim better. A finger
/// that rests names the thing under it and shows what pointing at it does, and lets go of it; one that moves
/// up or down scrolls; one that goes sideways is a swipe of its form; one that falls beside a small button
/// presses it.
class Fingers : public QObject {
    Q_OBJECT
  public:
    static constexpr int kHold = 600;  ///< milliseconds after which a finger rests

    Fingers(Stage& stage, NamePlate& plate);

    /// Takes note of \a event, which \a watched is about to get. True when it shall not get it.
    bool see(QObject* watched, const QEvent& event);

  private:
    enum class Does { Nothing, Presses, Rests, Scrolls, Swipes };

    bool press(QWidget& under, const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    void rest();
    void begin(Does what);
    Control* controlAt(QWidget& under) const;
    Control* nearTo(QPoint global) const;
    void send(QEvent::Type type);
    void turnWheel(QPoint global);

    Stage& stage_;
    NamePlate& plate_;
    Timer hold_;
    Does does_ = Does::Nothing;
    bool down_ = false;
    bool keptBack_ = false;  ///< the press reaches the control when the finger has neither moved nor rested
    QPointer<QWidget> under_;
    QPointer<Control> control_;
    QPointer<Form> form_;
    QPoint from_, last_;  ///< on the display
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
