#include "platform/allocator.h"

#ifdef SARNE_JEMALLOC

#include <jemalloc/jemalloc.h>

#include <cstddef>
#include <cstdint>

extern "C" {
/// Read by jemalloc when it begins: one arena, for threads seldom ask at once. What is free goes back after a
/// second, pictures (from 256 KiB) as soon as they are.
__attribute__((visibility("default"))) const char* malloc_conf =  // NOLINT: the name is given
    "narenas:1,oversize_threshold:262144,dirty_decay_ms:1000,muzzy_decay_ms:0";
}

namespace sarne {

void giveMemoryBack() {}  // it does by itself

double heldMemory() {
    mallctl("arena.0.purge", nullptr, nullptr, nullptr, 0);
    std::uint64_t now = 1;
    mallctl("epoch", nullptr, nullptr, &now, sizeof now);
    std::size_t held = 0, size = sizeof held;
    return mallctl("stats.allocated", &held, &size, nullptr, 0) == 0 ? double(held) : 0;
}

}  // namespace sarne

#else

#include <malloc.h>

namespace sarne {

void giveMemoryBack() {
#ifdef M_MMAP_THRESHOLD
    // Left to itself the allocator would, after the first large picture, keep the room of the next ones, and
    // each thread would keep a heap of its own that is seldom full.
    constexpr int kPicture = 256 * 1024;
    mallopt(M_MMAP_THRESHOLD, kPicture);
    mallopt(M_TRIM_THRESHOLD, 2 * kPicture);
    mallopt(M_ARENA_MAX, 1);
#endif
}

double heldMemory() {
    malloc_trim(0);
    const struct mallinfo2 heap = mallinfo2();
    return double(heap.uordblks + heap.hblkhd);
}

}  // namespace sarne

#endif

// SPDX-License-Identifier: GPL-3.0-or-later
