#include "forms/holdrepeat.h"

#include <QEvent>

#include "forms/control.h"

namespace sarne {

HoldRepeat::HoldRepeat(Control& control, std::function<void()> step)
    : QObject(&control), control_(control), step_(std::move(step)), timer_(this) {
    connect(&control, &Control::pressed, this, &HoldRepeat::start);
    connect(&control, &Control::released, this, &HoldRepeat::stop);
    connect(&control, &Control::clicked, this, [this] { step_(); });
    connect(&timer_, &Timer::tick, this, &HoldRepeat::repeat);
    control.installEventFilter(this);
}

void HoldRepeat::start() {
    timer_.setInterval(kDelay);
    timer_.setEnabled(true);
}

void HoldRepeat::repeat() {
    timer_.setInterval(interval_);
    step_();
}

void HoldRepeat::stop() {
    timer_.setEnabled(false);
}

bool HoldRepeat::eventFilter(QObject* watched, QEvent* event) {
    const bool gone =
        event->type() == QEvent::Hide || (event->type() == QEvent::EnabledChange && !control_.isEnabled());
    if (gone) stop();
    return QObject::eventFilter(watched, event);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
