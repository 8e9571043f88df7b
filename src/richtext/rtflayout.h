#pragma once

#include <QRect>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "richtext/linkkey.h"
#include "richtext/rtfreader.h"
#include "richtext/textmetrics.h"

namespace sarne {

/// One word, or one whole link phrase, at its place. Lengths are twips.
struct WordBox {
    int x = 0;         ///< left edge
    int baseline = 0;  ///< from the top of the surface
    int top = 0;       ///< of the word's own font
    int width = 0;     ///< without the blanks behind the word
    int height = 0;    ///< of the word's own font
    QRgb color = 0;    ///< as the text says; a link phrase is drawn in its kind's colour instead
    int font = 0;      ///< index into RtfLayout::fonts()
    int link = -1;     ///< index into RtfLayout::links(); -1 for a plain word
    qsizetype textStart = 0;
    qsizetype textLength = 0;  ///< without the blanks behind the word
    int blanks = 0;            ///< how many blanks follow
};

/// One line of boxes. A line may be empty: a paragraph without words.
struct TextLine {
    qsizetype firstBox = 0;
    qsizetype boxCount = 0;
    int top = 0;
    int height = 0;
    int baseline = 0;
    bool startsParagraph = false;
    bool endsParagraph = false;
    /// The line is a paragraph of its own, all of it bold: it belongs to the text that follows.
    bool isHeading = false;

    int bottom() const { return top + height; }
};

/// One link phrase, in reading order. A phrase that runs over the end of a paragraph has a box in each.
struct LinkPhrase {
    LinkKey key;
    qsizetype firstBox = 0;
    qsizetype boxCount = 0;
};

/// Where a text is laid out: twips from the upper left corner of the surface.
struct LayoutArea {
    int left = 0;
    int right = 0;  ///< the right limit, which no line passes but by a word that is longer than a line
    int top = 0;
};

/// A text laid out: its words at their places. Owns everything it shows; it needs neither the text nor the
/// metrics any more. A picture box keeps one and paints the part that is seen.
class RtfLayout {
  public:
    RtfLayout() = default;

    /// Lays out \a text, an RTF document or plain text. Gives up early, with what there is, when \a stop gets
    /// set; \a lineDone is called after each line.
    static RtfLayout of(QStringView text, const LayoutArea& area, TextMetrics& metrics,
                        LinkMarkers markers = LinkMarkers::Honour, const StopFlag* stop = nullptr,
                        const std::function<void()>& lineDone = {});

    /// Lays out a text in which every character stands for itself, whatever it looks like. A word longer than
    /// any that people write is broken like a line.
    static RtfLayout ofPlain(QStringView text, const LayoutArea& area, TextMetrics& metrics,
                             const StopFlag* stop = nullptr, const std::function<void()>& lineDone = {});

    const std::vector<WordBox>& boxes() const { return boxes_; }
    const std::vector<TextLine>& lines() const { return lines_; }
    const std::vector<LinkPhrase>& links() const { return links_; }
    const std::vector<TextFont>& fonts() const { return fonts_; }

    /// The word in \a box, without the blanks behind it.
    QStringView text(const WordBox& box) const;
    /// The colour \a box is drawn in.
    QColor color(const WordBox& box) const;

    const LayoutArea& area() const { return area_; }
    /// The lower edge of the last line; the area's top where there is none.
    int bottom() const { return lines_.empty() ? area_.top : lines_.back().bottom(); }
    int height() const { return bottom() - area_.top; }

    /// The box's rectangle, which is also what a click on a link phrase must hit.
    static QRect rect(const WordBox& box) { return {box.x, box.top, box.width, box.height}; }
    /// The rectangles of one link phrase; empty when there is no such phrase.
    std::vector<QRect> linkRects(qsizetype link) const;
    /// The index of the link phrase at \a point.
    std::optional<int> linkAt(QPoint point) const;

    /// Indexes of the lines that show between \a top and \a bottom: the first, and the one behind the last.
    struct LineRange {
        qsizetype first = 0;
        qsizetype end = 0;
    };
    LineRange linesBetween(int top, int bottom) const;

  private:
    friend class RtfLayouter;

    LayoutArea area_;
    QString words_;
    std::vector<WordBox> boxes_;
    std::vector<TextLine> lines_;
    std::vector<LinkPhrase> links_;
    std::vector<TextFont> fonts_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
