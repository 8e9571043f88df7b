#pragma once

#include <QString>

#include "problems.h"

namespace sarne::disc {

/// Reports what a Czech printer would not let pass in \a text: straight or unpaired quotation marks, three
/// full stops for an ellipsis, a hyphen for a dash, a decimal point, a degree sign without its blank, a
/// fraction written with a slash, doubled blanks and blanks in front of punctuation.
void checkTypography(const QString& text, const Place& place, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
