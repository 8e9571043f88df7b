#include "print/shortsteps.h"

#include "print/paragraphsetter.h"

namespace sarne {
namespace {

constexpr qsizetype kShortestStep = 40;      // what is shorter and has no number is a heading
constexpr qsizetype kShortestSentence = 12;  // "Ca." and the like end no sentence

/// So many \a sentences of \a text: each up to a full stop before a blank and a capital letter.
QString firstSentences(const QString& text, int sentences) {
    for (qsizetype i = kShortestSentence; i + 2 < text.size(); ++i) {
        const bool stop = text[i] == u'.' || text[i] == u'!' || text[i] == u'?';
        if (!stop || !text[i + 1].isSpace() || !text[i + 2].isUpper()) continue;
        if (--sentences == 0) return text.left(i + 1);
    }
    return text;
}

}  // namespace

QStringList stepsInShort(const QString& text, int sentences) {
    QStringList steps, others;
    for (const QString& line : text.split(u'\n')) {
        const QString paragraph = line.trimmed();
        const QString head = paragraph.section(u' ', 0, 0);
        if (stepMark(head) > 0 && head.front().isDigit())
            steps << firstSentences(paragraph, sentences);
        else if (paragraph.size() >= kShortestStep)
            others << firstSentences(paragraph, sentences);
    }
    return steps.isEmpty() ? others : steps;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
