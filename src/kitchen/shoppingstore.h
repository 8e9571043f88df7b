#pragma once

#include "kitchen/shoppinglist.h"

namespace sarne {

class UserFile;

/// The shopping list as the user's file keeps it; an empty one where there is none.
ShoppingList readShoppingList(UserFile& file);
/// Keeps it; true when it is on the disk. The file holds the old list or the new one, never a part.
bool storeShoppingList(UserFile& file, const ShoppingList& list);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
