#pragma once

#include <QAccessible>
#include <QPointer>

#include "forms/control.h"

namespace sarne {

/// What the accessibility layer is told of a part of a control. Belongs to the control's own interface.
class AccessiblePartInterface final : public QAccessibleInterface,
                                      public QAccessibleActionInterface,
                                      public QAccessibleTableCellInterface {
  public:
    AccessiblePartInterface(Control* control, int index) : control_(control), index_(index) {}

    bool isValid() const override { return control_ && index_ < control_->partCount(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return part().role; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    bool isSelected() const override { return part().isCurrent; }
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return index_ % columns(); }
    int rowIndex() const override { return index_ / columns() - 1; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

  private:
    AccessiblePart part() const { return isValid() ? control_->part(index_) : AccessiblePart(); }
    int columns() const { return isValid() ? control_->partColumns() : 1; }

    QPointer<Control> control_;
    int index_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
