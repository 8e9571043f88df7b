#pragma once

#include <optional>

#include "sharedrecipe.h"

namespace sarne::disc {

/// A recipe as schema.org/Recipe in JSON-LD. Steps are readable text; how this book writes them (links,
/// shares) and the rest of the head stand beside in properties of its own, "sarne:…", which others skip.
QByteArray toJsonLd(const SharedRecipe& recipe);

/// The first schema.org/Recipe in a saved web page, or in a file of JSON-LD itself. Empty when there is none.
std::optional<SharedRecipe> fromJsonLd(const QString& page, const QStringList& units);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
