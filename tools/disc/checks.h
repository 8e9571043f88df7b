#pragma once

#include "cookbook.h"
#include "linkbook.h"

namespace sarne::disc {

/// What link phrases of this cookbook may lead to. Two keywords that share a name are an error.
LinkBook linkBook(const Cookbook& book, Problems& problems);

/// Reports what is wrong between the parts of the cookbook: recipes without a fish, a name or a text, weights
/// and spoons that disagree, courses that the photo grid shows elsewhere, names that lead nowhere, entries
/// that nothing uses, settings, pages and numbers that the program relies on.
void checkCookbook(const Cookbook& book, Problems& problems);

}  // namespace sarne::disc
