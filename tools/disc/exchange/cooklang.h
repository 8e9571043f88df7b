#pragma once

#include "sharedrecipe.h"

namespace sarne::disc {

/// A recipe in Cooklang: metadata, a paragraph with all ingredients, the steps, a section for each further
/// text.
QString toCooklang(const SharedRecipe& recipe);

/// A recipe from Cooklang, whoever wrote it: ingredients, tools and times stand in the steps' text and are
/// collected from it.
SharedRecipe fromCooklang(const QString& text, const QStringList& units);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
