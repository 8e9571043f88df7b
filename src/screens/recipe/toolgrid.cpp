#include "screens/recipe/toolgrid.h"

#include <algorithm>

namespace sarne {
namespace {

constexpr int kGap = 120;  // twips between cells

int rowsOf(int count, int columns) {
    return (count + columns - 1) / columns;
}

/// The cell of each picture, gap included, in \a columns columns.
QSize cellOf(const QRect& room, int count, int columns) {
    return {room.width() / columns, room.height() / rowsOf(count, columns)};
}

/// How wide a picture of 4 : 3 is in such a cell.
int widthIn(QSize cell, int nameHeight) {
    return std::min(cell.width() - kGap, (cell.height() - kGap - nameHeight) * 4 / 3);
}

int bestColumns(const QRect& room, int count, int nameHeight) {
    int best = 1;
    for (int columns = 2; columns <= count; ++columns)
        if (widthIn(cellOf(room, count, columns), nameHeight) >
            widthIn(cellOf(room, count, best), nameHeight))
            best = columns;
    return best;
}

}  // namespace

std::vector<ToolPlace> toolPlaces(const QRect& room, int count, int nameHeight) {
    const int columns = bestColumns(room, count, nameHeight);
    const QSize cell = cellOf(room, count, columns);
    std::vector<ToolPlace> places;
    for (int i = 0; i < count; ++i) {
        const int inRow = std::min(columns, count - i / columns * columns);
        const int left = room.x() + (room.width() - inRow * cell.width()) / 2;
        const QPoint corner(left + i % columns * cell.width(), room.y() + i / columns * cell.height());
        const QRect inside = QRect(corner, cell).adjusted(0, 0, -kGap, -kGap);
        places.push_back({inside.adjusted(0, 0, 0, -nameHeight),
                          {inside.x(), inside.bottom() + 1 - nameHeight, inside.width(), nameHeight}});
    }
    return places;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
