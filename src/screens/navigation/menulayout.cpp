#include "screens/navigation/menulayout.h"

#include <algorithm>

namespace sarne {
namespace {

constexpr QRect kScreen(0, 0, 12000, 9000);
constexpr int kMargin = 150;
constexpr int kColumnGap = 120;
constexpr int kItemMargin = 90;
constexpr int kHeadingHeight = 435;
constexpr int kEntryWidth = 2700, kEntryHeight = 420;
constexpr int kMaxHeight = 8700;

int linesThatFit(int used) {
    return (kMaxHeight - used - kMargin) / kMenuLine;
}

QPoint onScreen(QSize level, const QRect& beside) {
    int left = beside.right() + 1;
    if (left + level.width() > kScreen.width()) left = beside.left() - level.width();
    if (left < 0) left = std::max(0, kScreen.width() - level.width());
    return {left, std::clamp(beside.top(), 0, std::max(0, kScreen.height() - level.height()))};
}

}  // namespace

MenuGeometry layOutMenu(const MenuContent& content, const QRect& beside) {
    MenuGeometry geometry;
    int top = kMargin;
    if (content.headingWidth > 0) top += kHeadingHeight;
    const int count = int(content.itemWidths.size());
    const int rows = std::clamp(count, 1, linesThatFit(top));
    const int columns = std::max(1, (count + rows - 1) / rows);
    // Full columns to the left and a short one to the right are harder to read than equal ones.
    const int perColumn = std::max(1, (count + columns - 1) / columns);

    int itemWidth = 900;
    for (const int width : content.itemWidths) itemWidth = std::max(itemWidth, width + 2 * kItemMargin);
    const int mostWide = (kScreen.width() - 2 * kMargin - (columns - 1) * kColumnGap) / columns;
    itemWidth = std::min(itemWidth, mostWide);
    for (int i = 0; i < count; ++i)
        geometry.items.emplace_back(kMargin + i / perColumn * (itemWidth + kColumnGap),
                                    top + i % perColumn * kMenuLine, itemWidth, kMenuLine);

    int width = 2 * kMargin + columns * itemWidth + (columns - 1) * kColumnGap;
    int height = top + perColumn * kMenuLine + kMargin;
    if (content.hasEntry) {
        geometry.entry = QRect(kMargin + itemWidth + kItemMargin, top - (kEntryHeight - kMenuLine) / 2,
                               kEntryWidth, kEntryHeight);
        width += kItemMargin + kEntryWidth;
        height = std::max(height, geometry.entry.bottom() + 1 + kMargin);
    }
    width = std::min(std::max(width, content.headingWidth + 2 * (kMargin + kItemMargin)), kScreen.width());
    if (content.headingWidth > 0)
        geometry.heading = QRect(kMargin, kMargin / 2, width - 2 * kMargin, kHeadingHeight);
    geometry.level = QRect(onScreen({width, height}, beside), QSize(width, height));
    return geometry;
}

}  // namespace sarne
