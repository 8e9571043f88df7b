#include "richtext/linebuilder.h"

#include <algorithm>

namespace sarne {
namespace {

/// Bounds that keep every sum of lengths within an int, whatever a text asks for.
constexpr int kWidest = 1 << 28;
constexpr int kLowest = 1 << 30;
constexpr size_t kMostTabStops = 64;

}  // namespace

const LineBuilder::FontExtent& LineBuilder::extent(int font) {
    if (static_cast<size_t>(font) >= extents_.size()) extents_.resize(font + 1);
    FontExtent& extent = extents_[font];
    if (extent.height >= 0) return extent;
    const TextFont& textFont = out_.fonts[font];
    extent.height = qBound(1, metrics_.textHeight(textFont), kWidest);
    extent.ascent = qBound(0, metrics_.textAscent(textFont), extent.height);
    extent.blank = qBound(0, metrics_.textWidth(textFont, u" "), kWidest);
    return extent;
}

int LineBuilder::wordWidth(const WordBox& word) {
    const QStringView words(out_.words);
    const int width = widths_.width(words, word.textStart, word.textLength, word.font, [&] {
        return metrics_.textWidth(out_.fonts[word.font], words.mid(word.textStart, word.textLength));
    });
    return qBound(0, width, kWidest);
}

void LineBuilder::addWord(WordBox word) {
    lastFont_ = word.font;
    const qint64 blanks = qMin<qint64>(qint64(word.blanks) * extent(word.font).blank, kWidest);
    if (word.textLength > 0) {
        word.width = wordWidth(word);
        makeRoomFor(word.width + blanks, word.font);
        word.x = static_cast<int>(area_.left + advance_);
        out_.boxes.push_back(word);
    }
    advance_ = qMin<qint64>(advance_ + word.width + blanks, kWidest);
}

/// A word that does not fit goes to the next line; one that fits nowhere begins its line and overhangs.
void LineBuilder::makeRoomFor(qint64 width, int font) {
    if (advance_ + width <= limit()) return;
    if (lineBoxes() > 0 || tabbed_) endLine(LineEnd::Wrap, font);
    advance_ = 0;
}

void LineBuilder::addTabStop(int twips) {
    if (twips <= 0 || tabStops_.size() >= kMostTabStops) return;
    tabStops_.insert(std::lower_bound(tabStops_.begin(), tabStops_.end(), twips), twips);
}

qint64 LineBuilder::nextTabStop() const {
    const auto own = std::upper_bound(tabStops_.begin(), tabStops_.end(), advance_);
    if (own != tabStops_.end()) return *own;
    return (advance_ / defaultTabWidth_ + 1) * defaultTabWidth_;
}

void LineBuilder::tab() {
    const qint64 stop = nextTabStop();
    if (stop > limit()) return endLine(LineEnd::Tab, lastFont_);
    advance_ = stop;
    columnFirst_ = static_cast<qsizetype>(out_.boxes.size());
    tabbed_ = true;
}

void LineBuilder::endParagraph(int font) {
    endLine(LineEnd::Paragraph, font);
}

void LineBuilder::finish() {
    if (lineBoxes() > 0) endLine(LineEnd::Paragraph, lastFont_);
}

void LineBuilder::endLine(LineEnd end, int emptyFont) {
    if (end == LineEnd::Wrap) justify();
    TextLine line;
    line.firstBox = lineFirst_;
    line.boxCount = lineBoxes();
    line.top = top_;
    line.startsParagraph = startsParagraph_;
    line.endsParagraph = end == LineEnd::Paragraph;
    setLineHeight(line, emptyFont);
    placeBoxes(line);
    markHeading(line);
    out_.lines.push_back(line);

    top_ = qMin(kLowest, line.bottom());
    lineFirst_ = columnFirst_ = static_cast<qsizetype>(out_.boxes.size());
    advance_ = 0;
    tabbed_ = false;
    startsParagraph_ = end == LineEnd::Paragraph;
    if (lineDone_) lineDone_();
}

/// The highest font of the line decides; all words stand on one baseline.
void LineBuilder::setLineHeight(TextLine& line, int emptyFont) {
    int ascent = 0;
    for (qsizetype i = 0; i < line.boxCount; ++i) {
        WordBox& box = out_.boxes[line.firstBox + i];
        const FontExtent& font = extent(box.font);
        box.height = font.height;
        box.top = font.ascent;  // until the baseline is known
        line.height = qMax(line.height, font.height);
        ascent = qMax(ascent, font.ascent);
    }
    if (line.boxCount == 0) {
        line.height = extent(emptyFont).height;
        ascent = extent(emptyFont).ascent;
    }
    line.baseline = line.top + ascent;
}

void LineBuilder::placeBoxes(TextLine& line) {
    for (qsizetype i = 0; i < line.boxCount; ++i) {
        WordBox& box = out_.boxes[line.firstBox + i];
        box.baseline = line.baseline;
        box.top = line.baseline - box.top;
    }
}

/// Spreads what is free over the gaps between the words, so that the last one ends at the right limit. Words
/// before a tab keep their places; a word that stands alone is left alone.
void LineBuilder::justify() {
    const qint64 gaps = static_cast<qint64>(out_.boxes.size()) - columnFirst_ - 1;
    if (gaps < 1) return;
    const WordBox& last = out_.boxes.back();
    const qint64 free = qint64(area_.right) - last.x - last.width;
    if (free <= 0) return;
    for (qint64 i = 1; i <= gaps; ++i) out_.boxes[columnFirst_ + i].x += static_cast<int>(free * i / gaps);
}

void LineBuilder::markHeading(TextLine& line) const {
    if (!line.startsParagraph || !line.endsParagraph || line.boxCount == 0) return;
    const auto first = out_.boxes.begin() + line.firstBox;
    line.isHeading = std::all_of(first, first + line.boxCount,
                                 [this](const WordBox& box) { return out_.fonts[box.font].bold; });
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
