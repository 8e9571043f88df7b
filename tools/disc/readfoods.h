#pragma once

#include "cookbook.h"
#include "textfile.h"

namespace sarne::disc {

/// Reads potraviny.txt, what 100 g of an ingredient (or of an ingredient with a refinement) hold:
///
///     kapr: 115 kcal; 18 g bílkovin; alergeny 4
///
/// The ingredients must have been read. A file that is missing has no foods.
void readFoods(const ContentFolder& folder, Cookbook& book, Problems& problems);

/// Reads hledani.txt: one word a line.
void readSearchWords(const ContentFolder& folder, Cookbook& book);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
