#include "spelling.h"

#include <QProcess>
#include <QRegularExpression>
#include <algorithm>

namespace sarne::disc {

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
    QProcess hunspell;
    hunspell.start(QStringLiteral("hunspell"),
                   {QStringLiteral("-l"), QStringLiteral("-i"), QStringLiteral("utf-8"), QStringLiteral("-d"),
                    QStringLiteral("cs_CZ")});
    hunspell.write(QStringList(words_.keys()).join(u'\n').toUtf8() + '\n');
    hunspell.closeWriteChannel();
    if (!hunspell.waitForFinished() || hunspell.exitCode() != 0) {
        problems.error({QStringLiteral("slovnik.txt"), 0},
                       QStringLiteral("hunspell with cs_CZ cannot be run"));
        return;
    }
    QStringList unknown =
        QString::fromUtf8(hunspell.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    unknown.sort();
    for (const QString& word : unknown)
        problems.error(words_.value(word),
                       QStringLiteral("a word that the dictionary does not know: %1").arg(word));
}

}  // namespace sarne::disc
