#pragma once

#include <QStringList>

namespace sarne {

class Form;

/// The texts that show on \a form, from the top left to the bottom right: of its labels, text views, surfaces
/// and the user's own words; no captions of buttons.
QStringList shownTexts(const Form& form);
/// What \a form says when it is read aloud: the same, with the rows of its lists and tables that are in sight
/// and its switches. Where nothing is written, what there is to choose from.
QStringList textsToRead(const Form& form);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
