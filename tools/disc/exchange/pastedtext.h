#pragma once

#include <optional>

#include "sharedrecipe.h"

namespace sarne::disc {

/// A recipe from a plain text, as it is copied from a letter or a book: the first line is the name; headings
/// like "Suroviny" and "Postup" part the rest, or else short lines that begin with a number or a dash are
/// ingredients and the others are steps.
SharedRecipe fromPastedText(const QString& text, const QStringList& units);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
