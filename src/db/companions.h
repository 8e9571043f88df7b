#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace sarne {

class Database;

/// An auxiliary recipe or reference text that a recipe leads to.
struct RecipeLink {
    int id = 0;
    QString title;
};

/// The kitchen tools that a recipe needs, in alphabetical order.
QStringList recipeTools(Database& db, int recipe);

/// The links of a recipe, in the alphabetical order of their titles.
std::vector<RecipeLink> recipeLinks(Database& db, int recipe);

/// The text of a link, a rich text; nothing when there is no such link.
std::optional<QString> linkText(Database& db, int link);

/// A link's title with its text.
struct LinkDocument {
    QString title, text;
};
/// Those of a recipe in the order of its links, read at once: a recipe may have thousands.
std::vector<LinkDocument> linkDocuments(Database& db, int recipe);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
