#include "forms/readabletext.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <cstdlib>

namespace sarne {

void ReadableText::addLine(const QString& words, const QRect& place, bool isHeading) {
    const bool goesOn = !lines_.empty() && !place.isEmpty() && lines_.back().place.bottom() == place.bottom();
    if (goesOn) {
        Line& line = lines_.back();
        text_ += u' ' + words;
        line.length += words.size() + 1;
        line.place |= place;
        return;
    }
    if (!lines_.empty()) text_ += u'\n';
    lines_.push_back({text_.size(), words.size(), place, isHeading});
    text_ += words;
}

std::optional<int> ReadableText::lineAt(qsizetype offset) const {
    const auto after = std::ranges::upper_bound(lines_, std::max<qsizetype>(offset, 0), {}, &Line::start);
    if (after == lines_.begin()) return {};
    return static_cast<int>(after - lines_.begin()) - 1;
}

QRect ReadableText::placeOf(qsizetype offset) const {
    const auto at = lineAt(offset);
    if (!at) return {};
    const Line& line = lines_[size_t(*at)];
    const auto count = static_cast<int>(std::max<qsizetype>(line.length, 1));
    const int index = std::min(static_cast<int>(offset - line.start), count - 1);
    const int left = line.place.left() + line.place.width() * index / count;
    return {left, line.place.top(), std::max(1, line.place.width() / count), line.place.height()};
}

qsizetype ReadableText::offsetAt(QPoint point) const {
    if (lines_.empty()) return -1;
    const auto distance = [&](const Line& line) { return std::abs(line.place.center().y() - point.y()); };
    const Line& line = *std::ranges::min_element(lines_, {}, distance);
    const double share = double(point.x() - line.place.left()) / std::max(1, line.place.width());
    return line.start + std::clamp(static_cast<qsizetype>(share * double(line.length)), qsizetype(0),
                                   std::max<qsizetype>(line.length - 1, 0));
}

qsizetype ReadableText::moved(qsizetype offset, Step step, int direction) const {
    if (step == Step::Line) {
        const int line = lineAt(offset).value_or(0) + direction;
        if (line < 0 || line >= static_cast<int>(lines_.size())) return offset;
        return lines_[size_t(line)].start;
    }
    QTextBoundaryFinder finder(step == Step::Word ? QTextBoundaryFinder::Word : QTextBoundaryFinder::Grapheme,
                               text_);
    finder.setPosition(offset);
    qsizetype to = direction > 0 ? finder.toNextBoundary() : finder.toPreviousBoundary();
    if (step == Step::Word) {
        // Words begin where a letter or digit does; what parts them is passed over.
        while (to >= 0 && to < text_.size() && !text_[to].isLetterOrNumber())
            to = direction > 0 ? finder.toNextBoundary() : finder.toPreviousBoundary();
    }
    return to < 0 ? offset : std::min(to, text_.size());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
