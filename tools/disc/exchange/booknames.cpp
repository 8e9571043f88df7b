#include "booknames.h"

#include "../spelling.h"
#include "../stems.h"

namespace sarne::disc {
namespace {

/// "Cibule" and "CIBULE" as "cibule"; of a text with small letters only the first is changed.
QString inSmallLetters(const QString& text) {
    if (text.size() > 1 && text == text.toUpper()) return text.toLower();
    return text.left(1).toLower() + text.mid(1);
}

QString firstWord(const QString& text) {
    qsizetype end = 0;
    while (end < text.size() && text[end].isLetter()) ++end;
    return text.first(end);
}

/// Puts names into small letters, but for the names of persons, places and makers.
class LetterCase {
  public:
    explicit LetterCase(const QStringList& names) {
        QStringList words;
        for (const QString& name : names) words << firstWord(inSmallLetters(name));
        kept_ = unknownWords(words).value_or(QStringList());
    }

    QString of(const QString& name) const {
        QString small = inSmallLetters(name);
        return kept_.contains(firstWord(small)) ? name : small;
    }

  private:
    QStringList kept_;
};

/// The book's ingredient that \a name is another case of; \a name itself where there is none.
QString inBook(const Cookbook& book, const QString& name) {
    if (book.ingredientId(name) > 0) return name;
    const QStringList stems = stemsOf(name);
    for (const Ingredient& one : book.ingredients)
        if (!stems.isEmpty() && stemsOf(one.name) == stems) return one.name;
    return name;
}

}  // namespace

void useBookNames(const Cookbook& book, SharedRecipe& recipe) {
    QStringList names;
    for (const SharedIngredient& one : recipe.ingredients)
        names << one.name << one.name.section(u',', 1).trimmed() << one.alternative;
    const LetterCase letters(names);
    for (SharedIngredient& one : recipe.ingredients) {
        const QString name = inBook(book, letters.of(one.name.section(u',', 0, 0).trimmed()));
        const QString refinement = letters.of(one.name.section(u',', 1).trimmed());
        one.name = refinement.isEmpty() ? name : name + QStringLiteral(", ") + refinement;
        one.isNew = book.ingredientId(name) == 0;
        one.alternative = inBook(book, letters.of(one.alternative));
    }
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
