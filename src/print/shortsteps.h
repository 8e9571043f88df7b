#pragma once

#include <QStringList>

namespace sarne {

/// The steps of a recipe, each by its first \a sentences: the numbered paragraphs of its plain \a text; where
/// none is numbered, all but the short ones that are headings.
QStringList stepsInShort(const QString& text, int sentences);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
