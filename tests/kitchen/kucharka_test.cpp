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

    KitchenRun run_;
};

TEST_F(KucharkaTest, GivesStarsByMouseAndTakesThemBack) {
    RecipeMarks(run_.file()).setStars(6, u"Bez kroků"_s, 1);
    frmKucharka& screen = open();
    auto* stars = child<StarRow>(screen, "picHvezdy");
    for (const int kept : {3, 0}) {  // the same star takes them back
        QTest::mouseClick(stars, Qt::LeftButton, {}, stars->toPixels({5 * stars->twips().width() / 10, 200}));
        EXPECT_EQ(RecipeMarks(run_.file()).stars(6, u"Bez kroků"_s), kept);
    }
    EXPECT_EQ(run_.announced.last(), u"bez hodnocení"_s);
}

TEST_F(KucharkaTest, ABookWithoutTheKitchensTablesOffersWhatItCan) {
    for (const char* table : {"Fakta", "Zbozi", "Kroky", "KrokySur", "Uprava", "Vyteznost"})
        ASSERT_TRUE(run_.database.Execute(u"DROP TABLE "_s + QString::fromUtf8(table)));
    run_.recorded.goods = false;
    press(open(), Qt::Key_Escape);
    EXPECT_EQ(open().shelf(), Shelf::Starred);  // nothing of one's own yet, and no months
    RecipeMarks(run_.file()).setStars(5, u"Kapr na kmíně"_s, 2);
    frmKucharka& screen = open();
    EXPECT_EQ(rows(screen, "picRecepty"), u"Kapr na kmíně/★★☆☆☆"_s);
    EXPECT_FALSE(child(screen, "cmdPolice(4)")->isVisible());
    EXPECT_FALSE(child(screen, "cmdAkce(1)")->isVisible());
    EXPECT_FALSE(child(screen, "cmdAkce(2)")->isVisible());
    for (const char* aside : {"imgVedle(0)", "imgVedle(1)", "imgVedle(3)"})
        EXPECT_FALSE(child(screen, aside)->isVisible()) << aside;
    press(screen, Qt::Key_F3);  // as everywhere else it asks for the list
    EXPECT_EQ(run_.recorded.calls, QStringList{u"showShoppingList"_s});
}

}  // namespace
}  // namespace sarne
