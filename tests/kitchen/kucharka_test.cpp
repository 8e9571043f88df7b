// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "db/recipemarks.h"
#include "kitchen/cooked.h"
#include "kitchenbook.h"
#include "screens/kitchen/frmkucharka.h"

namespace sarne {
namespace {

class KucharkaTest : public testing::Test {
  protected:
    frmKucharka& open() {
        auto* screen = new frmKucharka(run_, run_.file(), {2026, 11, 22});
        screen->Zobraz();
        return *screen;
    }
    static QString rows(const frmKucharka& screen) {
        QStringList all;
        for (const TickRow& row : child<TickList>(screen, "picRecepty")->rows())
            all << QStringList{row.text, row.right, row.below}.join(u'/');
        return all.join(QStringLiteral(" | "));
    }

    KitchenRun run_;
};

TEST_F(KucharkaTest, OpensOnTheFirstShelfThatHoldsSomething) {
    keepCooked(run_.file(), 6, QStringLiteral("Bez kroků"), {2026, 11, 1}, 4);
    keepCooked(run_.file(), 6, QStringLiteral("Bez kroků"), {2026, 10, 1}, 4);
    frmKucharka& screen = open();
    EXPECT_EQ(screen.shelf(), Shelf::Cooked);
    EXPECT_EQ(rows(screen), QStringLiteral("Bez kroků/1. 11. 2026/uvařeno 2×"));
    EXPECT_EQ(child<Label>(screen, "lblPodrobnosti")->text(),
              QStringLiteral("Uvařeno: 1. 11. 2026, 1. 10. 2026"));
    child<Button>(screen, "cmdPolice(0)")->click();
    EXPECT_EQ(rows(screen), QString());
    EXPECT_FALSE(child<Label>(screen, "lblNic")->text().isEmpty());
    EXPECT_FALSE(child(screen, "picHvezdy")->isVisible());
    press(screen, Qt::Key_Return);  // nothing to open
    EXPECT_EQ(run_.beeps, 1);
}

TEST_F(KucharkaTest, GivesStarsByMouseAndKeyboardWithoutLosingTheRow) {
    RecipeMarks(run_.file()).setStars(5, QStringLiteral("Kapr na kmíně"), 2);
    RecipeMarks(run_.file()).setStars(6, QStringLiteral("Bez kroků"), 1);
    frmKucharka& screen = open();
    EXPECT_EQ(rows(screen), QStringLiteral("Kapr na kmíně/★★☆☆☆/ | Bez kroků/★☆☆☆☆/"));
    press(screen, Qt::Key_Down);
    press(screen, Qt::Key_5);
    EXPECT_EQ(rows(screen), QStringLiteral("Kapr na kmíně/★★☆☆☆/ | Bez kroků/★★★★★/"));
    auto* stars = child<StarRow>(screen, "picHvezdy");
    const auto click = [&](int star) {
        QTest::mouseClick(stars, Qt::LeftButton, {},
                          stars->toPixels({(2 * star - 1) * stars->twips().width() / 10, 200}));
    };
    click(3);
    EXPECT_EQ(RecipeMarks(run_.file()).stars(6, QStringLiteral("Bez kroků")), 3);
    click(3);  // the same star takes them back
    EXPECT_EQ(RecipeMarks(run_.file()).stars(6, QStringLiteral("Bez kroků")), 0);
    EXPECT_EQ(run_.announced.last(), QStringLiteral("bez hodnocení"));
}

TEST_F(KucharkaTest, LeadsToTheRecipeTheStoveAndTheShop) {
    RecipeMarks(run_.file()).setStars(5, QStringLiteral("Kapr na kmíně"), 2);
    frmKucharka& screen = open();
    press(screen, Qt::Key_Return);
    press(screen, Qt::Key_F3);
    EXPECT_EQ(run_.recorded.calls,
              (QStringList{QStringLiteral("showRecipe 5"), QStringLiteral("addToShoppingList 1 for 0")}));
    EXPECT_TRUE(child(screen, "imgVedle(0)")->isVisible());
    EXPECT_FALSE(child(screen, "imgVedle(2)")->isVisible());  // it is this one
}

TEST_F(KucharkaTest, ABookWithoutTheKitchensTablesOffersWhatItCan) {
    for (const char* table : {"Fakta", "Zbozi", "Kroky", "KrokySur", "Uprava", "Vyteznost"})
        ASSERT_TRUE(run_.database.Execute(QStringLiteral("DROP TABLE ") + QString::fromUtf8(table)));
    run_.recorded.goods = false;
    press(open(), Qt::Key_Escape);
    EXPECT_EQ(open().shelf(), Shelf::Starred);  // nothing of one's own yet, and no months
    RecipeMarks(run_.file()).setStars(5, QStringLiteral("Kapr na kmíně"), 2);
    frmKucharka& screen = open();
    EXPECT_EQ(rows(screen), QStringLiteral("Kapr na kmíně/★★☆☆☆/"));
    EXPECT_FALSE(child(screen, "cmdPolice(4)")->isVisible());
    EXPECT_FALSE(child(screen, "cmdAkce(1)")->isVisible());
    EXPECT_FALSE(child(screen, "cmdAkce(2)")->isVisible());
    for (const char* aside : {"imgVedle(0)", "imgVedle(1)", "imgVedle(3)"})
        EXPECT_FALSE(child(screen, aside)->isVisible()) << aside;
    press(screen, Qt::Key_F3);  // as everywhere else it asks for the list
    EXPECT_TRUE(run_.recorded.calls.isEmpty());
}

}  // namespace
}  // namespace sarne
