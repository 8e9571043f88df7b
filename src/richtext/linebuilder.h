#pragma once

#include <functional>
#include <vector>

#include "richtext/rtflayout.h"
#include "richtext/wordwidths.h"

namespace sarne {

/// Puts words one after the other into the lines of a layout: wraps at the right limit, justifies the lines
/// that a wrap ended, honours tab stops. Works on the parts of a layout that it is given; they must outlive
/// it.
class LineBuilder {
  public:
    struct Output {
        const QString& words;
        const std::vector<TextFont>& fonts;
        std::vector<WordBox>& boxes;
        std::vector<TextLine>& lines;
    };

    /// \a lineDone, where there is one, is called after each line.
    LineBuilder(const Output& output, const LayoutArea& area, TextMetrics& metrics,
                const std::function<void()>& lineDone)
        : out_(output), area_(area), metrics_(metrics), lineDone_(lineDone), top_(area.top) {}

    /// Places \a word, of which everything but the place and size is set. A word of blanks makes room and no
    /// box.
    void addWord(WordBox word);
    void tab();
    /// Ends the line and the paragraph. An empty line is as high as font number \a font.
    void endParagraph(int font);
    /// Ends the text: a line that was begun is complete.
    void finish();

    void addTabStop(int twips);
    void clearTabStops() { tabStops_.clear(); }
    void setDefaultTabWidth(int twips) { defaultTabWidth_ = qMax(1, twips); }

  private:
    enum class LineEnd { Wrap, Tab, Paragraph };
    struct FontExtent {
        int height = -1;
        int ascent = 0;
        int blank = 0;
    };

    qsizetype lineBoxes() const { return static_cast<qsizetype>(out_.boxes.size()) - lineFirst_; }
    int limit() const { return area_.right - area_.left; }
    const FontExtent& extent(int font);
    int wordWidth(const WordBox& word);
    void makeRoomFor(qint64 width, int font);
    qint64 nextTabStop() const;
    void endLine(LineEnd end, int emptyFont);
    void setLineHeight(TextLine& line, int emptyFont);
    void placeBoxes(TextLine& line);
    void justify();
    void markHeading(TextLine& line) const;

    Output out_;
    LayoutArea area_;
    TextMetrics& metrics_;
    const std::function<void()>& lineDone_;
    WordWidths widths_;
    std::vector<FontExtent> extents_;
    std::vector<int> tabStops_;  // ascending
    int defaultTabWidth_ = 100;

    int top_;
    qsizetype lineFirst_ = 0;    // the line's first box
    qsizetype columnFirst_ = 0;  // the first box behind the line's last tab
    qint64 advance_ = 0;         // from the line's left edge to where the next word goes
    int lastFont_ = 0;
    bool tabbed_ = false;
    bool startsParagraph_ = true;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
