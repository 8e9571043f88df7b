#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace sarne {

/// A text that is no recipe.
struct TitledText {
    QString title;
    QString richText;  ///< an RTF document, or plain text
};

/// What is to be printed: recipes, or texts that are none.
struct PrintMaterial {
    std::vector<std::int16_t> recipes;
    std::vector<TitledText> texts;

    bool isText() const { return !texts.empty(); }
    int count() const { return static_cast<int>(isText() ? texts.size() : recipes.size()); }
    /// What a document with all of it is called; \a first is what its first part is called.
    QString documentName(const QString& first) const;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
