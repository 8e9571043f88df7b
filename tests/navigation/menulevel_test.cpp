#include "screens/navigation/menulevel.h"

#include "menudatabase.h"
#include "screens/navigation/ingredientsearch.h"

namespace sarne {
namespace {

using MenuLevelTest = MenuFixture;

QString dump(const MenuLevel& level) {
    QStringList items;
    for (const MenuItem& item : level.items) items << item.label + u'=' + item.target;
    return level.heading + QStringLiteral(": ") + items.join(u' ');
}

TEST_F(MenuLevelTest, HasItsChildrenOrElseAllDescendants) {
    EXPECT_EQ(dump(MenuLevel::build(run.database, QStringLiteral(" 2 "))),
              QStringLiteral("Sladkovodní ryby: Kapr=D Pstruh=D"));
    EXPECT_EQ(dump(MenuLevel::build(run.database, QStringLiteral("22"))),
              QStringLiteral(": Recepty=6, Rychle=3,"));
    run.database.Execute(QStringLiteral("DELETE * FROM Menu WHERE ID LIKE '2?' OR ID LIKE '21?'"));
    EXPECT_EQ(dump(MenuLevel::build(run.database, QStringLiteral("21"))),
              QStringLiteral(": Recepty=1,4, Rychle=2, Recepty=5, Rychle=2,"));
    EXPECT_TRUE(MenuLevel::build(run.database, QStringLiteral("19")).items.empty());
}

TEST_F(MenuLevelTest, ASearchWritesWhatItFound) {
    ASSERT_TRUE(searchIngredients(run.database, QStringLiteral("  kap ")));
    EXPECT_EQ(dump(MenuLevel::build(run.database, QStringLiteral("0"))),
              QStringLiteral(": Kapr=1 kapary=2 kapie=3"));
    ASSERT_TRUE(searchIngredients(run.database, QStringLiteral("bylina")));
    const auto all = MenuLevel::build(run.database, QStringLiteral("0"));
    EXPECT_EQ(all.items.size(), 84u) << "and nothing of the search before";
    Recordset menu = run.database.OpenTable(QStringLiteral("Menu"));
    menu.MoveFirst();
    EXPECT_EQ(menu.field(QStringLiteral("Id")).toString(), QStringLiteral("001"));
    EXPECT_TRUE(RecordExists(menu, QStringLiteral("084")));
}

TEST_F(MenuLevelTest, ASearchSaysWhatItDidNotFind) {
    const QString none = QStringLiteral(": Nenalezena žádná surovina=F");
    for (const char* typed : {"byl", "nic takového", "'", "kap[", "x' OR '1'='1' --"}) {
        ASSERT_TRUE(searchIngredients(run.database, QString::fromUtf8(typed)));
        const auto level = MenuLevel::build(run.database, QStringLiteral("0"));
        EXPECT_EQ(dump(level),
                  typed == std::string("byl") ? QStringLiteral(": Příliš mnoho nalezených surovin=F") : none);
        EXPECT_FALSE(level.items[0].isSelectable());
    }
    ASSERT_TRUE(searchIngredients(run.database, QStringLiteral("mouk?")));
    EXPECT_EQ(dump(MenuLevel::build(run.database, QStringLiteral("0"))), QStringLiteral(": mouka=4"))
        << "typed patterns count";
    EXPECT_FALSE(searchIngredients(run.database, QStringLiteral("   ")));
    EXPECT_EQ(MenuLevel::build(run.database, QStringLiteral("0")).items.size(), 1u) << "nothing changed";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
