#pragma once

#include <QRect>

/// Where the controls of the printing form stand, in twips.
namespace sarne::printlayout {

inline constexpr QRect kTitle(600, 330, 10800, 480);
inline constexpr QRect kMaterial(600, 840, 10800, 360);

// The options, from the corner of their frame.
inline constexpr QRect kFrame(600, 1320, 10800, 3120);
inline constexpr QRect kFrameTitle(300, 150, 6600, 360);
inline constexpr int kSectionRows = 4;
inline constexpr QRect kFirstSection(240, 630, 3480, 480);
inline constexpr int kSectionColumn = 3600;
inline constexpr int kSectionRow = 570;
inline constexpr QRect kPortionsTitle(7620, 150, 2940, 360);
inline constexpr QRect kPortions(7620, 630, 1320, 480);
inline constexpr QRect kWeights(7560, 1770, 3120, 480);

inline constexpr QRect kPrinterPaper(600, 4620, 8040, 960);
inline constexpr QRect kPrinter(780, 4710, 7680, 780);
inline constexpr QRect kChoosePrinter(8940, 4800, 2460, 600);

inline constexpr QRect kStatus(600, 5760, 10800, 330);
inline constexpr QRect kRecipeBar(600, 6150, 8040, 330);
inline constexpr QRect kRecipeName(600, 6600, 8040, 330);
inline constexpr QRect kListBar(600, 6990, 8040, 330);
inline constexpr QRect kStop(8940, 6330, 2460, 600);
inline constexpr QRect kOutcome(600, 5850, 10800, 1350);

inline constexpr QRect kPrint(3060, 7950, 1860, 600);
inline constexpr QRect kPreview(5070, 7950, 1860, 600);
inline constexpr QRect kClose(7080, 7950, 1860, 600);

}  // namespace sarne::printlayout
