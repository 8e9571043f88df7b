#pragma once

#include "cookbook.h"
#include "textfile.h"

namespace sarne::disc {

/// Reads every recipe of the folder "recepty"; the number that its file's name begins with is its id. The
/// tables must have been read.
void readRecipes(const ContentFolder& folder, Cookbook& book, Problems& problems);

/// Reads a line of a list of ingredients:
///
///     máslo, rozpuštěné: 60 g = 4 lžíce, nebo sádlo
///
/// a name, a refinement, the amount in weights and in spoons, an alternative. A unit that is neither weight
/// nor spoon may serve both systems ("citron: 1 ks"); "podle chuti" has no number.
IngredientLine readIngredientLine(const Line& line, const Cookbook& book, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
