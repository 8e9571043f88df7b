#include "forms/focusorder.h"

#include <QtCore/qnamespace.h>

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace sarne {

std::optional<int> nextPlace(const std::vector<bool>& usable, std::optional<int> from, int step) {
    const int count = static_cast<int>(usable.size());
    int at = from.value_or(step > 0 ? -1 : count);
    for (int tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        if (usable[static_cast<size_t>(at)]) return at;
    }
    return {};
}

std::optional<int> nearest(const std::vector<QRect>& places, int from, Direction direction) {
    const QPoint start = places[static_cast<size_t>(from)].center();
    std::optional<int> best;
    int bestDistance = 0;
    for (int i = 0; i < static_cast<int>(places.size()); ++i) {
        const QPoint way = places[static_cast<size_t>(i)].center() - start;
        const bool sideways = direction == Direction::Left || direction == Direction::Right;
        const bool backwards = direction == Direction::Left || direction == Direction::Up;
        const int along = (sideways ? way.x() : way.y()) * (backwards ? -1 : 1);
        const int across = std::abs(sideways ? way.y() : way.x());
        if (along <= 0 || across > 2 * along || places[static_cast<size_t>(i)].isEmpty()) continue;
        // What lies straight ahead comes before what is nearer but off to the side.
        const int distance = along + 2 * across;
        if (best && distance >= bestDistance) continue;
        best = i;
        bestDistance = distance;
    }
    return best;
}

std::vector<int> readingOrder(const std::vector<QRect>& places) {
    const auto place = [&](int i) -> const QRect& { return places[static_cast<size_t>(i)]; };
    std::vector<int> order(places.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {}, [&](int i) { return place(i).top(); });
    for (auto row = order.begin(); row != order.end();) {
        const int middle = place(*row).center().y();
        const auto next = std::find_if(row, order.end(), [&](int i) { return place(i).top() > middle; });
        std::stable_sort(row, next, [&](int a, int b) { return place(a).left() < place(b).left(); });
        row = next;
    }
    return order;
}

std::optional<Direction> arrowDirection(int key) {
    switch (key) {
        case Qt::Key_Left:
            return Direction::Left;
        case Qt::Key_Right:
            return Direction::Right;
        case Qt::Key_Up:
            return Direction::Up;
        case Qt::Key_Down:
            return Direction::Down;
        default:
            return {};
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
