#include <gtest/gtest.h>

#include "menudatabase.h"
#include "screens/navigation/ingredientsearch.h"
#include "screens/navigation/menulevel.h"
#include "screens/navigation/menutargets.h"

namespace sarne {
namespace {

using MenuLevelTest = MenuFixture;

QString dump(const MenuLevel& level) {
    QStringList items;
    for (const MenuItem& item : level.items) items << item.label + u'=' + item.target;
    return level.heading + u": "_s + items.join(u' ');
}

TEST_F(MenuLevelTest, HasItsChildrenOrElseAllDescendants) {
    EXPECT_EQ(dump(MenuLevel::build(run.database, u" 2 "_s)), u"Sladkovodní ryby: Kapr=D Pstruh=D"_s);
    EXPECT_EQ(dump(MenuLevel::build(run.database, u"22"_s)), u": Recepty=6, Rychle=3,"_s);
    run.database.Execute(u"DELETE * FROM Menu WHERE ID LIKE '2?' OR ID LIKE '21?'"_s);
    EXPECT_EQ(dump(MenuLevel::build(run.database, u"21"_s)),
              u": Recepty=1,4, Rychle=2, Recepty=5, Rychle=2,"_s);
    EXPECT_TRUE(MenuLevel::build(run.database, u"19"_s).items.empty());
}

TEST_F(MenuLevelTest, ASearchWritesWhatItFound) {
    ASSERT_TRUE(searchIngredients(run.database, u"  kap "_s));
    EXPECT_EQ(dump(MenuLevel::build(run.database, u"0"_s)), u": Kapr=1 kapary=2 kapie=3"_s);
    ASSERT_TRUE(searchIngredients(run.database, u"bylina"_s));
    const auto all = MenuLevel::build(run.database, u"0"_s);
    EXPECT_EQ(all.items.size(), 84u) << "and nothing of the search before";
    Recordset menu = run.database.OpenTable(u"Menu"_s);
    menu.MoveFirst();
    EXPECT_EQ(menu.field(u"Id"_s).toString(), u"001"_s);
    EXPECT_TRUE(RecordExists(menu, u"084"_s));
}

TEST_F(MenuLevelTest, ASearchSaysWhatItDidNotFind) {
    const QString none = u": Nenalezena žádná surovina=F"_s;
    for (const char* typed : {"byl", "nic takového", "'", "kap[", "x' OR '1'='1' --"}) {
        ASSERT_TRUE(searchIngredients(run.database, QString::fromUtf8(typed)));
        const auto level = MenuLevel::build(run.database, u"0"_s);
        EXPECT_EQ(dump(level), typed == std::string("byl") ? u": Příliš mnoho nalezených surovin=F"_s : none);
        EXPECT_FALSE(level.items[0].isSelectable());
        EXPECT_EQ(searchHint(level).startsWith(u"Připište"_s), typed == std::string("byl"));
    }
    ASSERT_TRUE(searchIngredients(run.database, u"mouk?"_s));
    EXPECT_EQ(dump(MenuLevel::build(run.database, u"0"_s)), u": mouka=4"_s) << "typed patterns count";
    EXPECT_FALSE(searchIngredients(run.database, u"   "_s));
    EXPECT_EQ(MenuLevel::build(run.database, u"0"_s).items.size(), 1u) << "nothing changed";
}

class MenuTargetsTest : public MenuFixture {
  protected:
    QString opened(int item, int level, const char* text = "") {
        run.recorded.calls.clear();
        OpenMenuTarget(run, std::int16_t(item), std::int16_t(level), QString::fromUtf8(text));
        EXPECT_EQ(run.recorded.calls.takeLast(), u"returnToMain"_s);
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
    EXPECT_EQ(opened(1, 10), u"showPhotos 0"_s);
    EXPECT_EQ(run.recorded.photos.photoIds.size(), 49u);
    EXPECT_EQ(run.recorded.photos.photoIds.back(), 49);
    EXPECT_TRUE(run.recorded.photos.slideShow);
}

TEST_F(MenuTargetsTest, AnIngredientLeadsToItsRecipesOnceEachInCzechOrder) {
    searchIngredients(run.database, u"kap"_s);
    EXPECT_EQ(opened(1, 0), u"showList 3,2,1, recepty"_s) << "an id past 16 bits is left out, not wrapped";
    EXPECT_EQ(opened(2, 0), u"showList 2, recepty"_s);
    EXPECT_EQ(opened(3, 0), QString()) << "used by no recipe";
    EXPECT_EQ(opened(4, 0), QString()) << "no such result";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
