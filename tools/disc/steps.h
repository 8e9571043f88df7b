#pragma once

#include "cookbook.h"
#include "stems.h"

namespace sarne::disc {

/// Which text of a recipe stands in front of one: its method, or how it is served.
enum class StepText { method, serving };

/// Takes what stands in braces out of a text, so that it is printed without it.
QList<ShareMark> takeShareMarks(Lines& text, StepText kind, Problems& problems);

/// The steps of a recipe, the serving as the last one, with what each takes of the ingredients. What the
/// method gives in braces goes where it stands: a fraction ("polovina"), an amount in one of the ingredient's
/// units ("2 lžíce"), "zbytek", "vše"; the shares of an ingredient must make up the whole of it. An
/// ingredient without braces goes whole to the first step that speaks of it.
QList<RecipeStep> cookingSteps(const Cookbook& book, const Stems& stems, const Recipe& recipe,
                               Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
