#include "recipe/recipefixture.h"

namespace sarne {
namespace {

class IngredientPanelTest : public RecipeTest {
  protected:
    IngredientPanelTest() { click("imgBtn(5)"); }
    QString firstLine() { return shown().section(u'\n', 0, 0); }
    Button::Frame frame(int index) {
        return at<Button>(qPrintable(QStringLiteral("imgPrepocet(%1)").arg(index))).frame();
    }
    QString state() { return at<Label>("lblPorce").text(); }
};

TEST_F(IngredientPanelTest, CutleryForSixRecalculates) {
    click("imgPrepocet(6)");
    EXPECT_EQ(firstLine(), QStringLiteral("kapr - filety bez kůže (g): 380"));
    EXPECT_EQ(frame(6), Button::Frame::Pressed);
    EXPECT_EQ(frame(4), Button::Frame::Raised);
    EXPECT_EQ(state(), QStringLiteral("6 porcí\nv gramech"));
    run.database.Execute(QStringLiteral("UPDATE SpojSur SET MnozstviKg = 500 WHERE ID_Receptu = 5"));
    click("imgPrepocet(6)");
    EXPECT_EQ(firstLine(), QStringLiteral("kapr - filety bez kůže (g): 380"))
        << "the same again draws nothing";
    click("imgPrepocet(2)");
    EXPECT_EQ(firstLine(), QStringLiteral("kapr - filety bez kůže (g): 250")) << "always from the database";
}

TEST_F(IngredientPanelTest, AnyNumberAlwaysAsks) {
    customPortions = 2.5;
    click("imgPrepocet(10)");
    EXPECT_EQ(firstLine(), QStringLiteral("kapr - filety bez kůže (g): 160"));
    EXPECT_EQ(state(), QStringLiteral("2,5 porce\nv gramech"));
    customPortions = 100;
    click("imgPrepocet(10)");
    EXPECT_EQ(firstLine(), QStringLiteral("kapr - filety bez kůže (g): 6250"));
    click("imgKgLzice");
    EXPECT_EQ(firstLine(), QStringLiteral("kapr - filety bez kůže (kus): 12"));
    EXPECT_EQ(prompts.size(), 2) << "the toggle keeps the number";
    EXPECT_EQ(form->cursor().shape(), Qt::ArrowCursor) << "the hourglass is gone";
}

TEST_F(IngredientPanelTest, WhoGivesNoNumberKeepsWhatThereIs) {
    click("imgPrepocet(6)");
    customPortions = 0;
    click("imgPrepocet(10)");
    EXPECT_EQ(prompts.size(), 1);
    EXPECT_EQ(frame(6), Button::Frame::Pressed);
    EXPECT_EQ(frame(10), Button::Frame::Raised);
    EXPECT_EQ(state(), QStringLiteral("6 porcí\nv gramech"));
    EXPECT_EQ(firstLine(), QStringLiteral("kapr - filety bez kůže (g): 380"));
    EXPECT_EQ(form->cursor().shape(), Qt::ArrowCursor);
    customPortions = 3;
    click("imgPrepocet(10)");
    customPortions = 0;
    click("imgPrepocet(10)");
    EXPECT_EQ(state(), QStringLiteral("3 porce\nv gramech"));
}

TEST_F(IngredientPanelTest, BothUnitsAreFramedAndTheOneInUseIsPressed) {
    auto& current = at<Button>("picZavazi");
    auto& other = at<Button>("imgKgLzice");
    EXPECT_EQ(current.frame(), Button::Frame::Pressed);
    EXPECT_EQ(other.frame(), Button::Frame::Raised);
    const QRect weights = current.twips(), spoons = other.twips();
    QTest::mouseClick(&current, Qt::LeftButton);
    EXPECT_EQ(state(), QStringLiteral("4 porce\nv gramech")) << "the one in use is no switch";
    click("imgKgLzice");
    EXPECT_EQ(current.twips(), spoons) << "each unit keeps its place";
    EXPECT_EQ(other.twips(), weights);
}

TEST_F(IngredientPanelTest, ARecipeWithoutPortionsHasNoAmounts) {
    run.database.Execute(QStringLiteral("UPDATE Recepty SET Porce = -3 WHERE ID = 5"));
    form->Skryj();
    open(5);
    click("imgBtn(5)");
    EXPECT_EQ(frame(10), Button::Frame::Pressed);
    EXPECT_EQ(firstLine(), QStringLiteral("kapr - filety bez kůže (g)"));
    click("imgPrepocet(6)");
    EXPECT_EQ(firstLine(), QStringLiteral("kapr - filety bez kůže (g)"));
    form->Skryj();
    open(6);
    click("imgBtn(5)");
    EXPECT_EQ(shown(), QString()) << "no ingredients at all";
}

TEST_F(IngredientPanelTest, TheKeyboardStepsOverThePicturesWithHints) {
    run.announced.clear();
    for (int step = 0; step < 3; ++step) press(Qt::Key_Right);
    EXPECT_EQ(run.announced,
              (QStringList{QStringLiteral("2 porce"), QStringLiteral("4 porce"), QStringLiteral("6 porcí")}));
    EXPECT_EQ(focused(), QStringLiteral("imgPrepocet(6)"));
    press(Qt::Key_Return);
    EXPECT_EQ(firstLine(), QStringLiteral("kapr - filety bez kůže (g): 380"));
    for (int step = 0; step < 4; ++step) press(Qt::Key_Left);
    EXPECT_EQ(run.announced.last(), QStringLiteral("Přepočet na libovolný počet porcí"));
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_EQ(run.announced.last(), QStringLiteral("Přepočteno na lžíce"));
    press(Qt::Key_Left);
    press(Qt::Key_Right);
    EXPECT_EQ(run.announced.last(), QStringLiteral("Přepočti na gramy"));
    press(Qt::Key_Down);
    EXPECT_EQ(run.announced.last(), QStringLiteral("Suroviny")) << "up and down lead back to the sections";
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("imgPrepocet(2)"));
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), QStringLiteral("imgPrepocet(4)")) << "on from where Tab has led";
}

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
    EXPECT_EQ(state(), QStringLiteral("3 porce\nna lžíce"));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
