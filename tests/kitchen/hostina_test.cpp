// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "kitchenbook.h"
#include "screens/kitchen/frmhostina.h"

namespace sarne {
namespace {

class HostinaTest : public testing::Test {
  protected:
    HostinaTest() {
        run_.database.Execute(QString::fromUtf8("UPDATE Fakta SET Chod = 'teplé', Obdobi = 'zima'"));
        run_.database.Execute(QString::fromUtf8(
            "INSERT INTO Fakta (ID, Minut, Mesice, Chod, Obdobi) VALUES (6,30,4095,'polévka','')"));
    }

    frmHostina& open() {
        auto* screen = new frmHostina(
            run_, run_.file(),
            {[this](const QString&) { return number_; }, [this](const QString&) { return text_; }}, 11);
        EXPECT_TRUE(screen->Zobraz());
        return *screen;
    }

    KitchenRun run_;
    double number_ = 0;
    QString text_;
};

TEST_F(HostinaTest, MakesAMenuWithItsPlanAndKeepsIt) {
    frmHostina& screen = open();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_Return}) press(screen, key);
    number_ = 8;
    child<Button>(screen, "cmdAkce(1)")->click();
    text_ = u"12.30"_s;
    child<Button>(screen, "cmdAkce(2)")->click();
    EXPECT_EQ(child<Label>(screen, "lblStav")->text(), u"8\u00a0porcí · na stole v 12.30"_s);
    text_ = u"brzy"_s;  // no hour
    child<Button>(screen, "cmdAkce(2)")->click();
    EXPECT_EQ(run_.beeps, 1);
    child<Button>(screen, "cmdAkce(0)")->click();
    press(screen, Qt::Key_F3);
    EXPECT_EQ(run_.recorded.calls, QStringList{u"addToShoppingList 2 for 8"_s});
    child<Button>(screen, "imgBtnHlavni(0)")->click();
    EXPECT_TRUE(run_.recorded.printedText.contains(u"12.50"_s));
    press(screen, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(open().dinner(), (Dinner{u"zima"_s, {0, 6, 5}, 8, 750}));
}

TEST_F(HostinaTest, TakesOneRecipeACourseAndForgetsOneThatIsGone) {
    storeDinner(run_.file(), {{}, {99, 6, 5}, 4, 1080});
    frmHostina& screen = open();
    EXPECT_EQ(screen.dinner().recipes, (std::array<int, 3>{0, 6, 5}));
    press(screen, Qt::Key_Space);
    EXPECT_EQ(screen.dinner().recipes, (std::array<int, 3>{0, 0, 5}));
    child<Button>(screen, "cmdAkce(5)")->click();
    EXPECT_TRUE(screen.dinner().isEmpty());
    child<Button>(screen, "imgBtnHlavni(0)")->click();  // nothing to print
    EXPECT_TRUE(run_.recorded.calls.isEmpty());
}

TEST_F(HostinaTest, ABookThatDoesNotKnowItsCoursesOffersNoMenu) {
    ASSERT_TRUE(run_.database.Execute(u"DROP TABLE Fakta"_s));
    auto* screen = new frmHostina(run_, run_.file(), {}, 11);
    EXPECT_FALSE(screen->Zobraz());
    EXPECT_EQ(run_.FormStack.top(), nullptr);
}

}  // namespace
}  // namespace sarne
