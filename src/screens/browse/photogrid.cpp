#include "screens/browse/photogrid.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <numeric>

namespace sarne {
namespace {

using Id = std::int16_t;

constexpr std::array<Id, 5> kGroup0{15, 16, 20, 41, 44};
constexpr std::array<Id, 29> kGroup1{1,  3,  4,  5,  6,  7,  10, 13, 14, 18, 19, 23, 24, 26, 27,
                                     28, 30, 32, 33, 34, 36, 37, 38, 39, 40, 42, 43, 45, 47};
constexpr std::array<Id, 22> kGroup2{2,  5,  8,  9,  11, 12, 13, 17, 19, 21, 22,
                                     25, 29, 31, 35, 36, 37, 39, 46, 48, 49, 50};
constexpr std::array<Id, 4> kGroup3{9, 35, 46, 50};

bool isCell(int cell) {
    return cell >= 1 && cell <= PhotoGrid::kCells;
}

int rowOf(int cell) {
    return (cell - 1) / PhotoGrid::kInRow;
}

int columnOf(int cell) {
    return (cell - 1) % PhotoGrid::kInRow;
}

}  // namespace

QRect PhotoGrid::cellRect(int cell) {
    return {240 + columnOf(cell) * 1280, 240 + rowOf(cell) * 960, 1240, 930};
}

std::span<const std::int16_t> PhotoGrid::groupIds(int group) {
    static constexpr std::span<const Id> kGroups[] = {kGroup0, kGroup1, kGroup2, kGroup3};
    return group >= 0 && group < PhotoGrid::kGroups ? kGroups[group] : std::span<const Id>();
}

bool PhotoGrid::isAlive(int cell) const {
    return isCell(cell) && (isWhole() || std::ranges::count(groupIds(group_), cell) > 0);
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
    for (int row = rowOf(hoverCell_) + step; row >= 0 && row <= rowOf(kCells); row += step) {
        int best = 0;
        for (int cell = row * kInRow + 1; cell <= (row + 1) * kInRow; ++cell) {
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
    if (!isWhole()) return {groupIds(group_).begin(), groupIds(group_).end()};
    std::vector<std::int16_t> all(kCells);
    std::iota(all.begin(), all.end(), std::int16_t(1));
    return all;
}

int PhotoGrid::photoPosition() const {
    const auto ids = photoIds();
    const auto found = std::ranges::find(ids, hoverCell_);
    return found == ids.end() ? 0 : static_cast<int>(found - ids.begin());
}

}  // namespace sarne
