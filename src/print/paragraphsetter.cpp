#include "print/paragraphsetter.h"

#include <algorithm>

#include "richtext/wordwrap.h"

namespace sarne {
namespace {

constexpr int kBesideMark = 90;     // twips between a step's number and its text
constexpr int kTightenedParts = 4;  // a gap may lose a quarter
constexpr int kWidestGaps = 3;      // blanks that a gap may grow to, to give a lonely word company
constexpr QChar kHardBlank(0xa0);

std::vector<int> naturalPlaces(const std::vector<SetWord>& words) {
    std::vector<int> places;
    int x = 0;
    for (const SetWord& word : words) {
        x = std::max(x, word.tab);
        places.push_back(x);
        x += word.width + word.blanks;
    }
    return places;
}

size_t firstBehindTab(const std::vector<SetWord>& words) {
    size_t first = 0;
    for (size_t i = 0; i < words.size(); ++i) {
        if (words[i].tab > 0) first = i;
    }
    return first;
}

/// Takes the words that go together from the end of \a words, as long as others are left.
std::vector<SetWord> takeLast(std::vector<SetWord>& words, bool aWord) {
    std::vector<SetWord> taken;
    while (words.size() > 1 && (aWord || isTied(words.back().text))) {
        taken.insert(taken.begin(), std::move(words.back()));
        words.pop_back();
        aWord = false;
    }
    return taken;
}

bool allTied(const std::vector<SetWord>& words) {
    return std::ranges::all_of(words, [](const SetWord& word) { return isTied(word.text); });
}

}  // namespace

bool isTied(QStringView word) {
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
    line_ = {{}, style.indent};
    hang_ = style.indent;
    first_ = true;
    starts_ = style.starts;
}

int ParagraphSetter::used(const Line& line) {
    if (line.words.empty()) return 0;
    return naturalPlaces(line.words).back() + line.words.back().width;
}

/// The width of \a line with its gaps as narrow as may be.
int ParagraphSetter::tightest(const Line& line) {
    int blanks = 0;
    for (size_t i = firstBehindTab(line.words); i + 1 < line.words.size(); ++i)
        blanks += line.words[i].blanks;
    return used(line) - blanks / kTightenedParts;
}

void ParagraphSetter::add(SetWord word) {
    if (first_ && style_.hanging && style_.justified) addMark(word);
    first_ = false;
    if (!word.text.isEmpty()) place(std::move(word));
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
    mark.blanks = text - mark.width;
    hang_ = style_.indent + text;
    word.text = length < word.text.size() ? word.text.mid(length + 1) : QString();
    word.width = metrics_.textWidth(word.font, word.text);
    line_.words.push_back(std::move(mark));
    // The first word of the step stands exactly above the lines that hang.
    line_.words.back().blanks = text - line_.words.back().width;
}

void ParagraphSetter::place(SetWord word) {
    const int begin =
        line_.words.empty() ? word.tab : std::max(used(line_) + line_.words.back().blanks, word.tab);
    if (begin + word.width > room(line_) && !line_.words.empty()) {
        wrap();
        word.tab = 0;
    }
    if (word.width > room(line_) && line_.words.empty()) return placeInPieces(word);
    if (used(line_) + word.width > room(line_) && !line_.words.empty()) {
        wrap();  // what was tied takes too much room
        return place(std::move(word));
    }
    line_.words.push_back(std::move(word));
}

void ParagraphSetter::placeInPieces(const SetWord& word) {
    QStringView rest = word.text;
    const auto measure = [&](QStringView text) { return metrics_.textWidth(word.font, text); };
    while (!rest.isEmpty()) {
        const qsizetype length = std::min(rest.size(), charactersFitting(rest, room(line_), measure));
        SetWord piece = word;
        piece.text = rest.left(length).toString();
        piece.width = measure(rest.left(length));
        rest = rest.mid(length);
        piece.blanks = rest.isEmpty() ? word.blanks : 0;
        line_.words.push_back(std::move(piece));
        if (!rest.isEmpty()) wrap();
    }
}

/// Ends the line: it is held back, and the one before it goes out.
void ParagraphSetter::wrap() {
    std::vector<SetWord> tied;
    if (!allTied(line_.words)) tied = takeLast(line_.words, false);
    release(false);
    held_ = std::move(line_);
    holding_ = true;
    line_ = {std::move(tied), hang_};
}

void ParagraphSetter::mendLonelyWord() {
    if (!holding_ || line_.words.size() != 1 || line_.words.front().tab > 0) return;
    if (style_.kind == FlowLine::Kind::Heading || held_.words.size() < 3) return;
    Line joined = held_;
    joined.words.push_back(line_.words.front());
    if (style_.justified && tightest(joined) <= room(held_)) {
        line_ = std::move(joined);
        holding_ = false;
        return;
    }
    Line shorter = held_;
    std::vector<SetWord> company = takeLast(shorter.words, true);
    const auto gaps = static_cast<int>(shorter.words.size() - firstBehindTab(shorter.words)) - 1;
    const int blank = metrics_.textWidth(line_.words.front().font, u" ");
    const bool loose =
        style_.justified && (gaps < 1 || (room(shorter) - used(shorter)) / gaps > (kWidestGaps - 1) * blank);
    if (loose) return;
    held_ = std::move(shorter);
    line_.words.insert(line_.words.begin(), company.begin(), company.end());
}

void ParagraphSetter::end() {
    mendLonelyWord();
    if (line_.words.empty()) return release(true);
    release(false);
    // A line that was drawn together is as full as the others.
    put(line_, used(line_) > room(line_), true);
    line_ = {};
}

void ParagraphSetter::release(bool ends) {
    if (!holding_) return;
    holding_ = false;
    put(held_, style_.justified && !style_.ragged, ends);
    held_ = {};
}

/// Moves the words behind the last tab so that the line ends at the right edge.
void ParagraphSetter::spread(const Line& line, std::vector<int>& places) const {
    // The gap behind a step's number stays.
    size_t first = firstBehindTab(line.words);
    if (first == 0 && starts_ && hang_ > style_.indent) first = 1;
    const auto gaps = static_cast<int>(line.words.size() - first) - 1;
    if (gaps < 1) return;
    const int free = room(line) - used(line);
    for (int i = 1; i <= gaps; ++i) places[first + static_cast<size_t>(i)] += free * i / gaps;
}

void ParagraphSetter::put(const Line& line, bool justify, bool ends) {
    if (line.words.empty()) return;
    FlowLine flow;
    flow.kind = style_.kind;
    flow.startsParagraph = starts_;
    flow.endsParagraph = ends;
    int ascent = 0;
    for (const SetWord& word : line.words) {
        flow.height = std::max(flow.height, metrics_.textHeight(word.font));
        ascent = std::max(ascent, metrics_.textAscent(word.font));
    }
    std::vector<int> places = naturalPlaces(line.words);
    if (justify) spread(line, places);
    flow.texts.reserve(line.words.size());
    for (size_t i = 0; i < line.words.size(); ++i) {
        const SetWord& word = line.words[i];
        flow.texts.push_back(
            {style_.left + line.indent + places[i], ascent, word.width, word.text, word.font, word.color});
    }
    starts_ = false;
    emit_(std::move(flow));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
