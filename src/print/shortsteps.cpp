#include "print/shortsteps.h"

#include "print/paragraphsetter.h"

namespace sarne {
namespace {

constexpr qsizetype kShortestStep = 40;      // what is shorter and has no number is a heading
constexpr qsizetype kShortestSentence = 12;  // "Ca." and the like end no sentence

/// The first sentence of \a text: up to a full stop before a blank and a capital letter.
QString firstSentence(const QString& text) {
    for (qsizetype i = kShortestSentence; i + 2 < text.size(); ++i) {
        const bool stop = text[i] == u'.' || text[i] == u'!' || text[i] == u'?';
        if (stop && text[i + 1].isSpace() && text[i + 2].isUpper()) return text.left(i + 1);
    }
    return text;
}

}  // namespace

QStringList stepsInShort(const QString& text) {
    QStringList steps, others;
    for (const QString& line : text.split(u'\n')) {
        const QString paragraph = line.trimmed();
        const QString head = paragraph.section(u' ', 0, 0);
        if (stepMark(head) > 0 && head.front().isDigit())
            steps << firstSentence(paragraph);
        else if (paragraph.size() >= kShortestStep)
            others << firstSentence(paragraph);
    }
    return steps.isEmpty() ? others : steps;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
