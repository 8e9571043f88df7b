#include "core/clock.h"

namespace sarne {

SteadyClock::SteadyClock() {
    timer_.start();
}

qint64 SteadyClock::now() const {
    return timer_.elapsed();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
