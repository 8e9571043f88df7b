#pragma once

#include <QPainter>
#include <optional>

#include "richtext/rtflayout.h"

namespace sarne {

/// The link phrases that stand out, by their index in the layout.
struct LinkHighlight {
    std::optional<int> hovered;
    std::optional<int> focused;
    bool strong = false;  ///< colours are darkened, for eyes that need more contrast to paper

    bool contains(int link) const { return link >= 0 && (hovered == link || focused == link); }
};

/// Paints the lines of \a layout that touch \a visible (both in the layout's twips). \a painter maps one unit
/// to one twip, its origin is the layout's; its font and pen change. Link phrases have dots
/// below them, the highlighted ones a line.
void paintLayout(QPainter& painter, const RtfLayout& layout, const QRect& visible,
                 const LinkHighlight& highlight = {});

/// Draws line number \a line of \a layout on \a surface, \a offset away from where it was laid out. The
/// surface's font and colour change, its current position stays. A line that does not exist draws nothing.
void drawLine(Surface& surface, const RtfLayout& layout, qsizetype line, QPoint offset = {},
              const StopFlag* stop = nullptr);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
