#pragma once

#include <QString>
#include <optional>

namespace sarne {

class Database;

/// The fish that a recipe is about, and for how many people what was bought of it is enough.
struct MainFish {
    /// How the fish was bought.
    enum class Bought { AsInTheList, Whole };

    QString name;           ///< as the list of ingredients calls it
    double grams = 0;       ///< that the recipe takes
    int portions = 0;       ///< for so many
    double wholeShare = 1;  ///< of a whole fish, what is left of it for the recipe

    /// Whether a whole fish would have to be cut up for the recipe first.
    bool isCut() const { return wholeShare < 1; }
    /// The portions, to one decimal, for which \a bought grams are enough; 0 for nothing bought.
    double portionsFor(double bought, Bought how) const;
};

/// The main fish of a recipe; nothing where the book knows none, or does not weigh it.
std::optional<MainFish> mainFish(Database& db, int recipe);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
