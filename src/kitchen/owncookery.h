// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <vector>

namespace sarne {

class Database;
class UserFile;

/// A recipe of the book with what the user has made of it.
struct OwnRecipe {
    int id = 0;
    QString name;
    int stars = 0;
    QDateTime opened;           ///< when it was looked at last
    std::vector<QDate> cooked;  ///< the last day first
    QString note;
    int months = 0;         ///< bit n - 1 for month n; 0 where it is not known
    QStringList occasions;  ///< feasts and times of year it is for

    /// Whether it is cooked all the year round.
    bool isForAllYear() const;
};

/// All recipes of the book. What the user has made of a recipe is found by its name: another edition of the
/// book may number otherwise.
std::vector<OwnRecipe> readOwnRecipes(Database& book, UserFile& file);

/// How the user's own cookbook is opened.
enum class Shelf { Starred, Cooked, Noted, Opened, ThisMonth };
inline constexpr int kShelves = 5;

/// The recipes of a shelf, the one that matters most first: the most stars, the last day, the last look, the
/// feast before the season. \a today decides what this month is for.
std::vector<OwnRecipe> onShelf(std::vector<OwnRecipe> all, Shelf shelf, QDate today);

/// Why a recipe is one for the month of \a today: "Vánoce", "v sezoně"; nothing when it is not.
QString reasonThisMonth(const OwnRecipe& recipe, QDate today);

}  // namespace sarne
