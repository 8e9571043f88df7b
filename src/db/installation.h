#pragma once

#include <QString>
#include <vector>

#include "db/notestore.h"

namespace sarne {

/// The recipe database that a run works on, and what of an older copy of the user's is not in it.
struct RecipeDatabase {
    QString file;                    ///< native path
    std::vector<KeptNote> homeless;  ///< notes of an older copy whose recipes the newer one does not have
};

/// Which recipe database a run works on: \a shipped, the file beside the program, where that can be written;
/// otherwise \a ownCopy, made from it on first use and made anew, with the user's notes and switches carried
/// over, when the shipped file is another edition (by the number and the digest stored in it, see bookFact())
/// or when the copy is damaged. An own copy that is not wholly readable is kept beside the new one under a
/// dated name. Where no sound copy can be had, \a shipped.
RecipeDatabase usableRecipeDatabase(const QString& shipped, const QString& ownCopy);

/// What was carried from one recipe database to another.
struct CarriedData {
    bool stored = false;  ///< the other file took it; else it is unchanged
    std::vector<KeptNote> homeless;
};

/// Copies the user's notes and switches from one recipe database to another, each by its key, so that one row
/// that cannot be read costs no other.
CarriedData carryOverUserData(const QString& from, const QString& to);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
