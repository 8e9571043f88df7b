#include "forms/focusring.h"

#include <QAccessible>
#include <QKeyEvent>
#include <algorithm>

#include "forms/bassarne.h"
#include "forms/control.h"
#include "forms/form.h"

namespace sarne {

void FocusRing::setStops(const std::vector<TwipWidget*>& stops) {
    groups_.clear();
    for (TwipWidget* stop : stops) groups_.emplace_back(std::vector{stop});
}

bool FocusRing::isUsable(const TwipWidget* stop) const {
    return stop && stop->isEnabled() && (stop == &form_ || stop->isVisibleTo(&form_));
}

TwipWidget* FocusRing::entryOf(const FocusGroup& group) const {
    if (isUsable(group.entry)) return group.entry;
    const auto found = std::ranges::find_if(group.members, [this](TwipWidget* one) { return isUsable(one); });
    return found == group.members.end() ? nullptr : found->data();
}

std::optional<int> FocusRing::groupAt() const {
    const auto found = std::ranges::find_if(groups_, [this](const FocusGroup& group) {
        return last_ && std::ranges::count(group.members, last_) > 0;
    });
    if (found == groups_.end()) return {};
    return static_cast<int>(found - groups_.begin());
}

std::optional<int> FocusRing::position() const {
    int at = 0;
    for (const FocusGroup& group : groups_) {
        for (TwipWidget* member : group.members) {
            if (member && member == last_) return at;
            ++at;
        }
    }
    return {};
}

void FocusRing::focus(TwipWidget& stop) {
    stop.setFocus(Qt::TabFocusReason);
    last_ = &stop;
}

void FocusRing::goTo(TwipWidget& stop) {
    focus(stop);
    sayWithoutReader(stop.accessibleName());
}

void FocusRing::sayWithoutReader(const QString& text) {
    // A screen reader that listens has the focus event, which says the same.
    if (!QAccessible::isActive()) app_.HookMessage(text);
}

void FocusRing::say(const Control& control) {
    if (!QAccessible::isActive()) return app_.HookMessage(control.accessibleName());
    QAccessibleEvent event(const_cast<Control*>(&control), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void FocusRing::sayPart(const Control& control, int part) {
    if (part < 0 || part >= control.partCount()) return;
    if (!QAccessible::isActive()) {
        const QString value = control.accessibleValue();
        return app_.HookMessage(value.isEmpty() ? control.part(part).name : value);
    }
    QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(const_cast<Control*>(&control));
    QAccessibleEvent event(whole->child(part), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void FocusRing::sayPart(const Control& control) {
    sayPart(control, control.currentPart());
}

void FocusRing::step(int direction) {
    std::vector<bool> usable;
    for (const FocusGroup& group : groups_) usable.push_back(entryOf(group));
    const auto next = nextPlace(usable, groupAt(), direction);
    if (next) goTo(*entryOf(groups_[static_cast<size_t>(*next)]));
}

void FocusRing::tab(int direction) {
    if (isUsable(last_) && last_->stepInside(direction)) return;
    step(direction);
    if (last_) last_->stepInside(direction);
}

bool FocusRing::stepWithin(int direction) {
    const auto at = groupAt();
    if (!at) return false;
    const auto& members = groups_[static_cast<size_t>(*at)].members;
    std::vector<bool> usable;
    usable.reserve(members.size());
    for (TwipWidget* member : members) usable.push_back(isUsable(member));
    const int from = static_cast<int>(std::ranges::find(members, last_) - members.begin());
    const auto next = nextPlace(usable, from, direction);
    if (next && *next != from) goTo(*members[static_cast<size_t>(*next)]);
    return true;
}

bool FocusRing::stepTowards(Direction direction, const std::vector<TwipWidget*>& among) {
    const auto at = std::ranges::find(among, last_.data());
    if (at == among.end()) return false;
    std::vector<QRect> places;
    places.reserve(among.size());
    for (const TwipWidget* stop : among) places.push_back(isUsable(stop) ? stop->twips() : QRect());
    const auto next = nearest(places, static_cast<int>(at - among.begin()), direction);
    if (next) goTo(*among[static_cast<size_t>(*next)]);
    return next || direction == Direction::Left || direction == Direction::Right;
}

void FocusRing::walk(int direction) {
    std::vector<TwipWidget*> all;
    for (const FocusGroup& group : groups_)
        for (TwipWidget* member : group.members)
            if (isUsable(member)) all.push_back(member);
    const auto at = std::ranges::find(all, last_.data());
    const std::optional<int> from =
        at == all.end() ? std::optional<int>() : static_cast<int>(at - all.begin());
    const auto next = nextPlace(std::vector<bool>(all.size(), true), from, direction);
    if (next) goTo(*all[static_cast<size_t>(*next)]);
}

void FocusRing::walk(const QKeyEvent& event) {
    const auto direction = arrowDirection(event.key());
    if (!direction || event.modifiers() & ~Qt::KeypadModifier) return;
    walk(*direction == Direction::Left || *direction == Direction::Up ? -1 : 1);
}

bool FocusRing::press() {
    auto* control = qobject_cast<Control*>(last_.data());
    if (!isUsable(control) || !control->isPressable()) return false;
    control->click();
    return true;
}

bool FocusRing::arrow(Direction direction) {
    const bool upright = direction == Direction::Up || direction == Direction::Down;
    if (arrows_ == Arrows::None || (upright && arrows_ == Arrows::Sideways)) return false;
    walk(direction == Direction::Left || direction == Direction::Up ? -1 : 1);
    return true;
}

bool FocusRing::keyDown(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) return false;
    if (groups_.empty()) return false;
    if (const auto direction = arrowDirection(event.key())) return arrow(*direction);
    switch (event.key()) {
        case Qt::Key_Tab:
            tab(1);
            return true;
        case Qt::Key_Backtab:
            tab(-1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            return press();
        default:
            return false;
    }
}

void FocusRing::restore() {
    if (isUsable(last_)) return focus(*last_);
    for (const FocusGroup& group : groups_) {
        if (TwipWidget* entry = entryOf(group)) return focus(*entry);
    }
    form_.setFocus();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
