#include "spelling.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>

namespace sarne::disc {
namespace {

constexpr int kTimeout = 900'000;  // milliseconds, of a machine that has much else to do

}  // namespace

std::optional<QStringList> unknownWords(const QStringList& words) {
    QProcess hunspell;
    hunspell.start(QStringLiteral("hunspell"),
                   {QStringLiteral("-l"), QStringLiteral("-i"), QStringLiteral("utf-8"), QStringLiteral("-d"),
                    QStringLiteral("cs_CZ")});
    hunspell.write(words.join(u'\n').toUtf8() + '\n');
    hunspell.closeWriteChannel();
    if (!hunspell.waitForFinished(kTimeout) || hunspell.exitCode() != 0) return std::nullopt;
    return QString::fromUtf8(hunspell.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

SpellCheck::SpellCheck(const QStringList& known) {
    for (const QString& word : known) known_.insert(word.toLower());
}

void SpellCheck::add(const QString& text, const Place& place) {
    static const QRegularExpression pattern(QStringLiteral("\\p{L}{2,}"));
    for (auto all = pattern.globalMatch(text); all.hasNext();) {
        const QString word = all.next().captured();
        if (!known_.contains(word.toLower()) && !words_.contains(word)) words_.insert(word, place);
    }
}

void SpellCheck::report(Problems& problems) const {
    // A word is asked about once a run, however many texts are checked.
    static QSet<QString> correct;
    QStringList asked;
    for (auto word = words_.cbegin(); word != words_.cend(); ++word)
        if (!correct.contains(word.key())) asked << word.key();
    if (asked.isEmpty()) return;
    std::optional<QStringList> unknown = unknownWords(asked);
    if (!unknown) {
        problems.finding({QStringLiteral("slovnik.txt"), 0},
                         QStringLiteral("hunspell s cs_CZ nelze spustit"));
        return;
    }
    unknown->sort();
    correct.unite(QSet<QString>(asked.cbegin(), asked.cend()));
    for (const QString& word : *unknown) {
        correct.remove(word);
        problems.finding(words_.value(word), QStringLiteral("slovo, které slovník nezná: %1").arg(word));
    }
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
