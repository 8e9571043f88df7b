#pragma once

#include <QPointer>
#include <functional>
#include <vector>

#include "forms/timer.h"
#include "forms/twipwidget.h"
#include "kitchen/timers.h"

namespace sarne {

class basSarne;
class UserFile;

/// The small plates that lie over every screen: one for each kitchen timer, with the time that is left, and
/// for a moment one that says what has just been done. A click on a timer stops it.
class KitchenPlates : public QObject {
    Q_OBJECT
  public:
    /// Shows \a timers on the stage of \a sarne and keeps them in \a file, so that they outlive a program
    /// that is cut off. Both outlive it.
    KitchenPlates(basSarne& sarne, KitchenTimers& timers, UserFile& file);
    ~KitchenPlates() override;

    /// Goes on with the timers of a run that was cut off.
    void resume();
    /// The program ends: the timers are given up.
    void giveUp();
    /// Starts a timer and shows it.
    void start(const QString& name, int seconds);
    /// Stops what rings; false where nothing does.
    bool stopRinging();
    /// Asks whether running timers may be given up; true without any.
    bool readyToEnd();
    /// Says \a text for a moment; a click on it does \a use.
    void say(const QString& text, std::function<void()> use);

    /// Takes away what was said.
    void hush();

    /// What the plates say, the timers first; for tests and for a screen reader.
    QStringList texts() const;
    /// Looks at the clock. The program does it several times a second while there is a timer.
    void look();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    class Plate;

    void keep();
    void show();
    void ring();
    void timerClicked(int id);
    void raisePlates();

    basSarne& app_;
    KitchenTimers& timers_;
    UserFile& file_;
    std::vector<QPointer<Plate>> plates_;
    QPointer<Plate> saying_;
    Timer clock_, sayingTime_;
    qint64 lastRing_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
