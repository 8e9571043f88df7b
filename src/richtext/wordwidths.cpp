#include "richtext/wordwidths.h"

#include <algorithm>
#include <utility>

namespace sarne {

void WordWidths::grow() {
    constexpr size_t kFirstSize = 1024;
    std::vector<Slot> old(std::max(kFirstSize, 2 * slots_.size()));
    std::swap(old, slots_);
    for (const Slot& slot : old) {
        if (slot.font < 0) continue;
        size_t at = slot.hash & (slots_.size() - 1);
        while (slots_[at].font >= 0) at = (at + 1) & (slots_.size() - 1);
        slots_[at] = slot;
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
