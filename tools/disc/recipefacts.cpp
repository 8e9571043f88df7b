#include "recipefacts.h"

#include <cmath>

#include "core/czech.h"

namespace sarne::disc {
namespace {

constexpr double kJoules = 4.184;
constexpr int kAllergens = 14;
const char16_t* const kAllergenNames[kAllergens] = {
    u"lepek",  u"korýši", u"vejce",   u"ryby",  u"arašídy",       u"sója",     u"mléko",
    u"ořechy", u"celer",  u"hořčice", u"sezam", u"oxid siřičitý", u"vlčí bob", u"měkkýši"};

QString portions(int count, const QString& one) {
    Noun noun = portionNoun();
    noun.one = one;
    return QString::number(count) + u' ' + noun.behind(count);
}

/// A number rounded to \a step, its thousands parted by a blank that does not break.
QString rounded(double number, int step) {
    QString digits = QString::number(static_cast<int>(std::lround(number / step)) * step);
    if (digits.size() > 3) digits.insert(digits.size() - 3, QChar(QChar::Nbsp));
    return digits;
}

QString allergenText(const QList<int>& numbers) {
    QStringList all;
    for (const int number : numbers)
        all << QStringLiteral("%1 %2").arg(number).arg(QString::fromUtf16(kAllergenNames[number - 1]));
    return all.isEmpty() ? QStringLiteral("žádné") : all.join(QStringLiteral(", "));
}

void addFact(QStringList& facts, const char* name, const QString& value) {
    if (!value.isEmpty()) facts << QStringLiteral("**%1:** %2.").arg(QString::fromUtf8(name), value);
}

/// A paragraph that stands where the recipe does.
void addParagraph(Lines& lines, const Recipe& recipe, const QString& text) {
    if (!text.isEmpty()) lines << Line{recipe.place, {}} << Line{recipe.place, text};
}

}  // namespace

QString methodHeading(const Recipe& recipe) {
    return QStringLiteral("Postup pro ") + portions(recipe.portions, QStringLiteral("porci"));
}

Lines factLine(const Recipe& recipe) {
    if (recipe.preparation == 0) return {};
    QStringList facts{QStringLiteral("Příprava %1 min").arg(recipe.preparation)};
    if (recipe.cooking > 0) facts << QStringLiteral("vaření %1 min").arg(recipe.cooking);
    if (!recipe.ahead.isEmpty()) facts << QStringLiteral("předem: ") + recipe.ahead;
    facts << portions(recipe.portions, QStringLiteral("porce"));
    if (!recipe.difficulty.isEmpty()) facts << recipe.difficulty;
    const QString text = u'_' + facts.join(QStringLiteral("\u00a0· ")) + u'_';
    return {Line{recipe.place, text}, Line{recipe.place, {}}};
}

Lines factFoot(const Recipe& recipe, const std::optional<Nutrition>& portion) {
    QStringList eaten;
    QStringList kept;
    if (portion) {
        addFact(eaten, "Jedna porce",
                QStringLiteral("asi %1 kcal (%2 kJ), %3 g bílkovin")
                    .arg(rounded(portion->energy, 10), rounded(portion->energy * kJoules, 10),
                         rounded(portion->protein, 1)));
        addFact(eaten, "Alergeny", allergenText(portion->allergens));
    }
    addFact(kept, "Sezona", recipe.season);
    addFact(kept, "Kosti", recipe.bones);
    addFact(kept, "Mrazit", recipe.freezing);
    addFact(kept, "Vydrží", recipe.keeping);
    Lines lines;
    addParagraph(lines, recipe, eaten.join(u' '));
    addParagraph(lines, recipe, kept.join(u' '));
    return lines;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
