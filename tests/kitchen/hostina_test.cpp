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
    static QString rows(const frmHostina& screen, const char* list) {
        QStringList all;
        for (const TickRow& row : child<TickList>(screen, list)->rows())
            all << (row.ticked ? QStringLiteral("x ") : QString()) + row.text;
        return all.join(QStringLiteral(" | "));
    }

    KitchenRun run_;
    double number_ = 0;
    QString text_;
};

TEST_F(HostinaTest, MakesAMenuWithItsPlanAndKeepsIt) {
    frmHostina& screen = open();
    EXPECT_EQ(rows(screen, "picChody"),
              QStringLiteral("Předkrm | Polévka | Bez kroků | Hlavní chod | Kapr na kmíně"));
    EXPECT_FALSE(child(screen, "picPlan")->isVisible());
    press(screen, Qt::Key_Space);
    press(screen, Qt::Key_Down);
    press(screen, Qt::Key_Return);
    EXPECT_EQ(rows(screen, "picChody"),
              QStringLiteral("Předkrm | Polévka | x Bez kroků | Hlavní chod | x Kapr na kmíně"));
    EXPECT_TRUE(rows(screen, "picPlan").contains(QStringLiteral(" | 18.00  Na stůl: Bez kroků | ")));
    EXPECT_TRUE(rows(screen, "picPlan").endsWith(QStringLiteral(" | 18.20  Na stůl: Kapr na kmíně")));
    number_ = 8;
    child<Button>(screen, "cmdAkce(1)")->click();
    text_ = QStringLiteral("12.30");
    child<Button>(screen, "cmdAkce(2)")->click();
    EXPECT_EQ(child<Label>(screen, "lblStav")->text(), QStringLiteral("8\u00a0porcí · na stole v 12.30"));
    text_ = QStringLiteral("brzy");  // no hour
    child<Button>(screen, "cmdAkce(2)")->click();
    EXPECT_EQ(run_.beeps, 1);
    child<Button>(screen, "cmdAkce(0)")->click();
    EXPECT_EQ(child<Button>(screen, "cmdAkce(0)")->caption(), QStringLiteral("Zima"));
    press(screen, Qt::Key_F3);
    EXPECT_EQ(run_.recorded.calls, QStringList{QStringLiteral("addToShoppingList 2 for 8")});
    child<Button>(screen, "imgBtnHlavni(0)")->click();
    EXPECT_TRUE(run_.recorded.printedText.contains(QStringLiteral("12.50")));
    press(screen, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(open().dinner(), (Dinner{QStringLiteral("zima"), {0, 6, 5}, 8, 750}));
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
    ASSERT_TRUE(run_.database.Execute(QStringLiteral("DROP TABLE Fakta")));
    auto* screen = new frmHostina(run_, run_.file(), {}, 11);
    EXPECT_FALSE(screen->Zobraz());
    EXPECT_EQ(run_.FormStack.top(), nullptr);
}

}  // namespace
}  // namespace sarne
