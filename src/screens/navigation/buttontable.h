#pragma once

#include <QRect>
#include <QString>
#include <array>
#include <vector>

#include "forms/focusorder.h"

namespace sarne {

inline constexpr int kButtonCount = 21;
inline constexpr int kExitButton = 0;
inline constexpr int kMusicButton = 7;

/// What is known of one button of the main screen, in twips.
struct ButtonPlace {
    QPoint position;  ///< where its animation is drawn, and where its menu unfolds
    QSize frame;      ///< the size of its animation's frames
    QRect hotArea;    ///< where it is pointed at; empty for a button that has no place
    bool isShown() const { return !hotArea.isEmpty(); }
};

using ButtonTable = std::array<ButtonPlace, kButtonCount>;

/// The main screen's buttons, with hot areas and frame sizes from the art's layout \a text: a line for each
/// button with its index, hot area (left, top, width, height) and frame size (width, height). A button that
/// the text does not name, or names badly, gets a square of its own at its position. Buttons 19 and 20 have
/// no place.
ButtonTable buttonTable(const QString& text);

/// The button nearest to \a from in \a direction; \a from itself when there is none further that way.
int nearestButton(const ButtonTable& table, int from, Direction direction);
/// The buttons that have a place, from the upper left to the lower right, in rows as people read them.
std::vector<int> readingOrder(const ButtonTable& table);
/// The button before (-1) or behind (1) \a from in reading order, going round at the ends; the first one, or
/// for a step back the last one, when \a from is no button.
int buttonInReadingOrder(const ButtonTable& table, int from, int step);
int firstButton(const ButtonTable& table);
int lastButton(const ButtonTable& table);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
