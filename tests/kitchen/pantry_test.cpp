#include <gtest/gtest.h>

#include "kitchen/pantry.h"

namespace sarne {
namespace {

constexpr int kMilk = 1 << 6;

/// kapr 1, máslo 2, losos 3, smetana 4, losos uzený 5.
PantryIndex book() {
    return PantryIndex({{1, QStringLiteral("Kapr na másle"), {1, 2}, kMilk, 0b111000000111, 40},
                        {2, QStringLiteral("Losos se smetanou"), {3, 4, 2}, kMilk, 0xfff, 25},
                        {3, QStringLiteral("Čistý kapr"), {1}, 0, 0, 90},
                        {4, QStringLiteral("Chlebíčky"), {5, 2}, kMilk, 0xfff, 0}});
}

QString found(const PantryQuery& query) {
    const PantryIndex index = book();
    QStringList all;
    for (const PantryMatch& match : index.find(query, 10))
        all << QStringLiteral("%1:%2").arg(index.recipe(match.recipe).id).arg(match.missing);
    return all.join(u' ');
}

TEST(Pantry, TheLeastMissingComesFirstThenTheMostUsedThenTheName) {
    EXPECT_EQ(found({{1, 2}, {}, 0, 0, 0}), QStringLiteral("1:0 3:0 4:1 2:2"));
    EXPECT_EQ(found({{2}, {}, 0, 0, 0}), QStringLiteral("4:1 1:1 2:2"));  // Ch stands behind H, before K
    EXPECT_EQ(found({{77, -1}, {}, 0, 0, 0}), QString());
    EXPECT_EQ(found({}), QStringLiteral("3:1 4:2 1:2 2:3"));  // with nothing chosen all are there
}

TEST(Pantry, WhatMustNotBeInARecipeKeepsItOut) {
    EXPECT_EQ(found({{1, 2}, {4}, 0, 0, 0}), QStringLiteral("1:0 3:0 4:1"));
    EXPECT_EQ(found({{1, 2}, {2}, 0, 0, 0}), QStringLiteral("3:0"));
    EXPECT_EQ(found({{1, 2}, {}, kMilk, 0, 0}), QStringLiteral("3:0"));
    EXPECT_EQ(found({{1, 2}, {}, 0, 7, 0}), QStringLiteral("3:0 4:1 2:2"));  // carp is out of season in July
    EXPECT_EQ(found({{1, 2}, {}, 0, 1, 0}), QStringLiteral("1:0 3:0 4:1 2:2"));
    EXPECT_EQ(found({{1, 2}, {}, 0, 0, 30}), QStringLiteral("2:2"));  // an unknown time is no short one
}

TEST(Pantry, NamesWhatIsMissing) {
    const PantryIndex index = book();
    const PantryQuery query{{2, 3}, {}, 0, 0, 0};
    const auto matches = index.find(query, 1);
    ASSERT_EQ(matches.size(), 1u);
    EXPECT_EQ(index.missing(matches[0].recipe, query), std::vector<int>{4});
    EXPECT_TRUE(PantryIndex().find(query, 5).empty());
}

TEST(Pantry, AnyWordOfANameIsFoundByItsBeginning) {
    const std::vector<PantryIngredient> all{{3, QStringLiteral("losos")},
                                            {5, QStringLiteral("losos uzený")},
                                            {6, QStringLiteral("Řepa červená")},
                                            {7, QStringLiteral("olej")},
                                            {8, QStringLiteral("řízek z oleje")}};
    EXPECT_EQ(namesWithWord(all, QStringLiteral("olej")), (std::vector<int>{3, 4}));
    EXPECT_EQ(namesWithWord(all, QStringLiteral("z")), (std::vector<int>{4}));
    EXPECT_EQ(namesWithWord({{1, QStringLiteral("hlava kapří")}, {2, QStringLiteral("kapr")}},
                            QStringLiteral("kapr")),
              (std::vector<int>{1, 0}));
    EXPECT_EQ(namesWithWord(all, QStringLiteral("los")), (std::vector<int>{0, 1}));
    EXPECT_EQ(namesWithWord(all, QStringLiteral("UZE")), (std::vector<int>{1}));
    EXPECT_EQ(namesWithWord(all, QStringLiteral("cerv")), (std::vector<int>{2}));
    EXPECT_EQ(namesWithWord(all, QStringLiteral("ř")), (std::vector<int>{2, 4}));
    EXPECT_EQ(namesWithWord(all, QStringLiteral("sos")), std::vector<int>{});
    EXPECT_EQ(namesWithWord(all, QStringLiteral("  ")).size(), 5u);
}

TEST(Pantry, OnlyAllergensThatTellRecipesApartAreWorthAsking) {
    EXPECT_EQ(PantryIndex(
                  {{1, QStringLiteral("a"), {1}, 0b1001, 0, 0}, {2, QStringLiteral("b"), {1}, 0b1100, 0, 0}})
                  .tellingAllergens(),
              0b0101);
    EXPECT_EQ(PantryIndex(std::vector<PantryRecipe>{}).tellingAllergens(), 0);
    EXPECT_EQ(allergenName(9), QStringLiteral("celer"));
    EXPECT_EQ(allergenName(15), QString());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
