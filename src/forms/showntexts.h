#pragma once

#include <QStringList>

namespace sarne {

class Form;

/// The texts that show on \a form, from the top left to the bottom right: of its labels, text views, surfaces
/// and the user's own words; no captions of buttons.
QStringList shownTexts(const Form& form);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
