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
            {{recipe, u"Recept %1"_s.arg(recipe), portions, QString::fromUtf8(unit), amount}}};
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
    return item ? item->amounts(kCzech).replace(QChar(0xa0), u' ') : u"není"_s;
}

TEST(ShoppingList, MergesWhatAddsUpAndSaysTheRestApart) {
    ShoppingList list;
    list.addRecipe({need("máslo", 80, "g", 1), need("cibule", 2, "ks", 1)});
    list.addRecipe({need("Máslo", 1, "kg", 2), need("cibule", 200, "g", 2)});
    list.addRecipe({need("cibule", 1, "ks", 3)});
    EXPECT_EQ(amounts(list, "máslo"), u"1,08 kg"_s);
    EXPECT_EQ(amounts(list, "cibule"), u"3 ks + 200 g"_s);
    EXPECT_EQ(itemOf(list, "cibule")->recipes().size(), 3);
    EXPECT_EQ(list.recipes().size(), 3u);
}

TEST(ShoppingList, ARecipeAddedAgainTakesItsOwnPlace) {
    ShoppingList list;
    list.addRecipe({need("máslo", 80, "g", 1), need("kapr", 1200, "g", 1, 4, Department::Fish)});
    list.addRecipe({need("máslo", 40, "g", 2)});
    list.addRecipe({need("máslo", 120, "g", 1, 6), need("kapr", 1800, "g", 1, 6, Department::Fish)});
    EXPECT_EQ(amounts(list, "máslo"), u"160 g"_s);
    EXPECT_EQ(amounts(list, "kapr"), u"1,8 kg"_s);
    list.removeRecipe(1);
    EXPECT_EQ(amounts(list, "máslo"), u"40 g"_s);
    EXPECT_EQ(amounts(list, "kapr"), u"není"_s);
}

TEST(ShoppingList, IsSortedAsOneWalksThroughTheShop) {
    ShoppingList list;
    ShoppingItem salt = need("sůl", 6, "g", 1, 4, Department::Spices);
    salt.atHome = true;
    list.addRecipe({salt, need("řepa", 1, "ks", 1, 4, Department::Vegetables),
                    need("cuketa", 1, "ks", 1, 4, Department::Vegetables),
                    need("chřest", 1, "ks", 1, 4, Department::Vegetables),
                    need("losos", 400, "g", 1, 4, Department::Fish)});
    list.addOwn(u"  papírové   utěrky "_s);
    QStringList names;
    for (const ShoppingItem& item : list.items()) names << item.name;
    EXPECT_EQ(names.join(u','), u"losos,cuketa,chřest,řepa,papírové utěrky,sůl"_s);
    list.setBought(indexOf(list, "cuketa"), true);
    EXPECT_EQ(list.text(kCzech).replace(QChar(0xa0), u' '),
              u"RYBY\n☐ losos – 400 g\n\nZELENINA A OVOCE\n☐ chřest – 1 ks\n☐ řepa – 1 ks\n\n"
              "OSTATNÍ\n☐ papírové utěrky\n"_s);
}

TEST(ShoppingList, EveryChangeCanBeTakenBack) {
    ShoppingList list;
    EXPECT_FALSE(list.canUndo());
    list.addRecipe({need("máslo", 80, "g", 1), need("mouka", 1, "kg", 1)});
    const auto first = list.items();
    list.setAmount(indexOf(list, "mouka"), 500);
    EXPECT_EQ(amounts(list, "mouka"), u"500 g"_s);
    list.setBought(0, true);
    list.removeBought();
    list.remove(0);
    EXPECT_TRUE(list.isEmpty());
    for (int i = 0; i < 4; ++i) list.undo();
    EXPECT_EQ(list.items(), first);
    list.undo();
    list.undo();
    EXPECT_TRUE(list.isEmpty());
    list.addRecipe({need("máslo", 80, "g", 1)});
    list.addOwn(u"houska"_s);
    list.removeRecipe(1);
    EXPECT_EQ(list.items().size(), 1U);
    list.undo();
    EXPECT_EQ(list.items().size(), 2U);
    list.undo();
    EXPECT_EQ(list.items().size(), 1U);
}

