#pragma once

#include <QWheelEvent>

namespace sarne {

/// The steps that a wheel is turned by. What a fine wheel, a touch pad or a finger sends in small pieces adds
/// up to them.
class WheelSteps {
  public:
    static constexpr int kNotch = 120;  ///< what a wheel reports for one notch

    explicit WheelSteps(int stepsOfANotch = 1) : angle_(kNotch / stepsOfANotch) {}

    /// The steps that have become whole with \a event: down (1 and more), up (-1 and less) or none yet.
    int take(const QWheelEvent& event) {
        rest_ -= event.angleDelta().y();
        const int steps = rest_ / angle_;
        rest_ -= steps * angle_;
        return steps;
    }

  private:
    int angle_;
    int rest_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
