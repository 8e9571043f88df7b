#include "forms/listselection.h"

#include <algorithm>

namespace sarne {

void ListSelection::resize(int count) {
    marks_.resize(static_cast<size_t>(std::max(0, count)));
    if (current_ >= count) current_ = -1;
    if (anchor_ >= count) anchor_ = -1;
}

void ListSelection::insert(int index) {
    marks_.insert(marks_.begin() + index, false);
    if (current_ >= index) ++current_;
    if (anchor_ >= index) ++anchor_;
}

void ListSelection::remove(int index) {
    marks_.erase(marks_.begin() + index);
    for (int* place : {&current_, &anchor_}) {
        if (*place == index) *place = -1;
        if (*place > index) --*place;
    }
}

bool ListSelection::isMarked(int index) const {
    return index >= 0 && index < count() && marks_[static_cast<size_t>(index)];
}

std::vector<int> ListSelection::marked() const {
    std::vector<int> indexes;
    for (int index = 0; index < count(); ++index) {
        if (isMarked(index)) indexes.push_back(index);
    }
    return indexes;
}

void ListSelection::go(int index, Reach reach) {
    if (marks_.empty()) return;
    current_ = std::clamp(index, 0, count() - 1);
    if (mode_ == Mode::One) reach = Reach::Only;
    if (reach == Reach::MoveOnly) return;
    const bool wasMarked = isMarked(current_);
    if (reach == Reach::Only || reach == Reach::Range) std::fill(marks_.begin(), marks_.end(), false);
    if (reach == Reach::Range || reach == Reach::AddRange) {
        if (anchor_ < 0) anchor_ = current_;
        return markRange(anchor_, current_);
    }
    anchor_ = current_;
    marks_[static_cast<size_t>(current_)] = reach == Reach::Only || !wasMarked;
}

void ListSelection::markRange(int from, int to) {
    const auto [first, last] = std::minmax(from, to);
    std::fill(marks_.begin() + first, marks_.begin() + last + 1, true);
}

void ListSelection::markAll() {
    if (mode_ == Mode::Several) std::fill(marks_.begin(), marks_.end(), true);
}

void ListSelection::clear() {
    std::fill(marks_.begin(), marks_.end(), false);
    current_ = anchor_ = -1;
}

}  // namespace sarne