TEST(ShoppingList, NothingThatIsNotThereIsChanged) {
    ShoppingList list;
    list.addRecipe({});
    list.addOwn(u"   "_s);
    list.setBought(3, true);
    list.setAmount(-1, 5);
    list.setAtHome(0, true);
    list.remove(0);
    EXPECT_FALSE(list.canUndo());
    list.addOwn(u"sůl"_s);
    list.setAmount(0, 5);  // it has no number
    EXPECT_EQ(amounts(list, "sůl"), QString());
}

TEST(ShoppingList, ManyChangesButNotAllCanBeTakenBack) {
    ShoppingList list;
    for (int i = 0; i <= 51; ++i) list.addOwn(QString::number(100 + i));
    for (int i = 0; i < 50; ++i) list.undo();
    EXPECT_EQ(list.items().size(), 2U);
    EXPECT_FALSE(list.canUndo());
    list.clear();
    EXPECT_TRUE(list.isEmpty());
    list.undo();
    EXPECT_EQ(list.items().size(), 2U);
}

TEST(ShoppingList, WhatIsAddedToAThingCompletesIt) {
    ShoppingList list;
    list.addOwn(u"Máslo"_s);
    list.setBought(0, true);
    EXPECT_TRUE(list.items()[0].isOwn() && list.recipes().empty());
    ShoppingItem butter = need("máslo", 80, "g", 1);
    butter.alternative = u"sádlo"_s;
    list.addRecipe({butter});
    ASSERT_EQ(list.items().size(), 1U);
    EXPECT_FALSE(list.items()[0].bought) << "more of it has to be bought";
    EXPECT_FALSE(list.items()[0].isOwn());
    EXPECT_EQ(list.items()[0].department, Department::Dairy);
    butter.alternative = u"olej"_s;
    butter.department = Department::Dry;
    butter.parts[0].recipe = 2;
    list.addRecipe({butter});
    EXPECT_EQ(list.text(kCzech).replace(QChar(0xa0), u' '),
              u"MLÉČNÉ A VEJCE\n☐ Máslo – 160 g (nebo sádlo)\n"_s);
    list.setAtHome(0, true);
    EXPECT_EQ(list.text(kCzech), QString());
    list.undo();
    list.setBought(0, true);
    list.removeBought();
    EXPECT_TRUE(list.isEmpty());
}

TEST(ShoppingList, ANewAmountIsSharedByWhatItIsFor) {
    ShoppingList list;
    list.addRecipe({need("cibule", 100, "g", 1)});
    list.addRecipe({need("cibule", 0.3, "kg", 2)});
    list.addRecipe({need("cibule", 2, "ks", 3)});
    list.setAmount(0, 800);
    EXPECT_EQ(amounts(list, "cibule"), u"800 g + 2 ks"_s);
    EXPECT_DOUBLE_EQ(list.items()[0].parts[0].amount, 200);
    EXPECT_DOUBLE_EQ(list.items()[0].parts[1].amount, 0.6);
    list.setAmount(0, 0);
    EXPECT_EQ(amounts(list, "cibule"), u"800 g + 2 ks"_s);
}

TEST(ShoppingNeeds, AreWhatTheShopSells) {
    Database none;
    const Goods goods(none);
    Ingredient butter;
    butter.name = u"máslo"_s;
    butter.weights = {u"g"_s, 80};
    butter.spoons = {u"lžíce"_s, 5};
    butter.alternative = u"sádlo"_s;
    Ingredient salt;
    salt.name = u"sůl"_s;
    salt.weights = {u"podle chuti"_s, 0};
    ShoppingList list;
    list.addRecipe(shoppingNeeds({butter, salt}, goods, {7, u"Kapr"_s, 6}, 4));
    EXPECT_EQ(amounts(list, "máslo"), u"120 g"_s);
    EXPECT_EQ(itemOf(list, "máslo")->alternative, u"sádlo"_s);
    EXPECT_EQ(amounts(list, "sůl"), QString());
}

TEST(ShoppingStore, KeepsTheListAsItWas) {
    QTemporaryDir folder;
    const QString path = folder.filePath(u"vlastni.db"_s);
    ShoppingList list;
    list.addRecipe({need("máslo", 80, "g", 1), need("cibule", 2, "ks", 1)});
    list.addRecipe({need("cibule", 200, "g", 2)});
    list.addOwn(u"houska"_s);
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
    UserFile nowhere(folder.path() + u"/vlastni.db/x/y.db"_s);
    EXPECT_FALSE(storeShoppingList(nowhere, list));
    EXPECT_TRUE(readShoppingList(nowhere).isEmpty());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
