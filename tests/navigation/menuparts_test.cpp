#include <gtest/gtest.h>

#include "menudatabase.h"
#include "screens/navigation/ingredientsearch.h"
#include "screens/navigation/menulevel.h"
#include "screens/navigation/menutargets.h"
#include "support/kept.h"

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
    ASSERT_TRUE(searchIngredients(run.database, u"kap"_s));
    ASSERT_TRUE(searchIngredients(run.database, u"bylina"_s));
    const auto all = MenuLevel::build(run.database, u"0"_s);
    EXPECT_EQ(all.items.size(), 84u) << "and nothing of the search before";
    Recordset menu = run.database.OpenTable(u"Menu"_s);
    menu.MoveFirst();
    EXPECT_EQ(menu.field(u"Id"_s).toString(), u"001"_s);
    EXPECT_TRUE(RecordExists(menu, u"084"_s));
}

TEST_F(MenuLevelTest, ASearchSaysWhatItFoundOrNot) {
    test::expectCases(u"hledani"_s, [this](const QString& typed) {
        const bool searched = searchIngredients(run.database, typed);
        const auto level = MenuLevel::build(run.database, u"0"_s);
        return (searched ? QString() : u"not searched, still "_s) + dump(level) +
               (level.items[0].isSelectable() ? u""_s : u" (no item)"_s) + u" / "_s + searchHint(level);
    });
}

class MenuTargetsTest : public MenuFixture {
  protected:
    QString opened(int item, int level, const QString& text = {}) {
        run.recorded.calls.clear();
        OpenMenuTarget(run, std::int16_t(item), std::int16_t(level), text);
        EXPECT_EQ(run.recorded.calls.takeLast(), u"returnToMain"_s);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the hourglass stayed";
        return run.recorded.calls.join(u'|');
    }
};

/// "3 of 4: text" is the third item of level 4.
TEST_F(MenuTargetsTest, EveryLevelHasItsScreen) {
    test::expectCases(u"cile"_s, [this](const QString& text) {
        const QStringList words = text.section(u':', 0, 0).split(u" of "_s);
        return opened(words[0].toInt(), words[1].toInt(), text.section(u": "_s, 1));
    });
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
