#pragma once

#include "cookbook.h"
#include "textfile.h"

namespace sarne::disc {

/// Reads the "key: value" lines at the head of a recipe's file. What is unknown, doubled or no value of its
/// key is reported at its own line.
void readRecipeHead(const Lines& lines, const BookFacts& facts, Recipe& recipe, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
