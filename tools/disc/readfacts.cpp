#include "readfacts.h"

#include <QRegularExpression>
#include <functional>

#include "core/gridtable.h"
#include "nearword.h"

namespace sarne::disc {
namespace {

struct Fact {
    /// Takes a value over; false when it is none that the key may have.
    std::function<bool(BookFacts&, const QString&)> read;
    /// What the key may have, for the writer.
    QString right;
};

Fact text(QString BookFacts::*member) {
    return {[member](BookFacts& facts, const QString& value) {
                facts.*member = value;
                return true;
            },
            QStringLiteral("text")};
}

Fact names(QStringList BookFacts::*member, qsizetype count) {
    return {[member, count](BookFacts& facts, const QString& value) {
                const QStringList given = trimmedParts(value, u',');
                const bool isRight = count == 0 || given.size() == count;
                facts.*member = isRight ? given : QStringList();
                return isRight;
            },
            QStringLiteral("%1 jména oddělená čárkami").arg(count)};
}

Fact number(int BookFacts::*member, int least) {
    return {[member, least](BookFacts& facts, const QString& value) {
                bool isNumber = false;
                facts.*member = value.toInt(&isNumber);
                return isNumber && facts.*member >= least;
            },
            QStringLiteral("číslo od %1").arg(least)};
}

/// "6–18"; one number is the fewest, with no limit above.
Fact range(int BookFacts::*fewest, int BookFacts::*most) {
    return {[fewest, most](BookFacts& facts, const QString& value) {
                static const QRegularExpression pattern(QStringLiteral("^(\\d+)(?:[–-](\\d+))?$"));
                const auto match = pattern.match(value);
                facts.*fewest = match.captured(1).toInt();
                facts.*most = match.captured(2).isEmpty() ? 1'000'000 : match.captured(2).toInt();
                return match.hasMatch() && facts.*fewest <= facts.*most;
            },
            QStringLiteral("dvě čísla, třeba 6–18")};
}

const QHash<QString, Fact>& allFacts() {
    static const QHash<QString, Fact> all{
        {QStringLiteral("název"), text(&BookFacts::title)},
        {QStringLiteral("hlavní surovina"), text(&BookFacts::mainMark)},
        {QStringLiteral("chody"), names(&BookFacts::courses, kGridGroups)},
        {QStringLiteral("skupiny"), names(&BookFacts::groups, kGridGroups)},
        {QStringLiteral("vydání"), number(&BookFacts::edition, 1)},
        {QStringLiteral("štítky"), names(&BookFacts::tagKeys, 0)},
        {QStringLiteral("povinné"), names(&BookFacts::required, 0)},
        {QStringLiteral("surovin"), range(&BookFacts::fewestIngredients, &BookFacts::mostIngredients)},
        {QStringLiteral("slov hesla"), range(&BookFacts::fewestKeywordWords, &BookFacts::mostKeywordWords)},
        {QStringLiteral("slov k hledání"), number(&BookFacts::searchWords, 0)}};
    return all;
}

}  // namespace

BookFacts readFacts(const ContentFolder& folder, Problems& problems) {
    BookFacts facts;
    for (const Line& line : folder.readIfThere(QStringLiteral("kniha.txt"))) {
        if (line.isBlank()) continue;
        const KeyValue entry = keyValue(line);
        const auto fact = allFacts().constFind(entry.key);
        if (fact == allFacts().cend())
            problems.error(line.place, QStringLiteral("neznámý klíč „%1“").arg(entry.key) +
                                           didYouMean(entry.key, allFacts().keys()));
        else if (!fact->read(facts, entry.value))
            problems.error(line.place, QStringLiteral("„%1“ nemůže být „%2“, patří sem %3")
                                           .arg(entry.key, entry.value, fact->right));
    }
    return facts;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
