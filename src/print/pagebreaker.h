#pragma once

#include <vector>

#include "print/printedpage.h"

namespace sarne {

/// The lines of one page: the first, and the one behind the last.
struct PageRange {
    size_t first = 0;
    size_t end = 0;

    bool operator==(const PageRange&) const = default;
};

/// Parts \a lines into pages that are \a height twips high. A heading stays with what follows it, and no line
/// of a paragraph stands alone at the foot or the head of a page, unless a page could not be filled
/// otherwise. Every page has at least one line; a page begins with no space.
std::vector<PageRange> breakPages(const std::vector<FlowLine>& lines, int height);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
