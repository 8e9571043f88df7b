#pragma once

#include <functional>
#include <vector>

#include "print/printedpage.h"
#include "richtext/textmetrics.h"

namespace sarne {

/// A word of a paragraph that is to be set, in twips.
struct SetWord {
    QString text;
    TextFont font;
    QRgb color = 0xff000000;
    int width = 0;
    int blanks = 0;  ///< twips of the blanks behind it
    int tab = 0;     ///< where it begins at the earliest, from the paragraph's left edge
};

/// How a paragraph is set.
struct ParagraphStyle {
    FlowLine::Kind kind = FlowLine::Kind::Text;
    int left = 0;
    int width = 0;
    bool justified = true;
    bool ragged = false;  ///< the lines are filled like justified ones, but their gaps stay as they are
    int indent = 0;       ///< of all lines
    bool starts = true;   ///< false: it goes on with the paragraph before it
    bool hanging = true;  ///< lines below a number or a dash begin where its text begins
};

/// Whether a line may not end with \a word: a preposition or conjunction of one letter goes with what
/// follows.
bool isTied(QStringView word);
/// How many characters of \a word are the number or the dash that a step begins with ("12.", "–"); 0 where it
/// begins otherwise. A blank that does not break may follow within the word.
qsizetype stepMark(QStringView word);

/// Sets one paragraph after the other into lines: one-letter words stay with the next word, the lines of a
/// numbered step hang below its text, and a word is not left alone on the last line where its neighbours can
/// make room or give it company. Lines go out one behind, so that the last but one may still change. A word
/// that is longer than a line is broken.
class ParagraphSetter {
  public:
    using Emit = std::function<void(FlowLine)>;

    /// The metrics must outlive it.
    ParagraphSetter(TextMetrics& metrics, Emit emit) : metrics_(metrics), emit_(std::move(emit)) {}

    void begin(const ParagraphStyle& style);
    void add(SetWord word);
    void end();

  private:
    struct Line {
        std::vector<SetWord> words;
        int indent = 0;
    };

    int room(const Line& line) const { return style_.width - line.indent; }
    static int used(const Line& line);
    static int tightest(const Line& line);
    void addMark(SetWord& word);
    void place(SetWord word);
    void placeInPieces(const SetWord& word);
    void wrap();
    void mendLonelyWord();
    void release(bool ends);
    void put(const Line& line, bool justify, bool ends);
    void spread(const Line& line, std::vector<int>& places) const;

    TextMetrics& metrics_;
    Emit emit_;
    ParagraphStyle style_;
    Line line_, held_;
    int hang_ = 0;
    bool first_ = true;     // the next word is the paragraph's first
    bool starts_ = true;    // the next line is the paragraph's first
    bool holding_ = false;  // held_ is complete and waits
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
