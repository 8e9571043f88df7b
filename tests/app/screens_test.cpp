#include "screens/browse/frmseznam.h"
#include "screens/recipe/frmrecept.h"
#include "smallprogram.h"
#include "support/files.h"
#include "tour/doors.h"

namespace sarne {
namespace {

/// Opens screens of the program as other screens do.
class ScreensTest : public ProgramTest {
  protected:
    ProgramScreens& screens() { return static_cast<ProgramScreens&>(program->screens()); }
    /// Clicks in the middle of what lies over the screens and says \a text.
    void clickPlate(const QString& text) {
        for (QWidget* plate : plates())
            if (plate->accessibleName().startsWith(text)) return QTest::mouseClick(plate, Qt::LeftButton);
        ADD_FAILURE() << "nothing says " << text.toStdString();
    }
    void clickOnTop(const char* control) {
        QTest::mouseClick(program->FormStack.top()->findChild<QWidget*>(QLatin1String(control)),
                          Qt::LeftButton);
    }
};

TEST_F(ScreensTest, WhatIsBoughtCookedAndMarkedGoesFromScreenToScreen) {
    does(u"nothing shows before the main screen"_s, [&] {
        screens().showShoppingList();
        screens().showPantry();
        screens().showOwnCookbook();
        screens().showFeast();
        screens().showEyes();
    });
    does(u"start"_s, [&] { start(); });
    const auto buy = [&](const std::vector<std::int16_t>& ids, double portions) {
        return [this, ids, portions] { screens().addToShoppingList(ids, {portions, UnitSystem::Weights}); };
    };
    does(u"buy for as many as it is written for"_s, buy({5}, 0));
    does(u"the list, while that is said"_s, [&] { screens().showShoppingList(); });
    does(u"back"_s, [&] { press(Qt::Key_Escape); });
    does(u"buy two for three, and one that is not there"_s, buy({5, 99, 6}, 3));
    does(u"click on what was said"_s, [&] { clickPlate(u"Na nákupním"_s); });
    does(u"buy what is not there"_s, buy({99}, 3));
    does(u"the list once more"_s, [&] { screens().showShoppingList(); });
    does(u"the pantry over it, and the feast"_s, [&] {
        screens().showPantry();
        screens().showFeast();
    });
    does(u"the own cookbook over them"_s, [&] { screens().showOwnCookbook(); });
    does(u"back to the feast"_s, [&] { screens().showFeast(); });
    does(u"its guests"_s, [&] { clickOnTop("cmdAkce(1)"); }, {Qt::Key_8, Qt::Key_Return});
    does(u"its hour"_s, [&] { clickOnTop("cmdAkce(2)"); }, {Qt::Key_9, Qt::Key_Return});
    does(u"back to the pantry"_s, [&] { screens().showPantry(); });
    does(u"back to the list"_s, [&] { screens().showShoppingList(); });
    does(u"a recipe over it"_s, [&] { screens().showRecipe(5); });
    does(u"the list over the recipe"_s, [&] { screens().showShoppingList(); });
    does(u"the own cookbook and back"_s, [&] {
        screens().showOwnCookbook();
        screens().showShoppingList();
        screens().showOwnCookbook();
        screens().showOwnCookbook();
    });
    does(u"to the main screen"_s, [&] { goBackToMain(*program); });
    asks(u"stars of a recipe"_s, screens().starsOf(5));
    does(u"stars are given"_s, [&] { screens().giveStars(5, 4); });
    asks(u"stars of a recipe"_s, screens().starsOf(5));
    asks(u"stars of one that is not there"_s, screens().starsOf(99));
    does(u"stars for that one"_s, [&] { screens().giveStars(99, 4); });
    does(u"a recipe that is not there"_s, [&] { screens().showRecipe(99); });
    expectAsKept("kuchyne");
}

TEST_F(ScreensTest, TimersRunUntilTheyAreStoppedOrTheProgramEnds) {
    start();
    for (const std::int16_t id : {5, 6, 99})
        asks(u"the steps of %1 are known"_s.arg(id), screens().canCook(id));
    does(u"something is said"_s, [&] { screens().addToShoppingList({6}, {}); });
    does(u"a recipe at the stove"_s, [&] { screens().cookRecipe(5, {2, UnitSystem::Spoons}); });
    does(u"its first step"_s, [&] { press(Qt::Key_Return); });
    does(u"its time"_s, [&] { clickOnTop("cmdCas(0)"); });
    does(u"the end is not meant"_s, [&] { program->ConfirmExit(); }, {Qt::Key_N});
    does(u"nor is it then"_s, [&] { program->ConfirmExit(); }, {Qt::Key_A, Qt::Key_N});
    does(u"the run is cut off"_s, [&] { make(); });
    does(u"and the program started again"_s, [&] { start(); });
    does(u"time goes by"_s, [&] {
        clock.time += 1000000;
        QTest::qWait(300);
    });
    EXPECT_FALSE(platform.effects.played.isEmpty());
    does(u"what rings is stopped"_s, [&] { screens().stopRinging(); });
    does(u"stopped again"_s, [&] { screens().stopRinging(); });
    does(u"another one"_s, [&] {
        screens().cookRecipe(5, {});
        press(Qt::Key_Return);
        clickOnTop("cmdCas(0)");
    });
    does(u"the program ends"_s, [&] { program->ConfirmExit(); }, {Qt::Key_A, Qt::Key_A});
    expectAsKept("casovace");
}

TEST_F(ScreensTest, WhatCannotBeKeptIsSaidAndABookWithoutGoodsHasNothingToBuy) {
    ASSERT_TRUE(QDir().rmdir(path("data")));
    ASSERT_TRUE(test::write(path("data")));
    make();
    start();
    asks(u"the goods are known"_s, screens().knowsGoods());
    does(u"buy"_s, [&] { screens().addToShoppingList({5}, {}); });
    does(u"stars"_s, [&] { screens().giveStars(5, 4); });
    ASSERT_TRUE(QFile::remove(path("program/Sarne.drc")));
    test::writeRecipeDatabase(path("program/Sarne.drc"),
                              {u"INSERT INTO Recepty (ID, Nazev, Porce) VALUES (5,'Kapr',4)"_s});
    make();
    does(u"a book without goods"_s, [&] { start(); });
    asks(u"the goods are known"_s, screens().knowsGoods());
    does(u"buy"_s, [&] {
        screens().addToShoppingList({5}, {});
        screens().showShoppingList();
    });
    expectAsKept("bez-zbozi");
}

TEST_F(ScreensTest, ASecondVisitFindsWhatIsOpen) {
    start();
    does(u"help of a screen without one"_s, [&] { screens().showHelpFor(u"frmSit"_s); });
    does(u"a page of it"_s, [&] { screens().showPage(u"1"_s); });
    does(u"a recipe over that"_s, [&] { screens().showRecipeAt(5, 3); });
    EXPECT_EQ(qobject_cast<frmRecept*>(program->FormStack.top())->section(), 3);
    does(u"help again"_s, [&] { program->screens().showList({}, u"help"_s); });
    does(u"a list of recipes"_s, [&] { program->screens().showList({}, u"Recepty"_s, u"Kapr"_s); });
    does(u"another one"_s, [&] { program->screens().showList(u"5,"_s, u"Recepty"_s); });
    does(u"help behind them"_s, [&] { screens().showHelpFor(u"frmSit"_s); });
    does(u"for the eyes"_s, [&] { screens().showEyes(); });
    does(u"for the eyes again"_s, [&] { screens().showEyes(); });
    does(u"to the main screen"_s, [&] { goBackToMain(*program); });
    does(u"help, which was closed"_s, [&] { screens().showHelpFor(u"frmSit"_s); });
    does(u"the table that is none"_s, [&] { screens().showTables(9); });
    does(u"a table"_s, [&] { screens().showTables(2); });
    program->userFile().setValue(u"Tiskarna"_s, PrinterChoice{u"Zkušební"_s, Paper::A5}.toText());
    does(u"printing"_s, [&] { screens().printRecipes({5}, {}); });
    EXPECT_EQ(platform.printer.choice().paper, Paper::A5) << "as was kept";
    program->userFile().setValue(u"Tiskarna"_s, {});
    does(u"another printer"_s, [&] { clickOnTop("cmdTiskarna"); }, {Qt::Key_Return, Qt::Key_Return});
    EXPECT_FALSE(program->userFile().value(u"Tiskarna"_s).isEmpty());
    does(u"the end"_s, [&] { program->ConfirmExit(); }, {Qt::Key_A});
    expectAsKept("podruhe");
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
