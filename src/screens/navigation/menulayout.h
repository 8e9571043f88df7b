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
    QRect hint;     ///< the line that helps on; empty when there is none
    std::vector<QRect> items;
};

/// What a level has to hold.
struct MenuContent {
    std::vector<int> itemWidths;  ///< the items' texts with what is drawn beside them, twips
    int headingWidth = 0;         ///< 0: no heading
    int hintWidth = 0;            ///< 0: no hint
    bool hasEntry = false;        ///< a text entry beside the first item
    double scale = 1;             ///< of the texts: lines are that much higher
};

/// How high one item's line is, and the empty room at both ends of its text.
inline constexpr int kMenuLine = 315;
inline constexpr int kMenuItemMargin = 90;
/// How high a level may be where nothing else has to stay in sight.
inline constexpr int kMenuHeight = 8700;

/// Lays a level out in as many columns as \a maxHeight needs, and places it on the screen: to the right of \a
/// beside, its top at \a beside's, or to the left of it where the right has no room; always whole on the
/// screen. The columns fill the level, however wide its heading makes it. Enlarged texts that the screen has
/// no room for are laid out as large as it has.
MenuGeometry layOutMenu(const MenuContent& content, const QRect& beside, int maxHeight = kMenuHeight);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
