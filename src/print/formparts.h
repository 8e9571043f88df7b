#pragma once

#include <vector>

#include "forms/button.h"
#include "forms/checkbox.h"
#include "forms/label.h"

namespace sarne {

class Resources;

/// The fonts of the print forms.
namespace printforms {
inline const TextFont kTitleFont{QStringLiteral("Arial"), 17, true};
inline const TextFont kTextFont{QStringLiteral("Arial"), 12};
inline const TextFont kSmallFont{QStringLiteral("Arial"), 11};
inline const TextFont kButtonFont{QStringLiteral("Arial"), 12, true};
}  // namespace printforms

/// Gives \a button its caption, tooltip and the frame of the program's text buttons.
void dressButton(Button& button, const Resources& resources, const QString& caption, const QString& tip);
void dressCheckBox(CheckBox& box, const Resources& resources, const QString& caption);
void dressLabel(Label& label, const TextFont& font, const QColor& color, const QString& text = {});

/// Moves the keyboard from the control of \a order that has it to the next one that can take it, \a step
/// (1 or -1) apart; to the first one when none has it.
void moveFocus(const std::vector<Control*>& order, int step);
/// Does what Tab and Shift+Tab do; false for any other \a key.
bool moveByTab(const std::vector<Control*>& order, int key);
/// Clicks the button of \a order that has the keyboard. False when none has.
bool clickFocused(const std::vector<Control*>& order);

}  // namespace sarne
