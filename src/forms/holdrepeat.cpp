#include "forms/holdrepeat.h"

#include <QMouseEvent>
#include <utility>

#include "forms/control.h"

namespace sarne {

HoldRepeat::HoldRepeat(Control& control, std::function<void()> step)
    : QObject(&control), control_(control), step_(std::move(step)), timer_(this) {
    connect(&control, &Control::pressed, this, &HoldRepeat::start);
    connect(&control, &Control::released, this, &HoldRepeat::stop);
    connect(&control, &Control::clicked, this, &HoldRepeat::clicked);
    connect(&timer_, &Timer::tick, this, &HoldRepeat::repeat);
    control.installEventFilter(this);
}

void HoldRepeat::start() {
    stepped_ = true;
    timer_.setInterval(kDelay);
    timer_.setEnabled(true);
    step_();
}

void HoldRepeat::repeat() {
    timer_.setInterval(interval_);
    step_();
}

void HoldRepeat::stop() {
    timer_.setEnabled(false);
}

void HoldRepeat::clicked() {
    if (!std::exchange(stepped_, false)) step_();
}

bool HoldRepeat::eventFilter(QObject* watched, QEvent* event) {
    const bool gone =
        event->type() == QEvent::Hide || (event->type() == QEvent::EnabledChange && !control_.isEnabled());
    // A press that is let go outside is no click, so nothing else uses up its step.
    const bool letGoOutside =
        event->type() == QEvent::MouseButtonRelease &&
        !control_.rect().contains(static_cast<QMouseEvent&>(*event).position().toPoint());
    if (gone) stop();
    if (gone || letGoOutside) stepped_ = false;
    return QObject::eventFilter(watched, event);
}

}  // namespace sarne
