#include "core/rowpaging.h"

#include <algorithm>

namespace sarne {

void RowPaging::reset(std::vector<int> heights, int viewHeight) {
    heights_ = std::move(heights);
    viewHeight_ = viewHeight;
    top_ = 0;
    selected_ = kNone;
    maxTop_ = count();
    for (int room = viewHeight; maxTop_ > 0 && height(maxTop_ - 1) <= room; --maxTop_)
        room -= height(maxTop_ - 1);
    maxTop_ = std::clamp(maxTop_, 0, std::max(0, count() - 1));
}

int RowPaging::endFrom(int row) const {
    int room = viewHeight_;
    int end = row;
    while (end < count() && (height(end) <= room || end == row)) room -= height(end++);
    return end;
}

bool RowPaging::scrollBy(int rows) {
    const int before = top_;
    top_ = std::clamp(top_ + rows, 0, maxTop_);
    return top_ != before;
}

void RowPaging::show(int row) {
    top_ = std::min(top_, row);
    while (endFrom(top_) <= row) ++top_;
}

bool RowPaging::select(int row) {
    if (heights_.empty()) return false;
    const int before = selected_;
    const int topBefore = top_;
    selected_ = std::clamp(row, 0, count() - 1);
    show(selected_);
    return selected_ != before || top_ != topBefore;
}

bool RowPaging::moveBy(int rows) {
    return select(selected_ == kNone ? top_ : selected_ + rows);
}

bool RowPaging::jumpTo(int row) {
    if (row < 0 || row >= count()) return false;
    top_ = std::min(row, maxTop_);
    select(row);
    return true;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
