#include "screens/navigation/sweep.h"

#include <gtest/gtest.h>

#include <map>

namespace sarne {
namespace {

TEST(Sweep, EachThingGlowsUpOnceAndGoesOutAgain) {
    Sweep sweep;
    EXPECT_FALSE(sweep.isRunning());
    sweep.start({4, 6, 0});
    std::map<int, double> brightest;
    int steps = 0;
    for (; sweep.isRunning() && steps < 1000; ++steps) {
        EXPECT_LE(sweep.lit().size(), 3u);
        for (const int thing : {0, 4, 6}) brightest[thing] = std::max(brightest[thing], sweep.glow(thing));
        sweep.step();
    }
    EXPECT_EQ(steps, 3 * Sweep::kRise + Sweep::kFade);
    for (const int thing : {0, 4, 6}) {
        EXPECT_EQ(brightest[thing], 1) << thing;
        EXPECT_EQ(sweep.glow(thing), 0) << thing;
    }
    sweep.start({4, 6});
    EXPECT_EQ(sweep.lit(), std::vector<int>{4}) << "in their order";
    EXPECT_EQ(sweep.glow(9), 0);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
