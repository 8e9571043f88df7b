#include "print/paragraphsetter.h"

#include <algorithm>
#include <limits>

#include "richtext/wordwrap.h"

namespace sarne {
namespace {

constexpr int kBesideMark = 90;     // twips between a step's number and its text
constexpr int kTightenedParts = 4;  // a gap may lose a quarter
constexpr int kWidestGaps = 3;      // blanks that a gap may grow to
constexpr size_t kMostHeld = 256;   // words of a paragraph that are set together
constexpr QChar kHardBlank(0xa0);

/// How bad things are; a line whose gaps are twice as wide as they should be counts one.
constexpr double kALine = 1, kLooseLine = 10, kLoneWord = 16, kPartedTie = 1e6,
                 kOutOfQuestion = std::numeric_limits<double>::max();

/// What a line holds, word by word.
struct Fill {
    int used = 0;
    int gaps = 0;    // that can be made wider or narrower
    int blanks = 0;  // twips of these gaps

    void begin(const SetWord& word, int tab) {
        used = tab + word.width;
        pending_ = word.blanks;
    }
    /// Words before a tab keep their places, and so does a step's number.
    void add(const SetWord& word, bool behindMark) {
        used += pending_;
        blanks += pending_;
        ++gaps;
        if (behindMark || word.tab > used) gaps = blanks = 0;
        used = std::max(used, word.tab) + word.width;
        pending_ = word.blanks;
    }
    int tightest() const { return used - blanks / kTightenedParts; }
    double meanGap() const { return gaps > 0 ? std::max(1., double(blanks) / gaps) : 1; }

