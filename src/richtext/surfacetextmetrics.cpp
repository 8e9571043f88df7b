#include "richtext/textmetrics.h"

namespace sarne {

void SurfaceTextMetrics::select(const TextFont& font) {
    if (!(surface_.font() == font)) surface_.setFont(font);
}

int SurfaceTextMetrics::textWidth(const TextFont& font, QStringView text) {
    select(font);
    return surface_.textWidth(text.toString());
}

int SurfaceTextMetrics::textHeight(const TextFont& font) {
    select(font);
    return surface_.textHeight(QStringLiteral("T"));
}

int SurfaceTextMetrics::textAscent(const TextFont& font) {
    select(font);
    return surface_.textAscent();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
