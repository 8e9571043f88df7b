#include "courses.h"

#include <algorithm>

#include "core/gridtable.h"

namespace sarne::disc {

QStringList gridCourses(const BookFacts& facts, int recipe) {
    QStringList found;
    if (facts.courses.size() != kGridGroups) return found;
    for (int group = 0; group < kGridGroups; ++group)
        if (std::ranges::count(gridGroupIds(group), recipe) > 0) found << facts.courses[group];
    return found;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
