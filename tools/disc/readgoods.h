#pragma once

#include "cookbook.h"
#include "textfile.h"

namespace sarne::disc {

/// Reads obchod.txt, which may be missing: the shop's departments with their ingredients, what everyone has
/// at home, what the cook makes of the goods, what is left of a whole fish. Reports names that nothing is
/// called, and ingredients that stand in no department.
void readGoods(const ContentFolder& folder, Cookbook& book, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
