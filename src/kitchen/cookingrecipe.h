// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QStringList>

#include "core/quantities.h"
#include "kitchen/cookingpages.h"

namespace sarne {

/// A recipe as it is cooked: its steps, for so many people and in such units.
struct CookingRecipe {
    int id = 0;
    QString name;
    QStringList tools;
    Serving serving;
    Quantities quantities{0, 0, QLocale()};
    std::vector<Ingredient> ingredients;
    std::vector<CookingStep> steps;
    QLocale locale;

    /// "6 porcí".
    QString portionsText() const;
    /// What a step takes, a line each, in the amounts for these portions.
    QString needsOf(const CookingStep& step) const;
    /// "Krok 2 z 6", "Na stůl", with "(část 1 ze 2)" where a page holds a part of it.
    QString counterOf(const CookingPage& page) const;
    /// What a timer that a step starts is called.
    QString timerName(const CookingPage& page) const;
};

/// The recipe for \a serving, for as many as it is written for where that says none. Without steps where the
/// book knows none.
CookingRecipe readCookingRecipe(Database& db, int recipe, const Serving& serving, const QLocale& locale);

}  // namespace sarne
