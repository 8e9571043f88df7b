#pragma once

#include "../cookbook.h"
#include "../stems.h"
#include "sharedrecipe.h"

namespace sarne::disc {

/// Names the ingredients of \a recipe as \a book does: by its name where it has another case of it ("mléka"
/// for "mléko"), or where tvary.txt, \a stems, has that word, "hladké mouky" as "mouka, hladká", else in
/// small letters as its lists are. A word that the dictionary has only with a capital, or not at all, is
/// taken for somebody's name and keeps it. An ingredient that the book lacks is marked as new.
void useBookNames(const Cookbook& book, SharedRecipe& recipe, const Stems& stems = {});

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
