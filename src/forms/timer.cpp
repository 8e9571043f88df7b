#include "forms/timer.h"

namespace sarne {

Timer::Timer(QObject* parent) : QObject(parent) {
    connect(&timer_, &QTimer::timeout, this, &Timer::tick);
}

void Timer::setEnabled(bool enabled) {
    enabled ? timer_.start() : timer_.stop();
}

void Timer::fire() {
    if (isEnabled()) Q_EMIT tick();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
