#pragma once

#include <vector>

#include "richtext/surface.h"
#include "screens/index/lookuptable.h"

namespace sarne {

/// Where the cells of a table lie: as wide as what stands in them, as high as their rows need. Twips.
struct TableLayout {
    static constexpr int kPadding = 105;  ///< left and right of a cell's text
    static constexpr int kLeading = 60;   ///< above and below it

    std::vector<int> lefts;
    std::vector<int> widths;   ///< the columns fill the whole width together
    std::vector<int> heights;  ///< of the rows
    int headHeight = 0;

    static TableLayout of(const LookupTable& table, int width, const TextFont& font,
                          const TextFont& headFont);
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
