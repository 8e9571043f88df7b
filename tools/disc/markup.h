#pragma once

#include <QString>

#include "linkbook.h"
#include "problems.h"
#include "textfile.h"

namespace sarne::disc {

/// The texts of the cookbook are written in a light markup, paragraphs parted by blank lines:
///
///     # Heading
///     1. A numbered step, its further lines simply going on.
///     **bold**, _italic_, [phrase] or [phrase -> keyword] or [phrase -> video 3]
///
/// and become RTF as the program's renderer reads it. A change of font counts for whole words, because the
/// renderer draws a word in the font in force at its end.
QString toRtf(const Lines& lines, const QString& heading, const LinkBook& links, Problems& problems);

/// \a line as a reader sees it: the markup gone, the phrases of links left.
QString plainText(const QString& line);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
