#pragma once

#include <functional>

#include "forms/control.h"

namespace sarne {

/// A list or menu for those who hear it: where a form shows entries by means of its own, this stands in the
/// accessible tree for all of them, those out of sight too. It has no picture and takes neither mouse nor
/// keyboard.
class EntryList : public Control {
    Q_OBJECT
  public:
    /// The entry \a index; its description is filled in where it is empty.
    using Entry = std::function<AccessiblePart(int index)>;
    using Use = std::function<void(int index)>;

    EntryList(Form& form, const QString& name, QAccessible::Role role);

    QAccessible::Role role() const override { return role_; }
    /// From now on there are \a count entries; \a use is what Enter or a click on one does.
    void setEntries(int count, Entry entry, Use use);
    /// The user is at \a index now; -1: at none.
    void setCurrent(int index);

    int partCount() const override { return count_; }
    AccessiblePart part(int index) const override;
    int currentPart() const override { return current_; }
    void usePart(int index) override;

  private:
    QAccessible::Role role_;
    int count_ = 0, current_ = -1;
    Entry entry_;
    Use use_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
