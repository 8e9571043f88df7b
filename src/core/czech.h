#pragma once

#include <QLocale>
#include <QString>

namespace sarne {

/// \a text in lower case, without accents.
QString folded(const QString& text);

/// The words of \a text, folded, with a blank in front of each and behind the last: a word begins with
/// "los" where " los" is found.
QString foldedWords(const QString& text);

/// The words of \a text as a file is called after it: "ostry-nuz". Empty when it has no letter.
QString fileWords(const QString& text);

/// A noun as it stands behind a number: 1 lžíce, 2 lžíce, 5 lžic, and 2,5 lžíce.
struct Noun {
    QString one, few, many;
    QString part;  ///< behind a number with a decimal part

    const QString& behind(double number) const;
};

/// The nouns that several screens count.
Noun portionNoun();
Noun recipeNoun();

/// \a number with the noun behind it.
QString counted(double number, const Noun& noun, const QLocale& locale);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
