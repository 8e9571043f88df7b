#include "screens/navigation/menulayout.h"

#include <algorithm>

namespace sarne {
namespace {

constexpr QRect kScreen(0, 0, 12000, 9000);
constexpr int kMargin = 150;
constexpr int kColumnGap = 120;
constexpr int kLeastItem = 900;
constexpr int kHeadingHeight = 435;
constexpr int kEntryWidth = 2700, kEntryHeight = 420;

struct Columns {
    int count, rows;
};

/// Full columns to the left and a short one to the right are harder to read than equal ones.
Columns columnsFor(int items, int linesThatFit) {
    const int rows = std::clamp(items, 1, std::max(1, linesThatFit));
    const int count = std::max(1, (items + rows - 1) / rows);
    return {count, std::max(1, (items + count - 1) / count)};
}

/// What a level needs across beside its items.
int roomBeside(const MenuContent& content, int columns) {
    return 2 * kMargin + (columns - 1) * kColumnGap + (content.hasEntry ? kMenuItemMargin + kEntryWidth : 0);
}

int levelWidth(const MenuContent& content, int columns) {
    int item = kLeastItem;
    for (const int width : content.itemWidths) item = std::max(item, width + 2 * kMenuItemMargin);
    const int words = std::max(content.headingWidth, content.hintWidth);
    const int width = std::max(columns * item + roomBeside(content, columns),
                               words > 0 ? words + 2 * (kMargin + kMenuItemMargin) : 0);
    return std::min(width, kScreen.width());
}

std::vector<QRect> itemPlaces(int items, const Columns& columns, int top, int width) {
    std::vector<QRect> places;
    places.reserve(static_cast<size_t>(items));
    for (int i = 0; i < items; ++i)
        places.emplace_back(kMargin + i / columns.rows * (width + kColumnGap),
                            top + i % columns.rows * kMenuLine, width, kMenuLine);
    return places;
}

QPoint onScreen(QSize level, const QRect& beside) {
    int left = beside.right() + 1;
    if (left + level.width() > kScreen.width()) left = beside.left() - level.width();
    if (left < 0) left = std::max(0, kScreen.width() - level.width());
    return {left, std::clamp(beside.top(), 0, std::max(0, kScreen.height() - level.height()))};
}

}  // namespace

MenuGeometry layOutMenu(const MenuContent& content, const QRect& beside, int maxHeight) {
    const int top = kMargin + (content.headingWidth > 0 ? kHeadingHeight : 0);
    const int below = kMargin + (content.hintWidth > 0 ? kMenuLine : 0);
    const int count = int(content.itemWidths.size());
    const Columns columns = columnsFor(count, (maxHeight - top - below) / kMenuLine);
    const int width = levelWidth(content, columns.count);
    const int item = (width - roomBeside(content, columns.count)) / columns.count;
    const int bottom = top + columns.rows * kMenuLine;

    MenuGeometry geometry;
    geometry.items = itemPlaces(count, columns, top, item);
    if (content.headingWidth > 0)
        geometry.heading = QRect(kMargin, kMargin / 2, width - 2 * kMargin, kHeadingHeight);
    if (content.hintWidth > 0) geometry.hint = QRect(kMargin, bottom, width - 2 * kMargin, kMenuLine);
    int height = bottom + below;
    if (content.hasEntry) {
        geometry.entry = QRect(kMargin + item + kMenuItemMargin, top - (kEntryHeight - kMenuLine) / 2,
                               kEntryWidth, kEntryHeight);
        height = std::max(height, geometry.entry.bottom() + 1 + kMargin);
    }
    geometry.level = QRect(onScreen({width, height}, beside), QSize(width, height));
    return geometry;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
