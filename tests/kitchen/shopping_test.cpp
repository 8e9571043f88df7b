#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "db/userfile.h"
#include "kitchen/goods.h"
#include "kitchen/shoppingstore.h"

namespace sarne {
namespace {

const QLocale kCzech(QLocale::Czech, QLocale::CzechRepublic);

ShoppingItem need(const char* name, double amount, const char* unit, int recipe, double portions = 4,
                  Department department = Department::Dairy) {
    return {QString::fromUtf8(name),
            department,
            false,
            false,
            {},
            {{recipe, QStringLiteral("Recept %1").arg(recipe), portions, QString::fromUtf8(unit), amount}}};
}

const ShoppingItem* itemOf(const ShoppingList& list, const char* name) {
    for (const ShoppingItem& item : list.items())
        if (item.name == QString::fromUtf8(name)) return &item;
    return nullptr;
}

int indexOf(const ShoppingList& list, const char* name) {
    return static_cast<int>(itemOf(list, name) - list.items().data());
}

QString amounts(const ShoppingList& list, const char* name) {
    const ShoppingItem* item = itemOf(list, name);
    return item ? item->amounts(kCzech).replace(QChar(0xa0), u' ') : QStringLiteral("není");
}

TEST(ShoppingList, MergesWhatAddsUpAndSaysTheRestApart) {
    ShoppingList list;
    list.addRecipe({need("máslo", 80, "g", 1), need("cibule", 2, "ks", 1)});
    list.addRecipe({need("Máslo", 1, "kg", 2), need("cibule", 200, "g", 2)});
    list.addRecipe({need("cibule", 1, "ks", 3)});
    EXPECT_EQ(amounts(list, "máslo"), QStringLiteral("1,08 kg"));
    EXPECT_EQ(amounts(list, "cibule"), QStringLiteral("3 ks + 200 g"));
    EXPECT_EQ(itemOf(list, "cibule")->recipes().size(), 3);
    EXPECT_EQ(list.recipes().size(), 3u);
}

TEST(ShoppingList, ARecipeAddedAgainTakesItsOwnPlace) {
    ShoppingList list;
    list.addRecipe({need("máslo", 80, "g", 1), need("kapr", 1200, "g", 1, 4, Department::Fish)});
    list.addRecipe({need("máslo", 40, "g", 2)});
    list.addRecipe({need("máslo", 120, "g", 1, 6), need("kapr", 1800, "g", 1, 6, Department::Fish)});
    EXPECT_EQ(amounts(list, "máslo"), QStringLiteral("160 g"));
    EXPECT_EQ(amounts(list, "kapr"), QStringLiteral("1,8 kg"));
    list.removeRecipe(1);
    EXPECT_EQ(amounts(list, "máslo"), QStringLiteral("40 g"));
    EXPECT_EQ(amounts(list, "kapr"), QStringLiteral("není"));
}

TEST(ShoppingList, IsSortedAsOneWalksThroughTheShop) {
    ShoppingList list;
    ShoppingItem salt = need("sůl", 6, "g", 1, 4, Department::Spices);
    salt.atHome = true;
    list.addRecipe({salt, need("řepa", 1, "ks", 1, 4, Department::Vegetables),
                    need("cuketa", 1, "ks", 1, 4, Department::Vegetables),
                    need("chřest", 1, "ks", 1, 4, Department::Vegetables),
                    need("losos", 400, "g", 1, 4, Department::Fish)});
    list.addOwn(QStringLiteral("  papírové   utěrky "));
    QStringList names;
    for (const ShoppingItem& item : list.items()) names << item.name;
    EXPECT_EQ(names.join(u','), QStringLiteral("losos,cuketa,chřest,řepa,papírové utěrky,sůl"));
    list.setBought(indexOf(list, "cuketa"), true);
    EXPECT_EQ(list.text(kCzech).replace(QChar(0xa0), u' '),
              QStringLiteral("RYBY\n☐ losos – 400 g\n\nZELENINA A OVOCE\n☐ chřest – 1 ks\n☐ řepa – 1 ks\n\n"
                             "OSTATNÍ\n☐ papírové utěrky\n"));
}

TEST(ShoppingList, EveryChangeCanBeTakenBack) {
    ShoppingList list;
    EXPECT_FALSE(list.canUndo());
    list.addRecipe({need("máslo", 80, "g", 1), need("mouka", 1, "kg", 1)});
    const auto first = list.items();
    list.setAmount(indexOf(list, "mouka"), 500);
    EXPECT_EQ(amounts(list, "mouka"), QStringLiteral("500 g"));
    list.setBought(0, true);
    list.removeBought();
    list.remove(0);
    EXPECT_TRUE(list.isEmpty());
    for (int i = 0; i < 4; ++i) list.undo();
    EXPECT_EQ(list.items(), first);
    list.undo();
    list.undo();
    EXPECT_TRUE(list.isEmpty());
}

TEST(ShoppingList, NothingThatIsNotThereIsChanged) {
    ShoppingList list;
    list.addRecipe({});
    list.addOwn(QStringLiteral("   "));
    list.setBought(3, true);
    list.setAmount(-1, 5);
    list.remove(0);
    EXPECT_FALSE(list.canUndo());
    list.addOwn(QStringLiteral("sůl"));
    list.setAmount(0, 5);  // it has no number
    EXPECT_EQ(amounts(list, "sůl"), QString());
}

TEST(ShoppingNeeds, AreWhatTheShopSells) {
    Database none;
    const Goods goods(none);
    Ingredient butter;
    butter.name = QStringLiteral("máslo");
    butter.weights = {QStringLiteral("g"), 80};
    butter.spoons = {QStringLiteral("lžíce"), 5};
    butter.alternative = QStringLiteral("sádlo");
    Ingredient salt;
    salt.name = QStringLiteral("sůl");
    salt.weights = {QStringLiteral("podle chuti"), 0};
    ShoppingList list;
    list.addRecipe(shoppingNeeds({butter, salt}, goods, {7, QStringLiteral("Kapr"), 6}, 4));
    EXPECT_EQ(amounts(list, "máslo"), QStringLiteral("120 g"));
    EXPECT_EQ(itemOf(list, "máslo")->alternative, QStringLiteral("sádlo"));
    EXPECT_EQ(amounts(list, "sůl"), QString());
}

TEST(ShoppingStore, KeepsTheListAsItWas) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("vlastni.db"));
    ShoppingList list;
    list.addRecipe({need("máslo", 80, "g", 1), need("cibule", 2, "ks", 1)});
    list.addRecipe({need("cibule", 200, "g", 2)});
    list.addOwn(QStringLiteral("houska"));
    list.setBought(1, true);
    {
        UserFile file(path);
        ASSERT_TRUE(storeShoppingList(file, list));
        list.setBought(1, false);
        ASSERT_TRUE(storeShoppingList(file, list));
    }
    UserFile again(path);
    EXPECT_EQ(readShoppingList(again).items(), list.items());
    // Where nothing can be written nothing is claimed.
    UserFile nowhere(folder.path() + QStringLiteral("/vlastni.db/x/y.db"));
    EXPECT_FALSE(storeShoppingList(nowhere, list));
    EXPECT_TRUE(readShoppingList(nowhere).isEmpty());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
