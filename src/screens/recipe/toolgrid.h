#pragma once

#include <QRect>
#include <vector>

namespace sarne {

/// Where one picture of a grid stands, in twips, and the line with its name below it.
struct ToolPlace {
    QRect picture, name;
};

inline constexpr int kFewestTools = 3;  ///< as pictures: with fewer the grid would be mostly paper
inline constexpr int kMostTools = 9;    ///< more would be too small to know them by

/// The places of \a count pictures in \a room, row by row, the last one in the middle of what it does not
/// fill: in the number of columns that makes pictures of 4 : 3 largest. \a nameHeight is that of a name's
/// line.
std::vector<ToolPlace> toolPlaces(const QRect& room, int count, int nameHeight);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
