#pragma once

#include <QString>

#include "db/recordset.h"

namespace sarne {

class Database;

/// The cookbook's queries: the only place where their texts stand. A query that fails finds nothing.
namespace queries {

/// The rows of `Menu` whose codes are like \a pattern, in the order of the codes.
Recordset menuRows(Database& db, const QString& pattern);
/// What the menu item reads that plays the film \a number; empty when there is none.
QString filmTitle(Database& db, int number);
/// Clears topic "0" of `Menu`, the results of the ingredient search.
bool clearFoundIngredients(Database& db);
/// The ingredients whose names begin with \a text, which goes into the pattern as it was typed.
Recordset ingredientsBeginning(Database& db, const QString& text);
/// `Nazev` and `ID` of the recipes that use the ingredient with this id, in the order of their names.
Recordset recipesWithIngredient(Database& db, const QString& ingredient);

/// What a recipe is made of, in the stored order.
Recordset recipeIngredients(Database& db, int recipe);
/// The steps of a recipe in their order; what each of them takes of the ingredients.
Recordset recipeSteps(Database& db, int recipe);
Recordset stepNeeds(Database& db, int recipe);
/// The names of a recipe's tools in alphabetical order.
Recordset recipeTools(Database& db, int recipe);
/// `ID_Polozky` and name of a recipe's links in the order of their names.
Recordset recipeLinks(Database& db, int recipe);
/// The same with their texts, as they are printed and collected.
Recordset printedLinks(Database& db, int recipe);
/// The names of the wines that go with a recipe.
Recordset recipeWines(Database& db, int recipe);
/// The text of one link.
Recordset linkText(Database& db, int link);

/// All index keywords in alphabetical order.
Recordset keywords(Database& db);
/// The rows of look-up table \a table in their order.
Recordset tableRows(Database& db, int table);
/// All pages of text, without their texts.
Recordset pages(Database& db);
/// The pictures of a gallery's topic; the areas of one of them.
Recordset galleryPictures(Database& db, int topic);
Recordset galleryAreas(Database& db, int picture);
/// All records of the picture database.
Recordset screenPictures(Database& pictures);

}  // namespace queries
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
