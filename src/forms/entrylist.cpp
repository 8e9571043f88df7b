#include "forms/entrylist.h"

#include <utility>

namespace sarne {

EntryList::EntryList(Form& form, const QString& name, QAccessible::Role role)
    : Control(form, name), role_(role) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    lower();
}

void EntryList::setEntries(int count, Entry entry, Use use) {
    count_ = count;
    current_ = -1;
    entry_ = std::move(entry);
    use_ = std::move(use);
}

void EntryList::setCurrent(int index) {
    current_ = index < count_ ? index : -1;
}

AccessiblePart EntryList::part(int index) const {
    AccessiblePart entry = entry_(index);
    entry.isCurrent = index == current_;
    if (entry.description.isEmpty()) entry.description = placeAmong(index, count_);
    return entry;
}

void EntryList::usePart(int index) {
    if (use_ && index >= 0 && index < count_) use_(index);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
