#include "booknames.h"

#include <QRegularExpression>
#include <algorithm>

#include "../spelling.h"

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

/// The book's ingredient that \a name is another case of, by its own words or by those of tvary.txt; \a name
/// itself where there is none.
QString inBook(const Cookbook& book, const Stems& stems, const QString& name) {
    if (book.ingredientId(name) > 0) return name;
    const QStringList words = stemsOf(name);
    for (const Ingredient& one : book.ingredients)
        if (!words.isEmpty() && stemsOf(one.name) == words) return one.name;
    for (const StemEntry& entry : stems.ingredients)
        if (!name.contains(u' ') && book.ingredientId(entry.names.first()) > 0 &&
            std::ranges::any_of(entry.stems,
                                [&](const QString& stem) { return hasStem(wordsOf(name), stem); }))
            return entry.names.first();
    return name;
}

/// "Tučného" and "tučné" as "tucn".
QString withoutEnding(const QString& adjective) {
    static const QRegularExpression ending(QStringLiteral("(eho|emu|ych|ymi|ym|ou|[aeiy])$"));
    return folded(adjective).remove(ending);
}

/// "Hladké mouky" as "mouka, hladká": the words in front of a known ingredient say which kind it is.
void partKind(const Cookbook& book, const Stems& stems, QString& name, QString& refinement) {
    const qsizetype blank = name.lastIndexOf(u' ');
    if (blank < 0 || !refinement.isEmpty() || book.ingredientId(name) > 0) return;
    const QString thing = inBook(book, stems, name.mid(blank + 1));
    if (book.ingredientId(thing) == 0) return;
    refinement = name.first(blank);
    for (const QString& known : book.refinements.names)
        if (withoutEnding(known) == withoutEnding(refinement)) refinement = known;
    name = thing;
}

}  // namespace

void useBookNames(const Cookbook& book, SharedRecipe& recipe, const Stems& stems) {
    QStringList names;
    for (const SharedIngredient& one : recipe.ingredients)
        names << one.name << one.name.section(u',', 1).trimmed() << one.alternative;
    const LetterCase letters(names);
    for (SharedIngredient& one : recipe.ingredients) {
        QString name = inBook(book, stems, letters.of(one.name.section(u',', 0, 0).trimmed()));
        QString refinement = letters.of(one.name.section(u',', 1).trimmed());
        partKind(book, stems, name, refinement);
        one.name = refinement.isEmpty() ? name : name + QStringLiteral(", ") + refinement;
        one.isNew = book.ingredientId(name) == 0;
        one.alternative = inBook(book, stems, letters.of(one.alternative));
    }
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
