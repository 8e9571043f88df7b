#include "screens/navigation/ornaments.h"

#include <gtest/gtest.h>

namespace sarne {
namespace {

TEST(Ornaments, MoveRarelyAndRestBetween) {
    Ornaments ornaments;
    int resting = 0, moves[Ornaments::kThings] = {};
    constexpr int kMinute = 60'000 / Ornaments::kInterval;
    for (int step = 0; step < kMinute; ++step) {
        bool any = false;
        for (int thing = 0; thing < Ornaments::kThings; ++thing) {
            const bool moving = ornaments.phase(Ornaments::Thing(thing)) >= 0;
            any |= moving;
            moves[thing] += moving;
        }
        EXPECT_EQ(ornaments.stepsUntilMove() == 0, any) << step;
        resting += !any;
        ornaments.step();
    }
    for (const int moved : moves) {
        EXPECT_GT(moved, 0);
        EXPECT_LT(moved, kMinute / 3) << "rests most of the time";
    }
    EXPECT_GT(resting, kMinute / 4) << "often nothing moves at all";
    ornaments.rest();
    ornaments.skip(ornaments.stepsUntilMove());
    EXPECT_GE(ornaments.phase(Ornaments::kCandle), 0) << "what was skipped was rest only";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
