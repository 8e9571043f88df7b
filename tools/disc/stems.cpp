#include "stems.h"

namespace sarne::disc {
namespace {

constexpr qsizetype kLongWord = 5;

/// A word without what changes with its case.
QString stem(QString word) {
    while (!word.isEmpty() && QStringLiteral("aeiouy").contains(word.back())) word.chop(1);
    if (word.size() >= kLongWord && (word.endsWith(u"ek") || word.endsWith(u"ev"))) return word.chopped(2);
    return word.size() >= kLongWord ? word.chopped(1) : word;
}

QList<StemEntry> entries(const Lines& lines) {
    QList<StemEntry> all;
    for (const Line& line : lines) {
        if (line.isBlank()) continue;
        const KeyValue entry = keyValue(line);
        all << StemEntry{line.place, trimmedParts(entry.key, u','), trimmedParts(folded(entry.value), u',')};
    }
    return all;
}

}  // namespace

QStringList stemsOf(const QString& name) {
    QStringList stems;
    for (const QString& word : folded(name).split(u' '))
        if (word.size() > 2) stems << stem(word);
    return stems;
}

QString wordsOf(const QString& text) {
    // The same names and sentences are looked into again and again, while an author writes for hours.
    constexpr qsizetype kMost = 20'000;
    thread_local QHash<QString, QString> known;
    if (const auto found = known.constFind(text); found != known.cend()) return *found;
    if (known.size() >= kMost) known.clear();
    return *known.insert(text, foldedWords(text));
}

bool hasStem(const QString& words, const QString& stem) {
    return stem.startsWith(u'=') ? words.contains(u' ' + stem.mid(1) + u' ') : words.contains(u' ' + stem);
}

Stems readStems(const ContentFolder& folder, Problems& problems) {
    Stems stems;
    for (const Section& section : sections(folder.readIfThere(QStringLiteral("tvary.txt")))) {
        if (section.title == QStringLiteral("Suroviny"))
            stems.ingredients = entries(section.lines);
        else if (section.title == QStringLiteral("Pomůcky"))
            stems.tools = entries(section.lines);
        else if (!section.title.isEmpty())
            problems.error(section.place, QStringLiteral("neznámá část „%1“").arg(section.title));
    }
    return stems;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
