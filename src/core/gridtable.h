#pragma once

#include <QRect>
#include <array>
#include <cstdint>
#include <span>

namespace sarne {

/// The photo grid of the fifty recipes, as the composite pictures are painted and as the screen answers: a
/// cell's number is its recipe's id, 1 to 50.
inline constexpr int kGridCells = 50;
inline constexpr int kGridInRow = 7;
/// Soups, warm dishes, cold dishes, festive platters.
inline constexpr int kGridGroups = 4;

/// Where \a cell lies on the composite pictures, in twips of the screen.
constexpr QRect gridCellRect(int cell) {
    return {240 + (cell - 1) % kGridInRow * 1280, 240 + (cell - 1) / kGridInRow * 960, 1240, 930};
}

inline constexpr std::array<std::int16_t, 5> kGridSoups{15, 16, 20, 41, 44};
inline constexpr std::array<std::int16_t, 29> kGridWarm{1,  3,  4,  5,  6,  7,  10, 13, 14, 18,
                                                        19, 23, 24, 26, 27, 28, 30, 32, 33, 34,
                                                        36, 37, 38, 39, 40, 42, 43, 45, 47};
inline constexpr std::array<std::int16_t, 22> kGridCold{2,  5,  8,  9,  11, 12, 13, 17, 19, 21, 22,
                                                        25, 29, 31, 35, 36, 37, 39, 46, 48, 49, 50};
inline constexpr std::array<std::int16_t, 4> kGridFestive{9, 35, 46, 50};

/// The recipe ids of \a group (0 to 3), in their order; none for another number.
constexpr std::span<const std::int16_t> gridGroupIds(int group) {
    constexpr std::span<const std::int16_t> kAll[] = {kGridSoups, kGridWarm, kGridCold, kGridFestive};
    return group >= 0 && group < kGridGroups ? kAll[group] : std::span<const std::int16_t>();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
