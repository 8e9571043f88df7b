#include <benchmark/benchmark.h>

#include <random>

#include "kitchen/pantry.h"

namespace sarne {
namespace {

/// A search over 100,000 recipes of ten ingredients each, of five hundred that there are; it has to stay
/// below 30 ms.
void searchPantry(benchmark::State& state) {
    std::mt19937 random(1);
    std::vector<PantryRecipe> recipes(100'000);
    for (size_t i = 0; i < recipes.size(); ++i) {
        recipes[i].id = static_cast<int>(i);
        recipes[i].name = QString::number(random());
        for (int k = 0; k < 10; ++k) recipes[i].ingredients.push_back(static_cast<int>(random() % 500));
        recipes[i].allergens = static_cast<int>(random() % 64);
        recipes[i].months = static_cast<int>(random() % 4096);
        recipes[i].minutes = static_cast<int>(random() % 90);
    }
    const PantryIndex index(std::move(recipes));
    PantryQuery query{{1, 7, 20, 33, 140, 260, 333, 400}, {12}, 0, 0, 0};
    for ([[maybe_unused]] auto turn : state) benchmark::DoNotOptimize(index.find(query, 200));
}
BENCHMARK(searchPantry)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sarne

BENCHMARK_MAIN();

// SPDX-License-Identifier: GPL-3.0-or-later
