#include "core/czech.h"

#include <cmath>

#include "core/numbertext.h"
#include "core/texts.h"

namespace sarne {

QString folded(const QString& text) {
    QString plain;
    for (const QChar c : text.toLower().normalized(QString::NormalizationForm_D))
        if (c.category() != QChar::Mark_NonSpacing) plain += c;
    return plain;
}

QString foldedWords(const QString& text) {
    QString words = QStringLiteral(" ");
    for (const QChar c : folded(text)) {
        if (c.isLetterOrNumber())
            words += c;
        else if (words.back() != u' ')
            words += u' ';
    }
    return words.back() == u' ' ? words : words + u' ';
}

QString fileWords(const QString& text) {
    return foldedWords(text).trimmed().replace(u' ', u'-');
}

const QString& Noun::behind(double number) const {
    constexpr double kMany = 5;
    if (number != std::floor(number)) return part;
    if (number == 1) return one;
    return number > 0 && number < kMany ? few : many;
}

Noun portionNoun() {
    return {Texts::tr("porce"), Texts::tr("porce"), Texts::tr("porcí"), Texts::tr("porce")};
}

Noun recipeNoun() {
    return {Texts::tr("recept"), Texts::tr("recepty"), Texts::tr("receptů"), Texts::tr("receptu")};
}

QString counted(double number, const Noun& noun, const QLocale& locale) {
    return numberText(number, locale) + QChar(QChar::Nbsp) + noun.behind(number);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
