#include "screens/navigation/menulayout.h"

#include <algorithm>
#include <cmath>

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

int scaled(const MenuContent& content, int twips) {
    return static_cast<int>(twips * content.scale);
}

int lineHeight(const MenuContent& content) {
    return scaled(content, kMenuLine);
}

/// What a level needs across beside its items.
int roomBeside(const MenuContent& content, int columns) {
    return 2 * kMargin + (columns - 1) * kColumnGap +
           (content.hasEntry ? kMenuItemMargin + scaled(content, kEntryWidth) : 0);
}

int levelWidth(const MenuContent& content, int columns) {
    int item = kLeastItem;
    for (const int width : content.itemWidths) item = std::max(item, width + 2 * kMenuItemMargin);
    const int words = std::max(content.headingWidth, content.hintWidth);
    const int width = std::max(columns * item + roomBeside(content, columns),
                               words > 0 ? words + 2 * (kMargin + kMenuItemMargin) : 0);
    return width;
}

/// The same content in texts a little smaller, but not smaller than designed.
MenuContent smaller(MenuContent content) {
    constexpr double kStep = .05;
    const double scale = std::max(1., content.scale - kStep), shrink = scale / content.scale;
    content.scale = scale;
    for (int& width : content.itemWidths) width = static_cast<int>(std::ceil(width * shrink));
    for (int* width : {&content.headingWidth, &content.hintWidth})
        *width = static_cast<int>(std::ceil(*width * shrink));
    return content;
}

std::vector<QRect> itemPlaces(int items, const Columns& columns, int top, QSize item) {
    std::vector<QRect> places;
    places.reserve(static_cast<size_t>(items));
    for (int i = 0; i < items; ++i)
        places.emplace_back(QPoint(kMargin + i / columns.rows * (item.width() + kColumnGap),
                                   top + i % columns.rows * item.height()),
                            item);
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
    const int line = lineHeight(content), heading = scaled(content, kHeadingHeight);
    const int top = kMargin + (content.headingWidth > 0 ? heading : 0);
    const int below = kMargin + (content.hintWidth > 0 ? line : 0);
    const int count = int(content.itemWidths.size());
    const Columns columns = columnsFor(count, (maxHeight - top - below) / line);
    const int natural = levelWidth(content, columns.count), width = std::min(natural, kScreen.width());
    if (natural > width && content.scale > 1) return layOutMenu(smaller(content), beside, maxHeight);
    const int item = (width - roomBeside(content, columns.count)) / columns.count;
    const int bottom = top + columns.rows * line;

    MenuGeometry geometry;
    geometry.items = itemPlaces(count, columns, top, {item, line});
    if (content.headingWidth > 0)
        geometry.heading = QRect(kMargin, kMargin / 2, width - 2 * kMargin, heading);
    if (content.hintWidth > 0) geometry.hint = QRect(kMargin, bottom, width - 2 * kMargin, line);
    int height = bottom + below;
    if (content.hasEntry) {
        const QSize entry(scaled(content, kEntryWidth), scaled(content, kEntryHeight));
        geometry.entry =
            QRect(QPoint(kMargin + item + kMenuItemMargin, top - (entry.height() - line) / 2), entry);
        height = std::max(height, geometry.entry.bottom() + 1 + kMargin);
    }
    geometry.level = QRect(onScreen({width, height}, beside), QSize(width, height));
    return geometry;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
