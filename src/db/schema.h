#pragma once

#include <QStringList>

namespace sarne {

/// The name of the collation of every text column: Czech order, case aside. Database registers it.
inline constexpr const char* kCzechCollation = "CESTINA";

/// The statements that make an empty recipe database (Sarne.drc), in order. Numeric keys are `ID`; the join
/// tables carry nothing but the columns that the queries name, and their rows keep the order in which they
/// were stored.
QStringList recipeSchema();

/// How the user's own file came to be: the statements of each version, the first one's first. A file of
/// version n lacks those from n on.
QList<QStringList> userSchema();

/// The statements that make an empty picture database (KOp.bj).
QStringList pictureSchema();

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
