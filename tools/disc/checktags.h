#pragma once

#include "cookbook.h"

namespace sarne::disc {

/// Reports tags of a recipe that no item of the menu asks for, and tags of the menu that no recipe has: a tag
/// written wrong, by which a recipe drops out of its menus.
void checkTags(const Cookbook& book, Problems& problems);

/// Reports words that a cook types and that no ingredient's name begins with; too few of them; and
/// ingredients that stand only as another's alternative, so that finding them leads to no recipe.
void checkSearch(const Cookbook& book, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
