#pragma once

#include <QString>

#include "richtext/rtflayout.h"

namespace sarne::test {

/// Metrics that need no fonts and make sums easy: every character of a font of n points is 10 n twips wide
/// (bold: 11 n), the line 25 n high with its baseline 20 n below the top. Counts what it is asked.
class FixedMetrics final : public TextMetrics {
  public:
    static int widthOf(const TextFont& font, qsizetype characters) {
        return static_cast<int>(font.size * (font.bold ? 11 : 10) * static_cast<double>(characters));
    }

    int textWidth(const TextFont& font, QStringView text) override {
        ++measured;
        return widthOf(font, text.size());
    }
    int textHeight(const TextFont& font) override { return static_cast<int>(font.size * 25); }
    int textAscent(const TextFont& font) override { return static_cast<int>(font.size * 20); }

    int measured = 0;
};

/// The font as dumps write it: "Arial 14 bi".
QString dumped(const TextFont& font);
/// Lines and boxes, one to a row, for a person to review.
QString dumped(const RtfLayout& layout);
/// The words of the layout with a blank between them, a "|" between lines.
QString wordsOf(const RtfLayout& layout);

/// What must hold of any layout, whatever the text: every box is in one line, lines follow each other
/// downwards, boxes stand from left to right and within the right limit unless alone, links point at their
/// boxes. Empty when all is well.
QString faultOf(const RtfLayout& layout);
/// The characters of \a text that should stand in \a layout and do not, blanks aside. Empty when all are
/// there.
QString lossOf(QStringView text, const RtfLayout& layout, LinkMarkers markers);

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
