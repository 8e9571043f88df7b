#pragma once

#include <QRect>

/// Where the controls of the printing form stand, in twips: on the left panel what is printed and how, on the
/// right one the pages as they will be.
namespace sarne::printlayout {

inline constexpr QRect kLeftPanel(150, 150, 5775, 8700);
inline constexpr QRect kRightPanel(6075, 150, 5775, 8700);

inline constexpr QRect kTitle(450, 360, 5175, 450);
inline constexpr QRect kMaterial(450, 840, 5175, 330);

// The options, from the corner of their frame.
inline constexpr QRect kFrame(300, 1260, 5475, 3210);
inline constexpr QRect kFrameTitle(240, 120, 5000, 360);
inline constexpr int kSectionRows = 4;
inline constexpr QRect kFirstSection(180, 540, 3000, 450);
inline constexpr int kSectionColumn = 2970;
inline constexpr int kSectionRow = 480;
inline constexpr QRect kPortionsTitle(240, 2610, 1400, 420);
inline constexpr QRect kPortions(1620, 2580, 780, 450);
inline constexpr QRect kWeights(2550, 2580, 2880, 450);

inline constexpr QRect kPrinterPaper(300, 4590, 5475, 1440);
inline constexpr QRect kPrinter(480, 4650, 5115, 780);
inline constexpr QRect kChoosePrinter(3210, 5460, 2400, 480);

inline constexpr QRect kStatus(450, 6120, 5175, 330);
inline constexpr QRect kRecipeBar(450, 6465, 5175, 240);
inline constexpr QRect kRecipeName(450, 6735, 5175, 330);
inline constexpr QRect kListBar(450, 7080, 5175, 240);
inline constexpr QRect kStop(1800, 7425, 2460, 480);
inline constexpr QRect kOutcome(450, 6120, 5175, 1230);
inline constexpr QRect kOpen(1800, 7425, 2460, 480);

inline constexpr QRect kPrint(450, 8100, 1650, 540);
inline constexpr QRect kPreview(2213, 8100, 1650, 540);
inline constexpr QRect kClose(3975, 8100, 1650, 540);

inline constexpr QRect kSheet(6225, 300, 5475, 7650);
inline constexpr QRect kPrevious(6375, 8100, 1200, 540);
inline constexpr QRect kPosition(7650, 8100, 2625, 540);
inline constexpr QRect kNext(10350, 8100, 1200, 540);

}  // namespace sarne::printlayout

// SPDX-License-Identifier: GPL-3.0-or-later
