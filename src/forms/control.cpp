#include "forms/control.h"

#include <QMouseEvent>

#include "forms/form.h"
#include "forms/stage.h"

namespace sarne {

Control::Control(Form& form, const QString& name) : TwipWidget(&form), form_(form) {
    setObjectName(name);
    setMouseTracking(true);
    show();
}

void Control::setTip(const QString& tip) {
    setToolTip(tip);
    setAccessibleName(tip.trimmed());
}

void Control::click() {
    if (!isEnabled()) return;
    if (focusPolicy() & Qt::ClickFocus) form_.ring().arrived(*this);
    Q_EMIT clicked();
}

void Control::letGo() {
    if (!down_) return;
    down_ = false;
    update();
    Q_EMIT released();
}

bool Control::isPressable() const {
    return role() == QAccessible::Button || role() == QAccessible::CheckBox ||
           role() == QAccessible::RadioButton;
}

bool Control::showsFocus() const {
    const auto* stage = qobject_cast<Stage*>(form_.parentWidget());
    return hasFocus() && stage && stage->keyboardInUse();
}

void Control::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    if (focusPolicy() & Qt::ClickFocus) setFocus(Qt::MouseFocusReason);
    down_ = true;
    update();
    Q_EMIT pressed();
}

void Control::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !down_) return;
    down_ = false;
    update();
    const bool inside = rect().contains(event->position().toPoint());
    const QPointer<Control> self(this);
    Q_EMIT released();
    if (self && inside && isEnabled()) Q_EMIT clicked();
}

void Control::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    down_ = true;  // the second press of the pair: its release is a click again
    const QPointer<Control> self(this);
    Q_EMIT pressed();
    if (self) Q_EMIT doubleClicked();
}

void Control::setPointedAt(bool pointedAt) {
    if (pointedAt_ == pointedAt) return;
    pointedAt_ = pointedAt;
    update();
}

void Control::mouseMoveEvent(QMouseEvent* event) {
    setPointedAt(true);
    Q_EMIT hovered(toTwips(event->position()));
}

void Control::leaveEvent(QEvent*) {
    setPointedAt(false);
    Q_EMIT left();
}

void Control::focusInEvent(QFocusEvent*) {
    update();
}

void Control::focusOutEvent(QFocusEvent*) {
    update();
}

void Control::changeEvent(QEvent* event) {
    TwipWidget::changeEvent(event);
    if (event->type() != QEvent::EnabledChange) return;
    down_ = false;
    update();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
