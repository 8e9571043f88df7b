#include "print/printchoice.h"

#include <algorithm>

#include "core/value.h"

namespace sarne {

void PrintChoice::setAvailable(std::vector<PrintEntry> entries) {
    available_ = std::move(entries);
    chosen_.clear();
}

bool PrintChoice::isChosen(std::int32_t item) const {
    return std::ranges::find(chosen_, item, &PrintEntry::item) != chosen_.end();
}

bool PrintChoice::add(const std::vector<int>& indexes) {
    const size_t before = chosen_.size();
    for (const int index : indexes) {
        const PrintEntry& entry = available_.at(static_cast<size_t>(index));
        if (!isChosen(entry.item)) chosen_.push_back(entry);
    }
    return chosen_.size() > before;
}

bool PrintChoice::remove(const std::vector<int>& indexes) {
    for (auto index = indexes.rbegin(); index != indexes.rend(); ++index)
        chosen_.erase(chosen_.begin() + *index);
    return !indexes.empty();
}

void PrintChoice::addAll() {
    chosen_.clear();
    for (const PrintEntry& entry : available_) {
        if (!isChosen(entry.item)) chosen_.push_back(entry);
    }
}

std::vector<std::int16_t> PrintChoice::ids() const {
    std::vector<std::int16_t> ids;
    for (const PrintEntry& entry : chosen_) {
        if (const auto id = toRecordId(entry.item)) ids.push_back(*id);
    }
    return ids;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
