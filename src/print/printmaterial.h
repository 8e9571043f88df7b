#pragma once

#include <cstdint>
#include <vector>

#include "print/pagecomposer.h"

namespace sarne {

/// What is to be printed: recipes, or texts that are none.
struct PrintMaterial {
    std::vector<std::int16_t> recipes;
    std::vector<TitledText> texts;

    bool isText() const { return !texts.empty(); }
    int count() const { return static_cast<int>(isText() ? texts.size() : recipes.size()); }
};

}  // namespace sarne
