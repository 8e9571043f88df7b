#pragma once

#include <QRect>

/// Where the list's parts stand, in twips of the screen. The sheet, the panel and the bar are where the
/// screen's ground shows them.
namespace sarne::seznam {

inline constexpr int kRows = 14;
inline constexpr int kArrows = 4;
inline constexpr int kActions = 3;

inline constexpr QRect kHeader{-200, -200, 12400, 1200};
inline constexpr QRect kSheet{225, 1260, 7125, 6915};
inline constexpr QRect kSide{7575, 1260, 4200, 6915};
inline constexpr QRect kFoot{225, 8340, 11550, 555};

inline constexpr QRect kTitle{480, 220, 9000, 640};
inline constexpr QRect kPosition{480, 8360, 2600, 515};
inline constexpr QRect kHint{3100, 8360, 8450, 515};

inline constexpr QRect kArrowPlate{6640, 1390, 640, 6660};
inline constexpr QRect kTrack{6905, 2740, 110, 3950};

inline constexpr QRect kPanel{7675, 1370, 4000, 3050};
inline constexpr QRect kPhoto{7775, 1470, 3800, 2850};
inline constexpr QRect kInvitation{700, 2130, 2400, 560};  ///< in the photo's frame
inline constexpr QRect kWineText{7900, 1600, 3550, 2590};

/// How far rows are apart: a list that fits into half of them has larger ones, which fill the sheet, and one
/// of no more than three dishes rows with their photos.
inline constexpr int kPitch = 478, kLargePitch = 2 * kPitch;
inline constexpr int kCards = 3, kCardPitch = kRows * kPitch / kCards;
constexpr QRect row(int row, int pitch = kPitch) {
    return {1020, 1375 + (row - 1) * pitch, 5400, pitch};
}
constexpr QRect rowBar(int number, int pitch = kPitch) {
    const QRect at = row(number, pitch);
    const int gap = pitch < kLargePitch ? 20 : 60;     // a long name has two lines
    const int wider = pitch < kCardPitch ? 330 : 930;  // over the place of the arrows
    return {at.x() - 180, at.y() + gap, at.width() + wider, at.height() - 2 * gap};
}
/// In front of the name.
constexpr QRect cardPhoto(int number) {
    const QRect bar = rowBar(number, kCardPitch);
    constexpr int kEdge = 90;
    const int height = bar.height() - 2 * kEdge;
    return {bar.x() + kEdge, bar.y() + kEdge, height * 4 / 3, height};
}
constexpr QRect apple(int number, int pitch = kPitch) {
    return {360, row(number, pitch).y() + (pitch - 420) / 2, 420, 420};
}
/// Down by one, up by one, half a page up, half a page down; the outer ones are the fast ones.
constexpr QRect arrow(int index) {
    constexpr int kTops[] = {6760, 2060, 1430, 7400};
    return {6660, kTops[index], 600, 600};
}
/// One of \a count actions, which stand in the middle of the panel.
constexpr QRect action(int place, int count = kActions) {
    return {7800 + (kActions - count) * 650 + place * 1300, 4620, 1150, 1500};
}
/// Behind the framed picture of an action.
constexpr QRect actionPlate(int place, int count = kActions) {
    return {action(place, count).x() - 10, action(place, count).y() - 30, 1170, 1110};
}
inline constexpr QRect kBar{7600, 6860, 4150, 1140};

}  // namespace sarne::seznam

// SPDX-License-Identifier: GPL-3.0-or-later
