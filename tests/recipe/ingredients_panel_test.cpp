#include <gtest/gtest.h>

#include "recipe/recipefixture.h"
#include "screens/recipe/ingredientcolumns.h"
#include "screens/recipe/portions.h"

namespace sarne {
namespace {

class IngredientPanelTest : public RecipeTest {
  protected:
    IngredientPanelTest() { click("imgBtn(5)"); }
    QString firstLine() { return shown().section(u'\n', 0, 0); }
    Button::Frame frame(int index) { return at<Button>(qPrintable(u"imgPrepocet(%1)"_s.arg(index))).frame(); }
    QString state() { return at<Label>("lblPorce").text(); }
};

TEST_F(IngredientPanelTest, TheUnitsLastLookedAtOutliveTheRecipe) {
    click("imgPrepocet(6)");
    click("imgKgLzice");
    form->Skryj();
    open(7);
    EXPECT_EQ(lookedAt.units, UnitSystem::Spoons) << "opening a recipe is not looking at its ingredients";
    EXPECT_EQ(lookedAt.portions, 6);
    click("imgBtnHlavni(0)");
    EXPECT_EQ(run.recorded.printServing.portions, 3) << "the printed recipe's own";
    EXPECT_EQ(run.recorded.printServing.units, UnitSystem::Spoons);
    click("imgBtn(5)");
    EXPECT_EQ(state(), u"3 porce\nna lžíce"_s);
}

/// Every character is 100 twips wide.
int fixedWidth(QStringView text) {
    return static_cast<int>(text.size()) * 100;
}

TEST(PortionsTest, StartWithTheRecipesOwnNumber) {
    const struct {
        int base, choice;
        double number;
    } cases[] = {{4, 4, 4},    {2, 2, 2},  {8, 8, 8},   {10, 10, 10}, {3, 10, 3},    {1, 10, 1},
                 {12, 10, 12}, {0, 10, 0}, {-4, 10, 0}, {256, 10, 0}, {255, 10, 255}};
    for (const auto& c : cases) {
        const Portions portions(c.base);
        EXPECT_EQ(portions.choice(), c.choice) << c.base;
        EXPECT_EQ(portions.number(), c.number) << c.base;
    }
}

TEST(PortionsTest, KeepTheAnyNumberAsText) {
    Portions portions(4);
    EXPECT_FALSE(portions.changes(4));
    EXPECT_TRUE(portions.changes(6));
    EXPECT_TRUE(portions.changes(Portions::kAnyNumber));
    portions.setCustom(2.5);
    EXPECT_EQ(portions.number(), 4);
    portions.choose(Portions::kAnyNumber);
    EXPECT_EQ(portions.customText(), u"2.5"_s);
    EXPECT_EQ(portions.number(), 2.5);
    EXPECT_TRUE(portions.changes(Portions::kAnyNumber)) << "it always asks again";
    portions.choose(6);
    EXPECT_EQ(portions.quantities(QLocale::c()).factor(), 1.5F);
}

class ColumnsTest : public testing::Test {
  protected:
    static std::vector<PlacedLine> place(int count, const QString& text, int height = 2000) {
        return placeInColumns(std::vector<QString>(size_t(count), text), {4000, height, 250}, fixedWidth);
    }
};

TEST_F(ColumnsTest, ALineThatComesTooNearTheBottomOpensTheSecondColumn) {
    // Lines begin at 0, 250 ... 1500; the next would begin at 1750 and 1750 + 400 is beyond 2000.
    const auto seven = place(7, u"sůl"_s);
    EXPECT_EQ(seven.back(), (PlacedLine{0, 1500, u"sůl"_s}));
    const auto eight = place(8, u"sůl"_s);
    EXPECT_EQ(eight.back(), (PlacedLine{2000, 0, u"sůl"_s}));
    // A line that would begin exactly 400 above the bottom is too near.
    EXPECT_EQ(place(3, u"sůl"_s, 900).back().x, 2000);
    EXPECT_EQ(place(3, u"sůl"_s, 901).back().x, 0);
}

TEST_F(ColumnsTest, MoreThanTwoColumnsHoldMakesBothLonger) {
    const auto many = place(21, u"sůl"_s);
    ASSERT_EQ(many.size(), 21U);
    EXPECT_EQ(many[10].y, 2500);
    EXPECT_EQ(many[11], (PlacedLine{2000, 0, u"sůl"_s}));
    EXPECT_EQ(many.back().y, 2250);
    EXPECT_TRUE(place(0, QString()).empty());
    EXPECT_EQ(place(4, u"sůl"_s, 10).back().y, 250) << "no height at all still takes lines";
}

TEST_F(ColumnsTest, WideLinesStayInTheirColumn) {
    const QString wide = u"listy celeru nebo petržele"_s;
    EXPECT_EQ(place(2, wide).size(), 2U) << "one column is as wide as the area";
    for (const PlacedLine& line : place(8, wide)) EXPECT_LE(fixedWidth(line.text), 2000);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
