#pragma once

#include <QRect>

/// Where the parts of the photo grid's screen stand besides its cells, in twips of the screen. The cells take
/// the left part down to 7890; the last row has one.
namespace sarne::sit {

inline constexpr QRect kName{1760, 7035, 7200, 780};
inline constexpr QRect kNamePlate{1560, 6990, 7600, 870};
inline constexpr QRect kGroupPlate{9290, 240, 2490, 5630};
inline constexpr QRect kWhole{9360, 5000, 2350, 790};
inline constexpr QRect kBarPlate{9290, 6060, 2490, 2690};

constexpr QRect group(int index) {
    return {9360, 320 + index * 1170, 2350, 1110};
}
/// The photo and the recipe above, help, back and end below.
constexpr QRect barButton(int index) {
    constexpr QRect kPlaces[] = {{9330, 6150, 1200, 1380},
                                 {9330, 7580, 920, 1120},
                                 {10540, 6150, 1200, 1380},
                                 {10250, 7580, 740, 1120},
                                 {10990, 7580, 740, 1120}};
    return kPlaces[index];
}

}  // namespace sarne::sit

// SPDX-License-Identifier: GPL-3.0-or-later
