#include "screens/browse/photogrid.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace sarne {
namespace {

bool isCell(int cell) {
    return cell >= 1 && cell <= kGridCells;
}

int rowOf(int cell) {
    return (cell - 1) / kGridInRow;
}

int columnOf(int cell) {
    return (cell - 1) % kGridInRow;
}

}  // namespace

bool PhotoGrid::isAlive(int cell) const {
    return isCell(cell) && (isWhole() || std::ranges::count(gridGroupIds(group_), cell) > 0);
}

bool PhotoGrid::setGroup(int group) {
    if (group == group_) return false;
    group_ = group;
    if (!isAlive(hoverCell_)) clear();
    return true;
}

bool PhotoGrid::hover(int cell) {
    if (hoverLocked_ || cell == hoverCell_ || !isAlive(cell)) return false;
    hoverCell_ = cell;
    return true;
}

void PhotoGrid::click(int cell) {
    if (!isAlive(cell)) return;
    hoverLocked_ = !(hoverLocked_ && cell == hoverCell_);
    hoverCell_ = cell;
}

void PhotoGrid::lock(int cell) {
    if (!isAlive(cell)) return;
    hoverCell_ = cell;
    hoverLocked_ = true;
}

void PhotoGrid::clear() {
    hoverCell_ = 0;
    hoverLocked_ = false;
}

int PhotoGrid::besides(int step) const {
    for (int cell = hoverCell_ + step; isCell(cell); cell += step) {
        if (isAlive(cell)) return cell;
    }
    return hoverCell_;
}

int PhotoGrid::above(int step) const {
    for (int row = rowOf(hoverCell_) + step; row >= 0 && row <= rowOf(kGridCells); row += step) {
        int best = 0;
        for (int cell = row * kGridInRow + 1; cell <= (row + 1) * kGridInRow; ++cell) {
            const auto distance = [&](int other) { return std::abs(columnOf(other) - columnOf(hoverCell_)); };
            if (isAlive(cell) && (best == 0 || distance(cell) < distance(best))) best = cell;
        }
        if (best > 0) return best;
    }
    return hoverCell_;
}

bool PhotoGrid::move(int right, int down) {
    const int before = hoverCell_;
    if (before == 0)
        hoverCell_ = besides(1);
    else
        hoverCell_ = right != 0 ? besides(right) : above(down);
    return hoverCell_ != before;
}

std::vector<std::int16_t> PhotoGrid::photoIds() const {
    if (!isWhole()) return {gridGroupIds(group_).begin(), gridGroupIds(group_).end()};
    std::vector<std::int16_t> all(kGridCells);
    std::iota(all.begin(), all.end(), std::int16_t(1));
    return all;
}

int PhotoGrid::photoPosition() const {
    const auto ids = photoIds();
    const auto found = std::ranges::find(ids, hoverCell_);
    return found == ids.end() ? 0 : static_cast<int>(found - ids.begin());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
