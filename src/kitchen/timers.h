#pragma once

#include <QString>
#include <vector>

namespace sarne {

/// One kitchen timer. Times are milliseconds of a clock that only goes forward.
struct KitchenTimer {
    int id = 0;
    QString name;
    qint64 end = 0;
    bool rings = false;  ///< it is over, and nobody has stopped it yet

    qint64 left(qint64 now) const { return end > now ? end - now : 0; }
};

/// The timers that run, however many. They live as long as the program, whatever screen is shown.
class KitchenTimers {
  public:
    /// Starts a timer of \a seconds and returns its number.
    int start(const QString& name, int seconds, qint64 now);
    /// Starts one that ends at \a end, which may be over.
    int resume(const QString& name, qint64 end);
    /// Ends a timer, whether it rings or not.
    void stop(int id);
    /// Lets a timer go on for \a seconds more; one that rings from now on.
    void prolong(int id, int seconds, qint64 now);
    /// The timers in the order in which they end.
    const std::vector<KitchenTimer>& all() const { return timers_; }
    /// Those that have come to their end since this was asked last; they ring from now on.
    std::vector<KitchenTimer> over(qint64 now);
    /// Whether any rings.
    bool ringing() const;
    /// How many have not come to their end.
    int running() const;

  private:
    KitchenTimer* find(int id);
    void sort();

    std::vector<KitchenTimer> timers_;
    int last_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
