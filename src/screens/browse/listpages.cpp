#include "screens/browse/listpages.h"

#include <algorithm>

namespace sarne {

void ListPages::fill(int count, int rows) {
    *this = ListPages();
    count_ = count;
    rows_ = rows;
}

int ListPages::entryAt(int row) const {
    const int entry = top_ + row - 1;
    return row >= 1 && row <= rows_ && entry < count_ ? entry : -1;
}

int ListPages::selectedRow() const {
    const int row = selected_ - top_ + 1;
    return selected_ >= 0 && row >= 1 && row <= rows_ ? row : 0;
}

int ListPages::lastTop() const {
    return std::max(0, count_ - rows_);
}

void ListPages::scroll(int step) {
    top_ = std::clamp(top_ + step, 0, lastTop());
}

bool ListPages::selectRow(int row) {
    const int entry = entryAt(row);
    return entry >= 0 && selectEntry(entry);
}

bool ListPages::selectEntry(int entry) {
    if (entry < 0 || entry >= count_) return false;
    if (entry < top_) top_ = entry;
    if (entry >= top_ + rows_) top_ = entry - rows_ + 1;
    const bool another = entry != selected_;
    selected_ = entry;
    return another;
}

bool ListPages::moveRow(int step) {
    if (selectedRow() == 0) return selectRow(step > 0 ? 1 : std::min(rows_, count_));
    return selectEntry(std::clamp(selected_ + step, 0, count_ - 1));
}

bool ListPages::movePage(int sign) {
    if (!scrolls()) return false;
    const int row = selectedRow();
    const int before = top_;
    scroll(sign * rows_);
    if (row == 0) return false;
    if (top_ == before) return sign > 0 ? moveToLast() : moveToFirst();
    return selectRow(row);
}

bool ListPages::moveToFirst() {
    return selectEntry(0);
}

bool ListPages::moveToLast() {
    return selectEntry(count_ - 1);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
