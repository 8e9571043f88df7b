#pragma once

namespace sarne {

class Tour;

/// Opens all recipes, from the first on, at method and introduction, and keeps a picture of each and of the
/// foot of the introduction. The builder writes lines of facts there, from a recipe's head and its
/// ingredients; a fault is a line that is missing, that cannot be scrolled to, or of which a word lies
/// outside the section's paper or cannot be told from it.
void recipeFacts(Tour& tour);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
