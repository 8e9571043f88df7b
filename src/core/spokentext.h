#pragma once

#include <QString>

namespace sarne {

/// \a text as a voice is to read it: units of measure in words ("200 g" as "200 gramů"), ranges with "až",
/// a full stop at the end of every line, so that lists are not run together, and no signs that are only for
/// the eye. Empty when there is no word in it.
QString spokenText(const QString& text);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
