#pragma once

#include "cookbook.h"

namespace sarne::disc {

/// The courses that the grid shows \a recipe in; none where it has no cell for it, or where the book does not
/// say what they are called.
QStringList gridCourses(const BookFacts& facts, int recipe);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
