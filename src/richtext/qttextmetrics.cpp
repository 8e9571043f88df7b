#include "richtext/qttextmetrics.h"

namespace sarne {

const FontFace& QtTextMetrics::face(const TextFont& font) {
    if (lastFace_ && font == lastFont_) return *lastFace_;
    constexpr qsizetype kMostFaces = 256;  // texts use a handful; a broken one shall not fill the memory
    if (faces_.size() >= kMostFaces) faces_.clear();
    std::shared_ptr<FontFace>& face = faces_[font];
    if (!face) face = std::make_shared<FontFace>(font);
    lastFont_ = font;
    lastFace_ = face.get();
    return *lastFace_;
}

int QtTextMetrics::textWidth(const TextFont& font, QStringView text) {
    return qRound(face(font).width(text));
}

int QtTextMetrics::textHeight(const TextFont& font) {
    return qRound(face(font).height());
}

int QtTextMetrics::textAscent(const TextFont& font) {
    return qRound(face(font).ascent());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
