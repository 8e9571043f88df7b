#pragma once

#include "sharedrecipe.h"

namespace sarne::disc {

/// Names the ingredients of \a recipe as \a book does: by its name where it has another case of it ("mléka"
/// for "mléko"), else in small letters as its lists are. A word that the dictionary has only with a capital,
/// or not at all, is taken for somebody's name and keeps it. An ingredient that the book lacks is marked as
/// new.
void useBookNames(const Cookbook& book, SharedRecipe& recipe);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
