#pragma once

#include <vector>

namespace sarne {

/// The light that goes once over the kitchen's things, one after the other, when somebody sees them for the
/// first time. It only counts steps: a thing glows up in kRise of them, and fades while the next ones glow.
class Sweep {
  public:
    static constexpr int kInterval = 60;  ///< milliseconds from one step to the next
    static constexpr int kRise = 4;       ///< steps from one thing to the next
    static constexpr int kFade = 6;       ///< steps in which a thing's light goes

    /// Starts over the things \a order, by their numbers.
    void start(std::vector<int> order);
    void stop() { order_.clear(); }
    bool isRunning() const { return !order_.empty(); }
    /// Goes on by one step; after the last thing's light it has stopped.
    void step();

    /// How brightly \a thing glows, from 0 to 1.
    double glow(int thing) const;
    /// The things that glow now.
    std::vector<int> lit() const;

  private:
    std::vector<int> order_;
    int step_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
