#pragma once

#include <QRect>

/// Where the list's parts stand, in twips of the screen.
namespace sarne::seznam {

inline constexpr int kRows = 15;
inline constexpr int kArrows = 4;
inline constexpr int kActions = 3;
inline constexpr int kBarButtons = 5;

inline constexpr QRect kHeader{300, 220, 11400, 680};
inline constexpr QRect kTitle{520, 260, 6800, 600};
inline constexpr QRect kPosition{8000, 260, 3500, 600};

inline constexpr QRect kPaper{300, 1080, 7250, 7620};
inline constexpr QRect kArrowPlate{6760, 1200, 680, 7380};
inline constexpr QRect kTrack{7045, 2740, 110, 4250};

inline constexpr QRect kPanel{7850, 1080, 3850, 2938};
inline constexpr QRect kPhoto{7950, 1180, 3650, 2738};
inline constexpr QRect kWineText{8070, 1300, 3410, 2498};
inline constexpr QRect kActionPlate{7850, 4240, 3850, 1760};
inline constexpr QRect kBarPlate{7850, 7680, 3850, 1020};

constexpr QRect row(int row) {
    return {1180, 1290 + (row - 1) * 480, 5500, 480};
}
constexpr QRect rowBar(int number) {
    const QRect at = row(number);
    return {at.x() - 200, at.y() + 20, at.width() + 280, at.height() - 40};
}
constexpr QRect apple(int number) {
    return {480, row(number).y() + 30, 420, 420};
}
/// Down by one, up by one, half a page up, half a page down; the outer ones are the fast ones.
constexpr QRect arrow(int index) {
    constexpr int kTops[] = {7080, 2000, 1290, 7790};
    return {6780, kTops[index], 640, 640};
}
constexpr QRect action(int place) {
    return {7950 + place * 1260, 4340, 1130, 1130};
}
constexpr QRect actionWord(int place) {
    return {7950 + place * 1260 - 60, 5520, 1250, 360};
}
constexpr QRect barButton(int place) {
    return {7910 + place * 750, 7830, 730, 730};
}

}  // namespace sarne::seznam
