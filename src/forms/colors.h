#pragma once

#include <QColor>

/// The program's colours; each text on its ground keeps a contrast of 4.5 : 1 or better.
namespace sarne::colors {

inline constexpr QColor kCopper(208, 143, 80);
inline constexpr QColor kTitle(225, 225, 125);
inline constexpr QColor kTeal(14, 58, 64);
inline constexpr QColor kNight(11, 34, 38);
inline constexpr QColor kPaper(244, 234, 210);
inline constexpr QColor kInk(43, 29, 18);
inline constexpr QColor kSelected(184, 64, 42);
inline constexpr QColor kGreen(63, 107, 53);

/// How opaque a disabled control and its text are: dimmer, and still 4.5 : 1 to its ground.
inline constexpr double kDisabledFace = .45, kDisabledText = .7;

}  // namespace sarne::colors

// SPDX-License-Identifier: GPL-3.0-or-later
