#pragma once

#include <array>

namespace sarne {

/// The sections of a printed recipe, in the order in which they are printed.
enum class PrintSection { Photo, Ingredients, Texts, Serving, Wine, OwnNote, Tools, Links };
inline constexpr int kPrintSections = 8;

/// What the user wants on paper.
struct PrintOptions {
    std::array<bool, kPrintSections> sections{true, true, true, true, true, true, true, true};
    double portions = 4;
    bool weights = true;  ///< quantities by weight besides those by the spoon

    bool wants(PrintSection section) const { return sections[static_cast<size_t>(section)]; }
};

}  // namespace sarne
