#include "courses.h"

#include <algorithm>

#include "core/gridtable.h"

namespace sarne::disc {

const QStringList& courses() {
    static const QStringList all{QStringLiteral("polévka"), QStringLiteral("teplé"),
                                 QStringLiteral("studené"), QStringLiteral("slavnostní")};
    return all;
}

QStringList gridCourses(int recipe) {
    QStringList found;
    for (int group = 0; group < kGridGroups; ++group)
        if (std::ranges::count(gridGroupIds(group), recipe) > 0) found << courses()[group];
    return found;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