  private:
    int pending_ = 0;
};

}  // namespace

bool isTied(QStringView word) {
    if (word == u"-") return true;
    while (!word.isEmpty() && !word.front().isLetterOrNumber()) word = word.mid(1);
    return word.size() == 1 && QStringLiteral("ksvzouaiKSVZOUAI").contains(word.front());
}

qsizetype stepMark(QStringView word) {
    qsizetype end = 0;
    while (end < word.size() && end < 2 && word[end].isDigit()) ++end;
    if (end > 0 && end < word.size() && (word[end] == u'.' || word[end] == u')'))
        ++end;
    else
        end = !word.isEmpty() && QStringLiteral("–•").contains(word.front()) ? 1 : 0;
    return end == word.size() || (end > 0 && word[end] == kHardBlank) ? end : 0;
}

void ParagraphSetter::begin(const ParagraphStyle& style) {
    style_ = style;
    words_.clear();
    hang_ = style.indent;
    first_ = fresh_ = true;
    marked_ = false;
    starts_ = style.starts;
}

void ParagraphSetter::add(SetWord word) {
    if (first_ && style_.hanging && style_.justified) addMark(word);
    first_ = false;
    if (word.text.isEmpty()) return;
    if (word.width > style_.width - hang_)
        addInPieces(word);
    else
        words_.push_back(std::move(word));
    while (words_.size() >= kMostHeld) setLines(false);
}

/// Sets the mark that \a word begins with, and leaves in it what follows.
void ParagraphSetter::addMark(SetWord& word) {
    const qsizetype length = stepMark(word.text);
    if (length == 0) return;
    SetWord mark = word;
    mark.text = word.text.left(length);
    mark.width = metrics_.textWidth(mark.font, mark.text);
    const int usual = metrics_.textWidth(mark.font, u"0.");
    const int text = std::max(mark.width, usual) + kBesideMark;
    if (style_.width - style_.indent < 4 * text) return;
    // The first word of the step stands exactly above the lines that hang.
    mark.blanks = text - mark.width;
    hang_ = style_.indent + text;
    word.text = length < word.text.size() ? word.text.mid(length + 1) : QString();
    word.width = metrics_.textWidth(word.font, word.text);
    words_.push_back(std::move(mark));
    marked_ = true;
}

void ParagraphSetter::addInPieces(const SetWord& word) {
    QStringView rest = word.text;
    const auto measure = [&](QStringView text) { return metrics_.textWidth(word.font, text); };
    while (!rest.isEmpty()) {
        const qsizetype length =
            std::min(rest.size(), charactersFitting(rest, style_.width - hang_, measure));
        SetWord piece = word;
        piece.text = rest.left(length).toString();
        piece.width = measure(rest.left(length));
        rest = rest.mid(length);
        piece.blanks = rest.isEmpty() ? word.blanks : 0;
        words_.push_back(std::move(piece));
    }
}

void ParagraphSetter::end() {
    setLines(true);
}

/// How bad it is to make a line of \a count words up to \a end, which leave so much \a free.
template <typename LineFill>
double ParagraphSetter::badness(const LineFill& fill, size_t end, size_t count, int free) const {
    const bool last = end == words_.size();
    double bad = kALine;
    if (count == 1 && (last || !stretches())) bad += kLoneWord;
    if (!last && isTied(words_[end - 1].text)) bad += kPartedTie;
    if (last && free >= 0) return bad;
    if (!stretches()) {
        const double empty = double(free) / std::max(1, style_.width);
        return bad + empty * empty;
    }
    const double wider = double(free) / std::max(1, fill.gaps) / fill.meanGap();
    if (wider > kWidestGaps - 1) return bad + kLooseLine + std::min<double>(wider, kLooseLine);
    const double strain = wider < 0 ? wider * kTightenedParts : wider;
    return bad + strain * strain;
}

/// Behind which words the lines end, so that they are least bad together.
std::vector<size_t> ParagraphSetter::lineEnds() const {
    struct Best {
        double bad = kOutOfQuestion;
        size_t begin = 0;
    };
    std::vector<Best> best(words_.size() + 1);
    best[0].bad = 0;
    for (size_t begin = 0; begin < words_.size(); ++begin) {
        const int room = style_.width - indentOf(begin);
        Fill fill;
        fill.begin(words_[begin], beginsParagraph(begin) ? words_[begin].tab : 0);
        bool goesOn = true;
        for (size_t end = begin + 1; goesOn; ++end) {
            Fill more = fill;
            if (end < words_.size()) more.add(words_[end], isBehindMark(end));
            goesOn = end < words_.size() && (stretches() ? more.tightest() : more.used) <= room;
            const double bad = goesOn && 2 * fill.used < room
                                   ? kOutOfQuestion
                                   : best[begin].bad + badness(fill, end, end - begin, room - fill.used);
            if (bad < best[end].bad) best[end] = {bad, begin};
            fill = more;
        }
    }
    std::vector<size_t> ends;
    for (size_t end = words_.size(); end > 0; end = best[end].begin) ends.push_back(end);
    std::ranges::reverse(ends);
    return ends;
}

/// Sets the words into lines. While more words may come, the last two lines are kept back.
void ParagraphSetter::setLines(bool all) {
    std::vector<size_t> ends = lineEnds();
    if (!all) ends.resize(ends.size() > 3 ? ends.size() - 2 : 1);
    size_t begin = 0;
    for (const size_t end : ends) {
        put(begin, end, all && end == words_.size());
        begin = end;
    }
    words_.erase(words_.begin(), words_.begin() + static_cast<qsizetype>(begin));
    fresh_ = false;
}

/// Where the words of a line begin; \a free twips are shared out among its gaps.
std::vector<int> ParagraphSetter::places(size_t begin, size_t end) const {
    std::vector<int> places;
    int x = 0;
    for (size_t i = begin; i < end; ++i) {
        if (i > begin || beginsParagraph(i)) x = std::max(x, words_[i].tab);
        places.push_back(x);
        x += words_[i].width + words_[i].blanks;
    }
    return places;
}

/// Moves the words behind the last tab so that the line ends at the right edge, unless that would tear it
/// apart.
void ParagraphSetter::spread(size_t begin, size_t end, bool ends, std::vector<int>& places) const {
    const int free = style_.width - indentOf(begin) - places.back() - words_[end - 1].width;
    if (ends ? free >= 0 : !stretches()) return;
    Fill fill;
    fill.begin(words_[begin], 0);
    for (size_t i = begin + 1; i < end; ++i) fill.add(words_[i], isBehindMark(i));
    if (free > fill.gaps * (kWidestGaps - 1) * fill.meanGap()) return;
    const size_t first = end - begin - 1 - static_cast<size_t>(fill.gaps);
    for (int i = 1; i <= fill.gaps; ++i) places[first + static_cast<size_t>(i)] += free * i / fill.gaps;
}

void ParagraphSetter::put(size_t begin, size_t end, bool ends) {
    FlowLine flow;
    flow.kind = style_.kind;
    flow.startsParagraph = starts_;
    flow.endsParagraph = ends;
    int ascent = 0;
    for (size_t i = begin; i < end; ++i) {
        flow.height = std::max(flow.height, metrics_.textHeight(words_[i].font));
        ascent = std::max(ascent, metrics_.textAscent(words_[i].font));
    }
    std::vector<int> at = places(begin, end);
    spread(begin, end, ends, at);
    const int left = style_.left + indentOf(begin);
    for (size_t i = begin; i < end; ++i) {
        SetWord& word = words_[i];
        flow.texts.push_back(
            {left + at[i - begin], ascent, word.width, std::move(word.text), word.font, word.color});
    }
    starts_ = false;
    emit_(std::move(flow));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
