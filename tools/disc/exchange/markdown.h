#pragma once

#include "sharedrecipe.h"

namespace sarne::disc {

/// A recipe as a Markdown page, to be read and printed.
QString toMarkdown(const SharedRecipe& recipe);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
