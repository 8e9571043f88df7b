#include "richtext/rtflayout.h"

#include <algorithm>

namespace sarne {

QStringView RtfLayout::text(const WordBox& box) const {
    return QStringView(words_).mid(box.textStart, box.textLength);
}

QColor RtfLayout::color(const WordBox& box) const {
    return box.link < 0 ? QColor(box.color) : linkColor(links_[box.link].key.kind);
}

std::vector<QRect> RtfLayout::linkRects(qsizetype link) const {
    std::vector<QRect> rects;
    if (link < 0 || link >= static_cast<qsizetype>(links_.size())) return rects;
    const LinkPhrase& phrase = links_[link];
    for (qsizetype i = 0; i < phrase.boxCount; ++i) rects.push_back(rect(boxes_[phrase.firstBox + i]));
    return rects;
}

std::optional<int> RtfLayout::linkAt(QPoint point) const {
    const LineRange range = linesBetween(point.y(), point.y() + 1);
    for (qsizetype line = range.first; line < range.end; ++line) {
        const auto first = boxes_.begin() + lines_[line].firstBox;
        const auto hit = std::find_if(first, first + lines_[line].boxCount, [point](const WordBox& box) {
            return box.link >= 0 && rect(box).contains(point);
        });
        if (hit != first + lines_[line].boxCount) return hit->link;
    }
    return std::nullopt;
}

RtfLayout::LineRange RtfLayout::linesBetween(int top, int bottom) const {
    const auto first = std::partition_point(lines_.begin(), lines_.end(),
                                            [top](const TextLine& line) { return line.bottom() <= top; });
    const auto end = std::partition_point(first, lines_.end(),
                                          [bottom](const TextLine& line) { return line.top < bottom; });
    return {first - lines_.begin(), end - lines_.begin()};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
