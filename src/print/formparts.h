#pragma once

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

void dressCheckBox(CheckBox& box, const Resources& resources, const QString& caption);
void dressLabel(Label& label, const TextFont& font, const QColor& color, const QString& text = {});

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
