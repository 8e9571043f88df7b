#include <gtest/gtest.h>

#include "disc/markup.h"
#include "disc/recipefacts.h"
#include "smallcookbook.h"

namespace sarne::disc {
namespace {

class FactsTest : public testing::Test {
  protected:
    FactsTest() {
        const ContentFolder folder(small_.path(), problems_);
        book_ = loadCookbook(folder, problems_);
    }

    static std::string text(const Lines& lines) {
        QStringList all;
        for (const Line& line : lines)
            if (!line.isBlank()) all << plainText(line.text).replace(QChar(QChar::Nbsp), u' ');
        return all.join(u'\n').toStdString();
    }

    SmallCookbook small_;
    Problems problems_;
    Cookbook book_;
};

TEST_F(FactsTest, SayWhatTheHeadKnows) {
    Recipe& recipe = book_.recipes[6];
    EXPECT_EQ(text(factLine(recipe)), "Příprava 10 min · vaření 15 min · 2 porce · snadné");
    recipe.ahead = QStringLiteral("12 hodin v chladu");
    recipe.portions = 6;
    recipe.cooking = 0;
    EXPECT_EQ(text(factLine(recipe)), "Příprava 10 min · předem: 12 hodin v chladu · 6 porcí · snadné");
    recipe.preparation = 0;
    EXPECT_EQ(text(factLine(recipe)), "");
}

TEST_F(FactsTest, TheMethodSaysForHowMany) {
    Recipe recipe;
    for (const auto& [count, heading] :
         {std::pair(1, "Postup pro 1 porci"), std::pair(4, "Postup pro 4 porce"),
          std::pair(5, "Postup pro 5 porcí"), std::pair(12, "Postup pro 12 porcí")}) {
        recipe.portions = count;
        EXPECT_EQ(methodHeading(recipe).toStdString(), heading);
    }
}

TEST_F(FactsTest, APortionIsReckonedFromTheWeights) {
    // pstruh 600 g, máslo 60 g, mouka 20 g, citron 100 g, víno 30 ml, for two
    const std::optional<Nutrition> portion = nutrition(book_, book_.recipes[6], problems_);
    ASSERT_TRUE(portion);
    EXPECT_NEAR(portion->energy, (660 + 444 + 70 + 20 + 24) / 2.0, 0.01);
    EXPECT_NEAR(portion->protein, (120 + 0.6 + 2 + 0.6) / 2.0, 0.01);
    EXPECT_EQ(
        text(factFoot(book_.recipes[6], portion)),
        "Jedna porce: asi 610 kcal (2 550 kJ), 62 g bílkovin. Alergeny: 1 lepek, 4 ryby, 7 mléko, 12 oxid "
        "siřičitý.\nSezona: celoročně. Kosti: ano. Mrazit: ne. Vydrží: 1 den v chladu.");
    EXPECT_EQ(text(factFoot(Recipe{}, {})), "");
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
