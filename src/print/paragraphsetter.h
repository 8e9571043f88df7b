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
/// numbered step hang below its text, and the breaks are chosen for the whole paragraph, so that gaps are as
/// even as they can be and no word is left alone on the last line where the others can make room or give it
/// company. A line that could be filled only with holes stays short. A word that is longer than a line is
/// broken. A very long paragraph is set piece by piece.
class ParagraphSetter {
  public:
    using Emit = std::function<void(FlowLine)>;

    /// The metrics must outlive it.
    ParagraphSetter(TextMetrics& metrics, Emit emit) : metrics_(metrics), emit_(std::move(emit)) {}

    void begin(const ParagraphStyle& style);
    void add(SetWord word);
    void end();

  private:
    bool stretches() const { return style_.justified && !style_.ragged; }
    bool beginsParagraph(size_t word) const { return fresh_ && word == 0; }
    bool isBehindMark(size_t word) const { return fresh_ && marked_ && word == 1; }
    int indentOf(size_t firstWord) const { return beginsParagraph(firstWord) ? style_.indent : hang_; }
    void addMark(SetWord& word);
    void addInPieces(const SetWord& word);
    template <typename LineFill>
    double badness(const LineFill& fill, size_t end, size_t count, int free) const;
    std::vector<size_t> lineEnds() const;
    void setLines(bool all);
    std::vector<int> places(size_t begin, size_t end) const;
    void spread(size_t begin, size_t end, bool ends, std::vector<int>& places) const;
    void put(size_t begin, size_t end, bool ends);

    TextMetrics& metrics_;
    Emit emit_;
    ParagraphStyle style_;
    std::vector<SetWord> words_;  // that are not yet set
    int hang_ = 0;
    bool first_ = true;    // the next word is the paragraph's first
    bool fresh_ = true;    // the first of the words is the paragraph's first
    bool marked_ = false;  // it is a step's number
    bool starts_ = true;   // the next line is the paragraph's first
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
