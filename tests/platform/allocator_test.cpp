#include "platform/allocator.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/memory.h"

namespace sarne {
namespace {

/// In a process of its own: how memory is taken is settled before there is any.
TEST(AllocatorTest, WhatIsFreedGoesBackToTheSystem) {
    giveMemoryBack();
    std::vector<std::vector<char>> pictures, small;
    pictures.emplace_back(16 << 20);
    pictures.clear();  // after which an allocator may keep what is smaller
    for (int i = 0; i < 100; ++i) {
        pictures.emplace_back(320 << 10, 'x');
        small.emplace_back(64, 'x');
    }
    const double held = heldMemory(), before = ownMemory();
    pictures.clear();
    EXPECT_GT(before - ownMemory(), 31e6);  // of nearly thirty-three
    EXPECT_NEAR(held - heldMemory(), 100 * (320 << 10), 2e6);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
