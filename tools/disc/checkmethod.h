#pragma once

#include "cookbook.h"
#include "stems.h"

namespace sarne::disc {

/// By which words a text may speak of \a ingredient; one that the book is about, also by those of \a
/// mainMark.
QStringList wordsFor(const Ingredient& ingredient, const QString& mainMark, const Stems& stems);

/// Reports what the method and the rest of a recipe tell differently: ingredients that neither the method nor
/// the serving names, tools that it names and the list lacks, times longer than the total, temperatures
/// without a unit, steps out of order.
void checkMethod(const Cookbook& book, const Stems& stems, const Recipe& recipe, Problems& problems);

/// Reports a step whose number does not follow the one before it.
void checkSteps(const Lines& text, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
