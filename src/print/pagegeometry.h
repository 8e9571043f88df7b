#pragma once

#include "platform/printer.h"

namespace sarne {

/// Where things lie on a page, in twips of the printer's scale: a column of four fifths of the page's width,
/// in the middle; on a card, which has no room to give away, all of it.
struct PageGeometry {
    int left = 0;    ///< of the printer's scale
    int top = 0;     ///< of the printer's scale
    int bottom = 0;  ///< nothing lies below it
    int textWidth = 0;
    int leftMargin = 0;
    int lineWidth = 0;

    int rightMargin() const { return leftMargin + lineWidth; }

    static PageGeometry of(const PageScale& scale) {
        PageGeometry page;
        page.left = scale.left;
        page.top = scale.top;
        page.bottom = scale.top + scale.height;
        page.textWidth = scale.card ? scale.width : scale.width * 4 / 5;
        page.leftMargin = scale.left + (scale.width - page.textWidth) / 2;
        page.lineWidth = scale.width - 2 * page.leftMargin;
        return page;
    }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
