#include "eye.h"

#include <algorithm>

#include "words.h"

namespace sarne::disc {

/// Where the eye may go so that it does not see beyond the ground.
QPointF Eye::withinGround(QPointF focus, double near) const {
    const bool isRoom = grounds().value(film_.sets.last().ground).isRoom;
    const double room = 1 - 1 / near;
    const double wide = isRoom ? kStageWidth / 2 * room : kStageWidth * (0.7 - 0.5 / near);
    const double up = isRoom ? kStageAbove * room : 8;
    const double down = isRoom ? (kStageWidth * 0.75 - kStageAbove) * room : 8;
    return {std::clamp(focus.x(), -wide, wide), std::clamp(focus.y(), -up, down)};
}

void Eye::look(QPointF focus, double nearness, double begin, double end) {
    if (nearness == 0) return;
    const View wanted{nearness == 1 ? QPointF() : withinGround(focus, nearness), nearness};
    if (wanted == view_) return;
    const bool isSlow = grounds().value(film_.sets.last().ground).isRoom;
    const double seconds = std::clamp(end - begin, 0.4, isSlow ? 10 : 1.3);
    film_.sets.last().views << ViewMove{begin, begin + seconds, wanted};
    view_ = wanted;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
