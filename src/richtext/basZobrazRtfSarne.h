#pragma once

#include "richtext/rtflayout.h"

namespace sarne {

/// Draws the cookbook's rich texts on surfaces. Keeps the words of the last text with their link keys for the
/// caller, and nothing of the surface.
class basZobrazRtfSarne {
  public:
    /// The distance between the right limit of the lines and the surface's right edge, in twips.
    static constexpr int kRightMargin = 105;

    /// Draws \a text, or has \a surface keep it, from the surface's current position on, wrapped before its
    /// right edge, and leaves X where it was and Y below the last line. A text of blanks draws nothing.
    void ZobrazRtf(Surface& surface, const QString& text);

    /// The same for a text in which every character stands for itself.
    void drawPlainText(Surface& surface, const QString& text);

    /// Abandons the rendering that is going on; the next one starts afresh.
    void stop() { stop_ = true; }

    /// The last text as it was laid out: its boxes with their link keys.
    const RtfLayout& layout() const { return layout_; }

  private:
    template <typename LayOut>
    void draw(Surface& surface, const QString& text, LayOut layOut);
    void drawWords(Surface& surface) const;

    RtfLayout layout_;
    StopFlag stop_ = false;
};

/// Draws \a text as basZobrazRtfSarne does, for callers that need no link keys.
void ZobrazRtf(Surface& surface, const QString& text);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
