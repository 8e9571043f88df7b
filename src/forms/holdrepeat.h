#pragma once

#include <functional>

#include "forms/timer.h"

namespace sarne {

class Control;

/// Makes a control step at each click and, while it is held down, after a while again and again until it is
/// let go, disabled or hidden. Belongs to the control and goes with it.
class HoldRepeat : public QObject {
    Q_OBJECT
  public:
    static constexpr int kDelay = 500;     ///< milliseconds from the press to the first repetition
    static constexpr int kInterval = 100;  ///< milliseconds from one repetition to the next

    HoldRepeat(Control& control, std::function<void()> step);

    void setInterval(int milliseconds) { interval_ = milliseconds; }
    bool isHeld() const { return timer_.isEnabled(); }
    /// Ends the repetition as if the control had been let go.
    void stop();
    /// The timer of the repetitions; tests fire it instead of waiting.
    Timer& timer() { return timer_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void start();
    void repeat();

    Control& control_;
    std::function<void()> step_;
    Timer timer_;
    int interval_ = kInterval;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
