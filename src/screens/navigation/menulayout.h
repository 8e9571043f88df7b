#pragma once

#include <QRect>
#include <QString>
#include <vector>

namespace sarne {

/// Where a menu level and what is in it lie, in twips: the level on the screen, the rest within the level.
struct MenuGeometry {
    QRect level;
    QRect heading;  ///< empty when there is none
    QRect entry;    ///< the text entry; empty when there is none
    std::vector<QRect> items;
};

/// What a level has to hold.
struct MenuContent {
    std::vector<int> itemWidths;  ///< the items' texts, twips
    int headingWidth = 0;         ///< 0: no heading
    bool hasEntry = false;        ///< a text entry beside the first item
};

/// How high one item's line is.
inline constexpr int kMenuLine = 315;

/// Lays a level out in as many columns as its height needs, and places it on the screen: to the right of \a
/// beside, its top at \a beside's, or to the left of it where the right has no room; always whole on the
/// screen.
MenuGeometry layOutMenu(const MenuContent& content, const QRect& beside);

}  // namespace sarne
