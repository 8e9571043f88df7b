#pragma once

#include <QString>

#include "db/ingredients.h"
#include "db/recordset.h"

namespace sarne {

/// Everything there is to read about a recipe, as plain text with lines ended by "\r\n": the ingredients with
/// the number of portions first, the texts of \a recipe under its title, the own note, the tools, and the
/// links with their texts. \a recipe is the open record of the recipe \a id.
QString collectedText(Database& db, const Recordset& recipe, int id, UnitSystem units,
                      const Quantities& quantities);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
