#pragma once

#include <QString>
#include <cstdint>

namespace sarne {

class basSarne;

/// Opens what a menu item leads to.
///
/// \a item is the item's position in its level, \a level the number of the level's code, \a text what the
/// item leads to: a list of ids, or a number. The menu is hidden first; afterwards the main screen is idle
/// again.
void OpenMenuTarget(basSarne& sarne, std::int16_t item, std::int16_t level, const QString& text);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
