#pragma once

#include <QString>

namespace sarne {

/// Which recipe database a run works on, as a native path. It is \a shipped, the file beside the program,
/// where that can be written; otherwise \a ownCopy, made from it on first use and made anew, with the user's
/// notes and settings carried over, when the shipped file has changed since. \a shipped again where no copy
/// can be made.
QString usableRecipeDatabase(const QString& shipped, const QString& ownCopy);

/// Copies the user's notes and switches from one recipe database to another that is alike. Notes of recipes
/// that the other does not have are left out. False, and the target unchanged, when it cannot be written.
bool carryOverUserData(const QString& from, const QString& to);

}  // namespace sarne
