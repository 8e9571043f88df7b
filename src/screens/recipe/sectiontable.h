#pragma once

#include <memory>
#include <span>

#include "core/texts.h"
#include "forms/buttonbar.h"
#include "screens/recipe/recipesection.h"

namespace sarne {

/// The sections of a recipe, in the order of their buttons. Another one is a class and a row.
struct SectionKind {
    BarFace face;  ///< of its button; the tip is what the section is called
    std::unique_ptr<RecipeSection> (*make)(const SectionRoom& room);

    QString title() const { return Texts::tr(face.tip); }
};

std::span<const SectionKind> sectionKinds();

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
