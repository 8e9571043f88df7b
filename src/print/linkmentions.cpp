#include "print/linkmentions.h"

#include <algorithm>

#include "core/czech.h"

namespace sarne {
namespace {

constexpr qsizetype kShortestStem = 3;
constexpr qsizetype kLongestEnding = 4;  // what a case adds to a stem
constexpr size_t kMostWords = 5000;      // a recipe has some hundred; a long note shall not hold up the rest

/// What all cases of \a word begin with.
QString stemOf(QString word) {
    while (word.size() > kShortestStem && QStringLiteral("aeiouy").contains(word.back())) word.chop(1);
    return word;
}

bool isCaseOf(const QString& word, const QString& stem) {
    return word.startsWith(stem) && word.size() <= stem.size() + kLongestEnding;
}

QString backName(const QString& place) {
    return place + QStringLiteral("-odkud");
}

}  // namespace

/// A word of the texts, folded, and the line and the text in it that hold it.
struct LinkMentions::Word {
    QString text;
    FlowLine* line;
    const PageText* at;
};

QStringList LinkMentions::stemsOf(const QString& text) {
    QStringList stems;
    for (const QString& word : foldedWords(text).split(u' ', Qt::SkipEmptyParts)) stems << stemOf(word);
    return stems;
}

void LinkMentions::add(const QString& title, const QString& place) {
    linked_.push_back({stemsOf(title), place});
    for (const QString& stem : linked_.back().stems) initials_ += stem.front();
}

/// False for a single word that begins with another letter than all that are looked for: it need not be
/// folded.
bool LinkMentions::mayBeNamed(const QString& text) const {
    const auto letter = std::ranges::find_if(text, [](QChar c) { return c.isLetterOrNumber(); });
    if (letter == text.end()) return false;
    const QString parts = letter->decomposition();
    const QChar initial = (parts.isEmpty() ? *letter : parts.front()).toLower();
    const auto endsWord = [](QChar c) { return !c.isLetterOrNumber(); };
    return initials_.contains(initial) || std::find_if(letter, text.end(), endsWord) != text.end();
}

std::vector<LinkMentions::Word> LinkMentions::wordsOf(std::vector<FlowLine>& lines) const {
    std::vector<Word> words;
    for (FlowLine& line : lines) {
        if (words.size() > kMostWords) break;
        for (const PageText& text : line.texts) {
            if (!mayBeNamed(text.text)) {
                words.push_back({{}, &line, &text});
                continue;
            }
            for (const QString& word : foldedWords(text.text).split(u' ', Qt::SkipEmptyParts))
                words.push_back({word, &line, &text});
        }
    }
    return words;
}

/// Whether the words from \a first on are \a stems, in any order: an ingredient's noun stands first.
bool LinkMentions::isMention(const std::vector<Word>& words, size_t first, const QStringList& stems) {
    const auto count = static_cast<size_t>(stems.size());
    if (count == 0 || first + count > words.size()) return false;
    return std::ranges::all_of(stems, [&](const QString& stem) {
        return std::any_of(words.begin() + static_cast<qsizetype>(first),
                           words.begin() + static_cast<qsizetype>(first + count),
                           [&](const Word& word) { return isCaseOf(word.text, stem); });
    });
}

/// Makes a link of the words, one in each line that they stand in.
void LinkMentions::link(const std::vector<Word>& words, size_t first, size_t count, const QString& target) {
    for (size_t i = first; i < first + count; ++i) {
        const PageText& text = *words[i].at;
        const QRect place(text.x, 0, text.width, words[i].line->height);
        std::vector<DocumentLink>& links = words[i].line->links;
        const bool goesOn = i > first && words[i].line == words[i - 1].line;
        goesOn ? void(links.back().place |= place) : links.push_back({place, target});
    }
}

const LinkMentions::Linked* LinkMentions::headedBy(const FlowLine& line) const {
    if (line.kind != FlowLine::Kind::Heading || line.places.empty()) return nullptr;
    const auto found = std::ranges::find(linked_, line.places.front().name, &Linked::place);
    return found == linked_.end() ? nullptr : &*found;
}

/// What the words from \a first on name, other than the text \a own that they belong to.
const LinkMentions::Linked* LinkMentions::named(const std::vector<Word>& words, size_t first,
                                                const Linked* own) const {
    const auto found = std::ranges::find_if(linked_, [&](const Linked& linked) {
        return &linked != own && isMention(words, first, linked.stems);
    });
    return found == linked_.end() ? nullptr : &*found;
}

/// The places of the texts that are mentioned.
QStringList LinkMentions::markMentions(std::vector<FlowLine>& lines) const {
    const std::vector<Word> words = wordsOf(lines);
    QStringList mentioned;
    const Linked* own = nullptr;
    for (size_t i = 0; i < words.size();) {
        FlowLine& line = *words[i].line;
        if (const Linked* headed = headedBy(line)) own = headed;
        const Linked* found = line.kind == FlowLine::Kind::Heading ? nullptr : named(words, i, own);
        const size_t count = found ? static_cast<size_t>(found->stems.size()) : 1;
        if (found) link(words, i, count, found->place);
        if (found && !mentioned.contains(found->place)) {
            mentioned << found->place;
            line.places.push_back({0, backName(found->place)});
        }
        i += count;
    }
    return mentioned;
}

void LinkMentions::mark(std::vector<FlowLine>& lines, const QString& start) const {
    if (linked_.empty()) return;
    const QStringList mentioned = markMentions(lines);
    for (FlowLine& line : lines) {
        const Linked* headed = headedBy(line);
        if (!headed || line.texts.empty()) continue;
        const PageText &left = line.texts.front(), &right = line.texts.back();
        const QRect place(left.x, 0, right.x + right.width - left.x, line.height);
        line.links.push_back({place, mentioned.contains(headed->place) ? backName(headed->place) : start});
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
