#include "screens/navigation/menutargets.h"

#include "menudatabase.h"
#include "screens/navigation/ingredientsearch.h"

namespace sarne {
namespace {

class MenuTargetsTest : public MenuFixture {
  protected:
    QString opened(int item, int level, const char* text = "") {
        run.recorded.calls.clear();
        OpenMenuTarget(run, std::int16_t(item), std::int16_t(level), QString::fromUtf8(text));
        EXPECT_EQ(run.recorded.calls.takeLast(), QStringLiteral("returnToMain"));
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the hourglass stayed";
        return run.recorded.calls.join(u'|');
    }
};

TEST_F(MenuTargetsTest, EveryLevelHasItsScreen) {
    const struct {
        int item, level;
        const char *text, *opens;
    } cases[] = {{1, 1, "", "showSponsor 1 ''"},
                 {1, 9, "x", "showSponsor 9 ''"},
                 {3, 13, "", "showSponsor 13 ''"},
                 {1, 4, "", "showPage 10"},
                 {3, 4, "", "showTables 3"},
                 {1, 7, "", "showMusicSettings"},
                 {2, 71, "", "showMusicSettings"},
                 {1, 72, "", "showMusicSettings"},
                 {1, 10, "", "showPhotos 0"},
                 {2, 10, "", "showGrid"},
                 {2, 18, "7", "showVideo 7"},
                 {2, 18, "99999", ""},
                 {2, 3, "7,9,", "showList 7,9, recepty"},
                 {5, 6, "7,", "showList 7, recepty"},
                 {2, 15, "7,", "showList 7, recepty"},
                 {1, 211, "1,4,", "showList 1,4, recepty"},
                 {11, 211, "1,4,", "showList 1,4, recepty"},
                 {2, 211, "2,", "showList 2, RychleRecepty"},
                 {1, 211, "", ""},
                 {2, 31, "H809", "showIndex 809"},
                 {1, 31, "H", ""},
                 {1, 31, "H99999", ""}};
    for (const auto& c : cases)
        EXPECT_EQ(opened(c.item, c.level, c.text), QString::fromUtf8(c.opens)) << c.item << ' ' << c.level;
    EXPECT_EQ(opened(1, 10), QStringLiteral("showPhotos 0"));
    EXPECT_EQ(run.recorded.photos.photoIds.size(), 49u);
    EXPECT_EQ(run.recorded.photos.photoIds.back(), 49);
    EXPECT_TRUE(run.recorded.photos.slideShow);
}

TEST_F(MenuTargetsTest, AnIngredientLeadsToItsRecipesOnceEachInCzechOrder) {
    searchIngredients(run.database, QStringLiteral("kap"));
    EXPECT_EQ(opened(1, 0), QStringLiteral("showList 3,2,1, recepty"))
        << "an id past 16 bits is left out, not wrapped";
    EXPECT_EQ(opened(2, 0), QStringLiteral("showList 2, recepty"));
    EXPECT_EQ(opened(3, 0), QString()) << "used by no recipe";
    EXPECT_EQ(opened(4, 0), QString()) << "no such result";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
