#pragma once

#include "cookbook.h"

namespace sarne::disc {

/// Writes the cookbook as a recipe database at \a file; a database that stood there is replaced, its notes
/// and switches carried over. Nothing is written when the texts have errors. \a digest names what the book
/// was made from; with the edition's number it tells the program one book from another.
void writeRecipeDatabase(const Cookbook& book, const QString& file, Problems& problems,
                         const QString& digest = {});

/// Writes the picture database: one row for each picture, in their order.
void writePictureDatabase(const QList<QByteArray>& pictures, const QString& file, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
