#include "richtext/basZobrazRtfSarne.h"

#include "richtext/rtfpainter.h"

namespace sarne {
namespace {

/// Where a text goes: from the surface's current position to before its right edge.
LayoutArea layoutArea(const Surface& surface) {
    return {surface.currentX(), surface.scaleWidth() - basZobrazRtfSarne::kRightMargin, surface.currentY()};
}

}  // namespace

template <typename LayOut>
void basZobrazRtfSarne::draw(Surface& surface, const QString& text, LayOut layOut) {
    stop_ = false;
    layout_ = {};
    if (QStringView(text).trimmed().isEmpty()) return;
    const LayoutArea area = layoutArea(surface);
    SurfaceTextMetrics measuring(surface);
    TextMetrics* own = surface.textMetrics();
    layout_ = layOut(area, own ? *own : measuring);
    if (!surface.keepRichText(layout_)) drawWords(surface);
    surface.setCurrentX(area.left);
    surface.setCurrentY(layout_.bottom());
}

void basZobrazRtfSarne::ZobrazRtf(Surface& surface, const QString& text) {
    draw(surface, text, [&](const LayoutArea& area, TextMetrics& metrics) {
        return RtfLayout::of(text, area, metrics, LinkMarkers::Honour, &stop_);
    });
}

void basZobrazRtfSarne::drawPlainText(Surface& surface, const QString& text) {
    draw(surface, text, [&](const LayoutArea& area, TextMetrics& metrics) {
        return RtfLayout::ofPlain(text, area, metrics, &stop_);
    });
}

void basZobrazRtfSarne::drawWords(Surface& surface) const {
    const auto lines = static_cast<qsizetype>(layout_.lines().size());
    for (qsizetype line = 0; line < lines && !stop_; ++line) drawLine(surface, layout_, line, {}, &stop_);
}

void ZobrazRtf(Surface& surface, const QString& text) {
    basZobrazRtfSarne().ZobrazRtf(surface, text);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
