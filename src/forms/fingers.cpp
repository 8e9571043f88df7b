#include "forms/fingers.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointingDevice>
#include <algorithm>
#include <cmath>

#include "forms/control.h"
#include "forms/form.h"
#include "forms/holdrepeat.h"
#include "forms/nameplate.h"
#include "forms/stage.h"
#include "forms/wheelsteps.h"

namespace sarne {
namespace {

constexpr int kStill = 180;  // twips that a resting finger trembles
constexpr int kSwipe = 900;  // twips of a swipe
constexpr int kNotchTwips = 540;

bool isUsable(const Control& control) {
    return control.isPressable() && control.isVisible() && control.isEnabled();
}

QRect onStage(const Control& control) {
    const QWidget* stage = control.form().parentWidget();
    return {control.mapTo(stage, QPoint()), control.size()};
}

int distance(const QRect& place, QPoint point) {
    const int x = std::max({place.left() - point.x(), 0, point.x() - place.right()});
    const int y = std::max({place.top() - point.y(), 0, point.y() - place.bottom()});
    return x * x + y * y;
}

/// \a place as large as a finger needs, where a pixel is \a scale of a twip.
QRect widened(const QRect& place, double scale) {
    const int side = static_cast<int>(std::ceil(kFingerTwips * scale));
    const int across = std::max(0, side - place.width() + 1) / 2,
              down = std::max(0, side - place.height() + 1) / 2;
    return place.adjusted(-across, -down, across, down);
}

/// Whether a finger on \a control means the control itself, and no small button beside it.
bool isMeant(const Control& control) {
    return control.isPressable() || control.focusPolicy() != Qt::NoFocus ||
           control.cursor().shape() == Qt::PointingHandCursor;
}

}  // namespace

QRect fingerPlace(const Control& control) {
    const QRect own = onStage(control);
    QRect all = widened(own, control.scale());
    // What is nearer to a neighbour is the neighbour's: halfway between the two.
    for (const Control* other : control.form().findChildren<Control*>()) {
        if (other == &control || !isUsable(*other)) continue;
        const QRect its = onStage(*other);
        if (!its.intersects(all) || its.intersects(own)) continue;
        if (its.left() > own.right()) all.setRight(std::min(all.right(), (own.right() + its.left()) / 2));
        if (its.right() < own.left()) all.setLeft(std::max(all.left(), (own.left() + its.right() + 1) / 2));
        if (its.top() > own.bottom()) all.setBottom(std::min(all.bottom(), (own.bottom() + its.top()) / 2));
        if (its.bottom() < own.top()) all.setTop(std::max(all.top(), (own.top() + its.bottom() + 1) / 2));
    }
    return all;
}

Fingers::Fingers(Stage& stage, NamePlate& plate)
    : QObject(&stage), stage_(stage), plate_(plate), hold_(this) {
    hold_.setInterval(kHold);
    connect(&hold_, &Timer::tick, this, &Fingers::rest);
}

bool Fingers::see(QObject* watched, const QEvent& event) {
    const QEvent::Type type = event.type();
    const bool isMouse = type == QEvent::MouseButtonPress || type == QEvent::MouseMove ||
                         type == QEvent::MouseButtonRelease || type == QEvent::MouseButtonDblClick;
    auto* under = qobject_cast<QWidget*>(watched);
    if (!isMouse || !under) return false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    const bool isFinger = mouse.pointingDevice()->type() == QInputDevice::DeviceType::TouchScreen;
    if (!isFinger) return false;
    if (type == QEvent::MouseMove) return move(mouse);
    if (type == QEvent::MouseButtonRelease) return release(mouse);
    return press(*under, mouse);
}

Control* Fingers::controlAt(QWidget& under) const {
    for (QWidget* widget = &under; widget; widget = widget->parentWidget())
        if (auto* control = qobject_cast<Control*>(widget)) return control;
    return nullptr;
}

Control* Fingers::nearTo(QPoint global) const {
    const QPoint at = stage_.mapFromGlobal(global);
    Control* nearest = nullptr;
    if (!form_) return nearest;
    for (Control* control : form_->findChildren<Control*>()) {
        if (!isUsable(*control) || !widened(onStage(*control), control->scale()).contains(at)) continue;
        if (!nearest || distance(onStage(*control), at) < distance(onStage(*nearest), at)) nearest = control;
    }
    return nearest;
}

void Fingers::begin(Does what) {
    does_ = what;
    hold_.setEnabled(what == Does::Presses);
    if (what == Does::Presses || !control_) return;
    if (!keptBack_) control_->letGo();
}

bool Fingers::press(QWidget& under, const QMouseEvent& event) {
    if (down_) return keptBack_;  // the same press, on its way up through the parents
    down_ = true;
    under_ = &under;
    control_ = controlAt(under);
    from_ = last_ = event.globalPosition().toPoint();
    QWidget* widget = &under;
    while (widget && !qobject_cast<Form*>(widget)) widget = widget->parentWidget();
    form_ = static_cast<Form*>(widget);
    keptBack_ = false;
    if (!control_ || !isMeant(*control_)) {
        if (Control* near = nearTo(from_)) {
            control_ = near;
            keptBack_ = true;
        }
    } else {
        // What a list does when it is pressed it is not to do when it is scrolled.
        keptBack_ = control_->role() == QAccessible::List;
    }
    begin(Does::Presses);
    return keptBack_;
}

bool Fingers::move(const QMouseEvent& event) {
    if (!down_) return false;
    const QPoint at = event.globalPosition().toPoint();
    const QPoint way = (at - from_) / stage_.scale();
    const bool isStill = way.manhattanLength() < kStill;
    if (does_ == Does::Presses && isStill) return control_ != nullptr;
    if (does_ == Does::Presses) begin(std::abs(way.y()) > std::abs(way.x()) ? Does::Scrolls : Does::Swipes);
    if (does_ == Does::Scrolls) turnWheel(at);
    return control_ != nullptr;
}

bool Fingers::release(const QMouseEvent& event) {
    if (!down_) return false;
    down_ = false;
    hold_.setEnabled(false);
    const QPointer<Control> control = control_;
    if (does_ == Does::Presses) {
        if (!keptBack_) return false;
        send(QEvent::MouseButtonPress);
        send(QEvent::MouseButtonRelease);
        return true;
    }
    const QPoint way = (event.globalPosition().toPoint() - from_) / stage_.scale();
    const bool isSwipe = does_ == Does::Swipes && std::abs(way.x()) >= kSwipe;
    const bool taken = isSwipe && form_ && form_->isEnabled() && form_->swiped(way.x() < 0 ? 1 : -1);
    return taken || control != nullptr;
}

/// What pointing at the thing would show, and its name; the finger lets go of it.
void Fingers::rest() {
    hold_.setEnabled(false);
    if (!control_ || !control_->isEnabled() || control_->findChild<HoldRepeat*>()) return;
    begin(Does::Rests);
    Q_EMIT control_->hovered(control_->toTwips(QPointF(control_->rect().center())));
    plate_.nameIt(*control_);
}

/// The press or release that was kept back, at the control.
void Fingers::send(QEvent::Type type) {
    if (!control_) return;
    const bool isWithin = under_ && (under_ == control_ || control_->isAncestorOf(under_));
    QWidget& target = isWithin ? *under_ : *control_;
    const QPointF at = isWithin ? target.mapFromGlobal(QPointF(from_)) : QPointF(target.rect().center());
    QMouseEvent event(type, at, target.mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &event);
}

void Fingers::turnWheel(QPoint global) {
    const int twips = static_cast<int>((global.y() - last_.y()) / stage_.scale());
    const int angle = twips * WheelSteps::kNotch / kNotchTwips;
    if (angle == 0 || !under_) return;
    last_ = global;
    QWheelEvent wheel(under_->mapFromGlobal(QPointF(global)), global, {}, {0, angle}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(under_, &wheel);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
