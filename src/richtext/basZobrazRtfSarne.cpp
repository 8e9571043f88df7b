#include "richtext/basZobrazRtfSarne.h"

#include "richtext/rtfpainter.h"

namespace sarne {

LayoutArea layoutArea(const Surface& surface) {
    return {surface.currentX(), surface.scaleWidth() - basZobrazRtfSarne::kRightMargin, surface.currentY()};
}

void basZobrazRtfSarne::ZobrazRtf(Surface& surface, const QString& text) {
    stop_ = false;
    layout_ = {};
    if (QStringView(text).trimmed().isEmpty()) return;
    const LayoutArea area = layoutArea(surface);
    SurfaceTextMetrics metrics(surface);
    layout_ = RtfLayout::of(text, area, metrics, LinkMarkers::Honour, &stop_);
    const auto lines = static_cast<qsizetype>(layout_.lines().size());
    for (qsizetype line = 0; line < lines && !stop_; ++line) drawLine(surface, layout_, line, {}, &stop_);
    surface.setCurrentX(area.left);
    surface.setCurrentY(layout_.bottom());
}

void ZobrazRtf(Surface& surface, const QString& text) {
    basZobrazRtfSarne().ZobrazRtf(surface, text);
}

}  // namespace sarne
