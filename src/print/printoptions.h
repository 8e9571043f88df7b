#pragma once

#include <array>

#include "core/quantities.h"

namespace sarne {

/// The sections of a printed recipe, in the order in which they are printed.
enum class PrintSection { Photo, Ingredients, Texts, Serving, Wine, OwnNote, Tools, Links };
inline constexpr int kPrintSections = 8;

/// What the user wants on paper.
struct PrintOptions {
    std::array<bool, kPrintSections> sections{true, true, true, true, true, true, true, true};
    double portions = 4;
    UnitSystem units = UnitSystem::Weights;  ///< weights stand beside the spoons; spoons stand alone

    bool wants(PrintSection section) const { return sections[static_cast<size_t>(section)]; }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
