#include <benchmark/benchmark.h>

#include <QApplication>
#include <random>

#include "kitchen/kitchenbook.h"
#include "kitchen/pantry.h"
#include "screens/kitchen/frmvarime.h"

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

/// To another step at the stove and back, painted on a display of 1920 x 1080; a step has to stay below 16
/// ms.
void turnPage(benchmark::State& state) {
    KitchenRun run;
    run.window.resize(1920, 1080);
    auto* screen = new frmVarime(run, run.file(), {});
    screen->Zobraz(5, {}, {2026, 10, 11});
    press(*screen, Qt::Key_Return);
    for ([[maybe_unused]] auto turn : state) {
        press(*screen, Qt::Key_Right);
        run.window.repaint();
        press(*screen, Qt::Key_Left);
        run.window.repaint();
    }
}
BENCHMARK(turnPage)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sarne

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}

// SPDX-License-Identifier: GPL-3.0-or-later
