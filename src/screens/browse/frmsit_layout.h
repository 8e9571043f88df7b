#pragma once

#include <QRect>

/// Where the parts of the photo grid's screen stand besides its cells, in twips of the screen. The cells take
/// the left part down to 7890; the last row has one.
namespace sarne::sit {

inline constexpr int kBarButtons = 5;

inline constexpr QRect kName{1760, 7035, 7200, 780};
inline constexpr QRect kNamePlate{1560, 6990, 7600, 870};
inline constexpr QRect kGroupPlate{9360, 240, 2400, 5630};
inline constexpr QRect kWhole{9440, 5000, 2240, 790};
inline constexpr QRect kBarPlate{9360, 6060, 2400, 2690};

constexpr QRect group(int index) {
    return {9440, 320 + index * 1170, 2240, 1110};
}
/// The photo and the recipe above, help, back and end below.
constexpr QRect barButton(int index) {
    constexpr QRect kPlaces[] = {{9440, 6160, 1080, 1080},
                                 {9440, 7620, 730, 730},
                                 {10600, 6160, 1080, 1080},
                                 {10195, 7620, 730, 730},
                                 {10950, 7620, 730, 730}};
    return kPlaces[index];
}

}  // namespace sarne::sit
