#pragma once

#include <memory>
#include <span>

#include "screens/recipe/recipesection.h"

namespace sarne {

/// The sections of a recipe, in the order of their buttons. Another one is a class and a row.
struct SectionKind {
    const char* name;     ///< what it is called, on its button and for those who hear it
    const char* picture;  ///< of its button
    std::unique_ptr<RecipeSection> (*make)(const SectionRoom& room);

    QString title() const { return QString::fromUtf8(name); }
};

std::span<const SectionKind> sectionKinds();

}  // namespace sarne
