#include "forms/accessiblepartinterface.h"

#include "core/texts.h"

namespace sarne {

QString placeAmong(int index, int count) {
    return Texts::tr("%1 z %2").arg(index + 1).arg(count);
}

namespace {

void usePart(Control& control, int index) {
    if (control.isEnabled() && index < control.partCount()) control.usePart(index);
}

}  // namespace

QAccessibleInterface* AccessiblePartInterface::parent() const {
    return control_ ? QAccessible::queryAccessibleInterface(control_) : nullptr;
}

QString AccessiblePartInterface::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Name) return part().name;
    return kind == QAccessible::Description ? part().description : QString();
}

QRect AccessiblePartInterface::rect() const {
    const QRect place = part().place;
    if (!control_ || place.isEmpty()) return {};
    const QPoint from = control_->toPixels(place.topLeft()), to = control_->toPixels(place.bottomRight());
    return {control_->mapToGlobal(from), control_->mapToGlobal(to)};
}

QAccessible::State AccessiblePartInterface::state() const {
    QAccessible::State state;
    const AccessiblePart is = part();
    state.invalid = !isValid();
    state.focusable = state.selectable = is.isUsable;
    state.selected = is.isCurrent;
    state.focused = is.isCurrent && control_ && control_->hasFocus();
    state.offscreen = is.place.isEmpty();
    state.checkable = is.isCheckable;
    state.checked = is.isChecked;
    state.disabled = !control_ || !control_->isEnabled();
    state.linked = is.role == QAccessible::Link;
    return state;
}

void* AccessiblePartInterface::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    const bool isCell = type == QAccessible::TableCellInterface && part().role == QAccessible::Cell;
    return isCell ? static_cast<QAccessibleTableCellInterface*>(this) : nullptr;
}

QStringList AccessiblePartInterface::actionNames() const {
    return part().isUsable ? QStringList{pressAction()} : QStringList();
}

void AccessiblePartInterface::doAction(const QString& action) {
    if (action != pressAction() || !isValid()) return;
    // Queued: it may open a dialog, and the reader would wait for its end.
    QMetaObject::invokeMethod(
        control_, [control = control_.data(), index = index_] { usePart(*control, index); },
        Qt::QueuedConnection);
}

QList<QAccessibleInterface*> AccessiblePartInterface::columnHeaderCells() const {
    QAccessibleInterface* header = parent() ? parent()->child(columnIndex()) : nullptr;
    return header ? QList<QAccessibleInterface*>{header} : QList<QAccessibleInterface*>();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
