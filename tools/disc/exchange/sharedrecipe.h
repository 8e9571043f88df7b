#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "../cookbook.h"

namespace sarne::disc {

/// One line of a list of ingredients as other programs write it.
struct SharedIngredient {
    /// "máslo, rozpuštěné".
    QString name;
    /// "60 g = 4 lžíce": the amount as this book writes it; empty where the source names none.
    QString amount;
    /// What may be taken instead; may be empty.
    QString alternative;
    /// Whether the book that takes it in does not know it, so that its name may be in any case.
    bool isNew = false;

    /// "60 g = 4 lžíce máslo, rozpuštěné, nebo sádlo".
    QString line() const;
    bool operator==(const SharedIngredient&) const = default;
};

/// A text of a recipe under its heading.
struct SharedText {
    QString title;
    QString text;
    bool operator==(const SharedText&) const = default;
};

/// A recipe as it goes from one program to another: all that a cook needs, and all that this book would lose
/// otherwise.
struct SharedRecipe {
    QString name;
    QString longName;
    int portions = 0;
    int preparation = 0;
    int cooking = 0;
    int minutes = 0;
    QList<SharedIngredient> ingredients;
    /// The method's steps, without their numbers, link phrases and shares as this book writes them.
    QStringList steps;
    /// The other sections by their titles: "Úvod", "Jak podávat" …
    QList<SharedText> texts;
    /// The rest of the head, a line each: "obtížnost: snadné".
    QStringList head;
    /// The address of the page that it is from; may be empty.
    QString source;

    bool operator==(const SharedRecipe&) const = default;
};

/// A recipe of the content, as its file \a lines tell it.
SharedRecipe sharedRecipe(const Lines& lines);

/// A recipe's file. Where something is missing or was guessed, a line begins with "; ???" and says what a
/// person has to do.
QString recipeFile(const SharedRecipe& recipe);

/// How a text goes out: link phrases as their words, no marks of shares.
QString readableText(const QString& text);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
