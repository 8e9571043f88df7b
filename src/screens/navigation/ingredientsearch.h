#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace sarne {

class Database;
struct MenuLevel;

/// How many ingredients one search may find: the two-digit counter and the room on the screen both rest on
/// it.
inline constexpr int kMaxFoundIngredients = 84;

/// Writes the ingredients whose names begin with \a text into topic "0" of the table `Menu`, in place of
/// those of the search before; a message line instead when there are none or too many. The text goes into the
/// pattern as it was typed; one that breaks the query finds nothing. A blank text searches nothing and
/// changes nothing: false.
bool searchIngredients(Database& db, const QString& text);

/// What may help where the search has found nothing to choose; empty for a level with something to choose.
QString searchHint(const MenuLevel& level);

/// The ids of the recipes that use the ingredient with this id, in the order of their names.
std::vector<std::int16_t> recipesWithIngredient(Database& db, const QString& ingredient);
/// "3 recepty"
QString recipeCountText(int recipes);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
