#pragma once

#include "cookbook.h"

namespace sarne::disc {

/// Writes the cookbook as a recipe database at \a file; a database that stood there is replaced, its notes
/// and switches carried over. Nothing is written when the texts have errors.
void writeRecipeDatabase(const Cookbook& book, const QString& file, Problems& problems);

/// Writes the picture database: one row for each picture, in their order.
void writePictureDatabase(const QList<QByteArray>& pictures, const QString& file, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
