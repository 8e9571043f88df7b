#pragma once

#include "cookbook.h"

namespace sarne::disc {

struct RecipePlace {
    /// The file's name without its ending.
    QString stem;
    /// What the head says as "chod": all courses that the grid shows this number in.
    QString courses;
};

/// Where a new recipe goes in \a book: the lowest free number that the photo grid shows as \a course, alone
/// if there is one, else the lowest above the grid, and the name without accents ("07-stika-na-smetane").
RecipePlace recipePlace(const Cookbook& book, const QString& course, const QString& name);

/// "Štika na smetaně" as "stika-na-smetane".
QString plainFileName(const QString& name);

/// Adds those of \a names to a list of the content ("suroviny.txt") that it does not have, each with \a tail
/// behind it. Returns the added ones.
QStringList addToList(const QString& file, const QStringList& names, const QString& tail = {});

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
