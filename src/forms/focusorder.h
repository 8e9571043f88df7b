#pragma once

#include <QRect>
#include <optional>
#include <vector>

namespace sarne {

enum class Direction { Left, Right, Up, Down };

/// Where the keyboard goes among places. It knows no widget: \a usable, or a place that is not empty, says
/// which of them can take the keyboard.

/// The usable place \a step (1 or -1) after \a from, going round at the ends. With no \a from it is the first
/// one, or the last one for a step back. Nothing where none is usable.
std::optional<int> nextPlace(const std::vector<bool>& usable, std::optional<int> from, int step);
/// The place nearest to place \a from in \a direction, sideways steps counting double; nothing when there is
/// none that way: what lies aside more than twice as far as ahead is not. Empty places do not count.
std::optional<int> nearest(const std::vector<QRect>& places, int from, Direction direction);
/// The indices of \a places as people read them: row by row from the top, each from the left. Places belong
/// to a row when they reach over the middle of its first one.
std::vector<int> readingOrder(const std::vector<QRect>& places);
/// The direction of an arrow key; nothing for any other \a key.
std::optional<Direction> arrowDirection(int key);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
