#pragma once

#include "cookbook.h"
#include "textfile.h"

namespace sarne::disc {

/// Reads what recipes refer to: units, ingredients, refinements, tools, wines, weights per spoon, and the
/// short tables of settings, videos and quick recipes.
void readTables(const ContentFolder& folder, Cookbook& book, Problems& problems);

/// Reads the running texts: auxiliary recipes, keywords, pages, help topics, the look-up tables and the
/// galleries.
void readArticles(const ContentFolder& folder, Cookbook& book, Problems& problems);

/// A number with a decimal comma, -1 when \a text is none.
double czechNumber(const QString& text);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
