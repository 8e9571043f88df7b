#pragma once

#include <QRect>
#include <QString>
#include <vector>

namespace sarne {

/// A message box's style number, taken apart: buttons (0 to 5), icon (0 none, 1 critical, 2 question, 3
/// exclamation, 4 information) and the default button's index.
struct MessageStyle {
    int buttons = 0, icon = 0, defaultButton = 0;
    static MessageStyle split(int style);
};

struct MessageButton {
    QString caption;
    int code;  ///< what the box returns when it is pressed
};

/// The buttons of a set, left to right; none for a set that does not exist.
std::vector<MessageButton> messageButtons(int buttons);
/// The index of the button that Escape presses: Cancel or No where there is one, else the only answer there
/// is.
int escapeButton(int buttons);

/// Where everything of a message box lies, in twips.
struct MessageGeometry {
    QRect label, icon, box;
    std::vector<QRect> buttons;
};

/// A text wider than this is wrapped at exactly this width: half the screen.
inline constexpr int kMessageTextLimit = 6000;

/// The geometry for a label of \a label's size, already wrapped where it had to be. The box's place is the
/// middle of the screen.
MessageGeometry layOutMessage(QSize label, bool hasIcon, int buttonCount);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
