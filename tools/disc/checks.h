#pragma once

#include "cookbook.h"
#include "linkbook.h"
#include "stems.h"

namespace sarne::disc {

/// What link phrases of this cookbook may lead to. Two keywords that share a name are an error.
LinkBook linkBook(const Cookbook& book, Problems& problems);

/// Reports what is wrong with each recipe and between the parts of the cookbook: names that lead nowhere,
/// entries that nothing uses, tags and words that find nothing, settings, pages and numbers that the program
/// relies on.
void checkCookbook(const Cookbook& book, const Stems& stems, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
