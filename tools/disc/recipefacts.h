#pragma once

#include "cookbook.h"
#include "weights.h"

namespace sarne::disc {

/// What the builder writes into the texts of a recipe from its head and its list of ingredients.

/// "Postup pro 4 porce".
QString methodHeading(const Recipe& recipe);

/// "Příprava 25 min · vaření 25 min · předem: 12 hodin v chladu · 4 porce · snadné", as a paragraph of the
/// markup; nothing when the head does not tell the times.
Lines factLine(const Recipe& recipe);

/// What follows the introduction: energy and protein of a portion, allergens, season, bones, freezing,
/// keeping, each as far as it is known.
Lines factFoot(const Recipe& recipe, const std::optional<Nutrition>& portion);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
