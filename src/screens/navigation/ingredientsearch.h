#pragma once

#include <QString>

namespace sarne {

class Database;

/// How many ingredients one search may find: the two-digit counter and the room on the screen both rest on
/// it.
inline constexpr int kMaxFoundIngredients = 84;

/// Writes the ingredients whose names begin with \a text into topic "0" of the table `Menu`, in place of
/// those of the search before; a message line instead when there are none or too many. The text goes into the
/// pattern as it was typed; one that breaks the query finds nothing. A blank text searches nothing and
/// changes nothing: false.
bool searchIngredients(Database& db, const QString& text);

}  // namespace sarne
