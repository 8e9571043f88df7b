#pragma once

#include "cookbook.h"
#include "stems.h"

namespace sarne::disc {

/// Reports what is wrong within one recipe: what is missing, names that no table knows, weights and spoons
/// that disagree, amounts that nobody measures, courses that the photo grid shows elsewhere; steps out of
/// order; ingredients that the method does not name and tools that it names and the list lacks; times longer
/// than the total, temperatures without a unit.
void checkRecipe(const Cookbook& book, const Stems& stems, const Recipe& recipe, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
