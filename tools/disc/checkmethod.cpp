#include "checkmethod.h"

#include <QRegularExpression>
#include <algorithm>

#include "markup.h"
#include "readtables.h"

namespace sarne::disc {
namespace {

QString joined(const Lines& lines) {
    QString text;
    for (const Line& line : lines) text += plainText(line.text) + u' ';
    return text;
}

bool hasAny(const QString& words, const QStringList& stems) {
    return std::any_of(stems.cbegin(), stems.cend(),
                       [&](const QString& stem) { return hasStem(words, stem); });
}

void checkIngredients(const Cookbook& book, const Stems& stems, const Recipe& recipe, Problems& problems) {
    const QString words = wordsOf(joined(recipe.method) + joined(recipe.serving));
    if (recipe.method.isEmpty()) return;
    for (const IngredientLine& line : recipe.ingredients) {
        const Ingredient* ingredient = book.ingredient(line.ingredient);
        if (ingredient && !hasAny(words, wordsFor(*ingredient, book.facts.mainMark, stems)))
            problems.finding(line.place,
                             QStringLiteral("postup nejmenuje surovinu „%1“").arg(ingredient->name));
    }
}

/// The first line of the method, as folded words, that speaks of a tool.
const Line* lineNaming(const Recipe& recipe, const QStringList& words, const QStringList& stems) {
    for (qsizetype i = 0; i < words.size(); ++i)
        if (hasAny(words[i], stems)) return &recipe.method[i];
    return nullptr;
}

void checkTools(const Stems& stems, const Recipe& recipe, Problems& problems) {
    QStringList words;
    for (const Line& line : recipe.method) words << wordsOf(plainText(line.text));
    for (const StemEntry& entry : stems.tools) {
        const bool isListed = std::any_of(entry.names.cbegin(), entry.names.cend(),
                                          [&](const QString& name) { return recipe.tools.contains(name); });
        if (isListed) continue;
        if (const Line* line = lineNaming(recipe, words, entry.stems))
            problems.finding(line->place, QStringLiteral("postup potřebuje pomůcku „%1“, hlavička ji nemá")
                                              .arg(entry.names.join(QStringLiteral("“ nebo „"))));
    }
}

int minutesOf(const QString& unit) {
    if (unit == u"den" || unit == u"dn") return 24 * 60;
    return unit == u"hodin" ? 60 : 1;
}

/// The longest time that a text names, in minutes.
int longestTime(const QString& text) {
    static const QRegularExpression pattern(QStringLiteral("(\\d+(?:,\\d+)?) (minut|min\\b|hodin|dn|den)"));
    int longest = text.contains(QStringLiteral("týden"))      ? 7 * 24 * 60
                  : text.contains(QStringLiteral("přes noc")) ? 12 * 60
                                                              : 0;
    for (auto all = pattern.globalMatch(text); all.hasNext();) {
        const auto match = all.next();
        const double minutes = czechNumber(match.captured(1)) * minutesOf(match.captured(2));
        longest = std::max(longest, static_cast<int>(minutes));
    }
    return longest;
}

void checkTimes(const Recipe& recipe, Problems& problems) {
    if (recipe.minutes == 0) return;  // told of where the head is checked
    const int total = std::max(recipe.minutes, longestTime(recipe.ahead));
    for (const Line& line : recipe.method)
        if (const int minutes = longestTime(plainText(line.text)); minutes > total)
            problems.finding(
                line.place,
                QStringLiteral("%1 minut v postupu, celkem jich má být %2").arg(minutes).arg(recipe.minutes));
}

void checkTemperatures(const Lines& text, Problems& problems) {
    static const QRegularExpression bare(
        QStringLiteral("(?:troub|teplot|předehř|rozpál)[^.;]*? na (\\d{2,3})(?![\\d–,]| ?(?:°C|–|\\p{L}))"));
    for (const Line& line : text)
        if (const auto match = bare.match(plainText(line.text)); match.hasMatch())
            problems.error(line.place, QStringLiteral("teplota bez °C: %1").arg(match.captured(1)));
}

}  // namespace

QStringList wordsFor(const Ingredient& ingredient, const QString& mainMark, const Stems& stems) {
    QStringList words = stemsOf(ingredient.name);
    for (const StemEntry& entry : stems.ingredients)
        if (entry.names.contains(ingredient.name) ||
            entry.names.contains(ingredient.name.section(u' ', 0, 0)) ||
            (ingredient.isMain && entry.names.contains(mainMark)))
            words << entry.stems;
    return words;
}

void checkMethod(const Cookbook& book, const Stems& stems, const Recipe& recipe, Problems& problems) {
    checkIngredients(book, stems, recipe, problems);
    checkTools(stems, recipe, problems);
    checkTimes(recipe, problems);
    checkTemperatures(recipe.method, problems);
    checkSteps(recipe.method, problems);
}

void checkSteps(const Lines& text, Problems& problems) {
    static const QRegularExpression step(QStringLiteral("^(\\d+)\\. "));
    int last = 0;
    int count = 0;
    for (const Line& line : text) {
        const auto match = step.match(line.text);
        if (!match.hasMatch()) continue;
        const int number = match.captured(1).toInt();
        count = number == 1 ? 1 : count + 1;
        // Behind a number that is wrong they may go on from it or from what is right.
        if (number != last + 1 && number != count)
            problems.error(line.place, QStringLiteral("za krokem %1 stojí krok %2").arg(last).arg(number));
        last = number;
    }
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
