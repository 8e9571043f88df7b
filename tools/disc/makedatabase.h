#pragma once

#include "workshop.h"

namespace sarne::disc {

/// What the recipe database is made from: all texts.
QString databaseOrigin(const ContentFolder& folder);

/// Proofreads the cookbook and writes the recipe database.
void makeDatabase(Workshop& shop, const ContentFolder& folder);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
