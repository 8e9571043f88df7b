#pragma once

#include "cookbook.h"
#include "textfile.h"

namespace sarne::disc {

/// Reads menu.txt: a topic of the main screen begins at the margin ("téma 2: Sladkovodní ryby"), its items
/// stand below it, two blanks in for each level. Behind "=>" stands where an item leads:
///
///     => kapr, amur         the recipes with one of these tags ("kapr + grilované": with both)
///     => přímo 10           the text 10 as it stands
///     => video 3            a video
///     => heslo Aspik        a keyword's text
///     => nikam              a line that cannot be chosen
void readMenu(const ContentFolder& folder, Cookbook& book, Problems& problems);

/// The rows of the table. In a topic with submenus each list of recipes becomes a level of its own, its
/// first item over the recipes, its second over the quick recipes where there are any.
QList<MenuRow> menuRows(const Cookbook& book, Problems& problems);

/// Reports every row that the program would not show, or would show in a wrong place: a code that is not its
/// level's with one more digit, gaps, a topic's own code, a level out of 16 bits, a submenu without items,
/// more than nine items beside a submenu, a list of ids that does not end in a comma or names no recipe.
void checkMenu(const QList<MenuRow>& rows, const Cookbook& book, Problems& problems);

/// Reports recipes and quick recipes that no row of the menu leads to.
void checkReachable(const QList<MenuRow>& rows, const Cookbook& book, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
