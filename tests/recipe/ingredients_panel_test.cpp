#include <gtest/gtest.h>

#include "recipe/recipefixture.h"
#include "screens/recipe/ingredientcolumns.h"
#include "screens/recipe/portions.h"
#include "support/kept.h"

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
    test::expectCases(u"porce"_s, [](const QString& base) {
        const Portions portions(base.toInt());
        return u"button %1, for %2"_s.arg(portions.choice()).arg(portions.number());
    });
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

/// So many times a line on an area that is 4000 wide and so high; where each stands, and the last as it is
/// cut.
TEST(ColumnsTest, LinesStandInOneColumnOrTwo) {
    test::expectCases(u"sloupce"_s, [](const QString& text) {
        const QString line = text.section(u' ', 2);
        const std::vector<QString> all(text.section(u' ', 0, 0).toUInt(), line);
        QStringList places;
        for (const PlacedLine& one :
             placeInColumns(all, {4000, text.section(u' ', 1, 1).toInt(), 250}, fixedWidth))
            places << u"%1,%2%3"_s.arg(one.x).arg(one.y).arg(one.text == line ? QString() : u' ' + one.text);
        return places.join(u" | "_s);
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
