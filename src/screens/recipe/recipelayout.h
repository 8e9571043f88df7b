#pragma once

#include <QRect>

/// Where everything stands on the recipe screen, in twips.
namespace sarne::recipelayout {

inline constexpr QRect kHeader{0, 0, 12000, 1230};
inline constexpr QRect kTitle{1770, 75, 8460, 1080};
inline constexpr QRect kStars{10320, 390, 1560, 450};     ///< the user's own, at the header's right
inline constexpr QRect kSections{120, 1350, 2340, 7500};  ///< the ground of the section buttons
inline constexpr QRect kPaper{2580, 1350, 9300, 6510};    ///< the ground of the section that is shown

inline constexpr int kSectionCount = 8;
constexpr QRect section(int index) {
    return {210, 1410 + index * 930, 840, 840};
}
constexpr QRect sectionName(int index) {
    return {1140, 1410 + index * 930, 1260, 840};
}
constexpr QRect sectionRow(int index) {
    return {150, 1380 + index * 930, 2280, 900};
}
static_assert(sectionRow(kSectionCount - 1).bottom() <= kSections.bottom(),
              "more sections than fit below each other");
inline constexpr QRect kBarGround{5100, 7935, 6780, 915};
inline constexpr QRect kBar{5220, 7950, 6540, 885};

inline constexpr QRect kKitchenGround{2580, 7935, 2400, 915};  ///< of the buttons that lead to the stove
inline constexpr QRect kKitchen{2640, 7950, 2280, 885};

inline constexpr QRect kView{2880, 1590, 8400, 6060};  ///< the drawing surface
inline constexpr QRect kPhotoView{2820, 1590, 8820, 6060};
inline constexpr QRect kHalfView{2880, 1590, 4200, 6060};  ///< the drawing surface with a picture beside it
inline constexpr int kSheetRight = 11580,
                     kSheetBottom = kView.y() + kView.height();  ///< of what stands on it
/// The largest place of \a size's proportions in \a room, in its upper right corner.
constexpr QRect fitted(const QRect& room, QSize size) {
    const int w = size.isEmpty() ? 4 : size.width(), h = size.isEmpty() ? 3 : size.height();
    const int height = room.width() * h / w < room.height() ? room.width() * h / w : room.height();
    const int width = height * w / h;
    return {room.x() + room.width() - width, room.y(), width, height};
}
/// What is free of the sheet beside a text that begins at \a top and is \a textWidth wide.
constexpr QRect beside(int top, int textWidth) {
    constexpr int kGap = 300, kLeast = 2400;
    const int left = kView.x() + (textWidth > kLeast ? textWidth : kLeast) + kGap;
    return {left, top + 75, kSheetRight - left, kSheetBottom - top - 75};
}
inline constexpr QRect kListView{2880, 2520, 8400, 5130};  ///< below the cutlery
constexpr QRect cutlery(int position) {
    return {2880 + position * 855, 1530, 780, 780};
}
inline constexpr QRect kWeights{7290, 1530, 780, 780};
inline constexpr QRect kSpoons{8130, 1530, 780, 780};
inline constexpr QRect kPortionText{9000, 1530, 1380, 780};
inline constexpr QRect kFishButton{10380, 1620, 1380, 600};

inline constexpr int kOptionColumns = 2;
inline constexpr int kOptionRows = 4;  ///< rows of link options that show at once
inline constexpr int kOptionHeight = 450;
constexpr QRect option(int row, int column) {
    return {2880 + column * 4200, 1530 + row * kOptionHeight, 4140, kOptionHeight};
}
constexpr QRect optionArrow(int index) {
    return {11370, 1530 + index * 480, 420, 420};
}
/// The drawing surface below \a rows rows of options.
constexpr QRect linkView(int rows) {
    const int top = 1590 + rows * kOptionHeight + 120;
    return {2880, top, 8400, kView.bottom() + 1 - top};
}

inline constexpr QRect kNote{2880, 1590, 8700, 5340};
constexpr QRect noteButton(int index) {
    return {2880 + index * 3060, 7080, 2880, 570};
}

}  // namespace sarne::recipelayout

// SPDX-License-Identifier: GPL-3.0-or-later
