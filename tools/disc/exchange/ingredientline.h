#pragma once

#include "sharedrecipe.h"

namespace sarne::disc {

/// Reads an ingredient as people write it: "250 g hladké mouky", "½ lžičky soli", "sůl podle chuti", "2–3
/// stroužky česneku (prolisovaného)". \a units are the words that count as units besides the common ones.
/// Fractions become decimals; of a range the smaller number is taken; what stands in brackets becomes a
/// refinement.
SharedIngredient readIngredientText(const QString& text, const QStringList& units);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
