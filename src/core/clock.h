#pragma once

#include <QElapsedTimer>

namespace sarne {

/// Time as the screens need it: milliseconds that only ever go forward, whatever happens to the time of day.
class Clock {
  public:
    virtual ~Clock() = default;
    /// Milliseconds since some fixed moment.
    virtual qint64 now() const = 0;
};

/// The machine's monotonic clock.
class SteadyClock final : public Clock {
  public:
    SteadyClock();
    qint64 now() const override;

  private:
    QElapsedTimer timer_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
