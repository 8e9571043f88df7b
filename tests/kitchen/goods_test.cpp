#include "kitchen/goods.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "db/database.h"
#include "kitchen/pantry.h"
#include "support/kept.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

QString numbers(const std::vector<int>& all) {
    QStringList texts;
    for (const int one : all) texts << QString::number(one);
    return texts.join(u' ');
}

TEST(Goods, AndThePantryAreReadFromTheBook) {
    const QTemporaryDir folder;
    Database book;
    EXPECT_TRUE(Goods(book).isEmpty());
    ASSERT_TRUE(book.Open(test::writeRecipeDatabase(
        folder.filePath(u"Sarne.drc"_s),
        {u"INSERT INTO Suroviny VALUES (1,'kapr'),(2,'cibule'),(3,'sůl'),(4,'chřest'),(5,'Hrách'),(6,'voda')"_s,
         u"INSERT INTO Upresneni VALUES (1,'nakrájená'),(2,'filety')"_s,
         u"INSERT INTO Jednotky VALUES (1,'g')"_s,
         u"INSERT INTO Zbozi VALUES (1,0,0,8),(2,1,0,0),(3,4,1,0),(4,7,0,0),(5,-1,2,0),(99,2,0,0)"_s,
         u"INSERT INTO Uprava VALUES (1),(77)"_s,
         u"INSERT INTO Recepty (ID, Nazev, Porce) VALUES (1,'Kapr',4),(2,'Cibulačka',2),(3,'Bez údajů',4)"_s,
         u"INSERT INTO Fakta (ID, Minut, Mesice, Alergeny) VALUES (1,40,4095,8),(2,20,0,64)"_s,
         u"INSERT INTO SpojSur VALUES (1,1,2,1,800,0,0,0),(1,2,1,1,100,0,0,4),(1,3,0,0,0,0,0,0),"
         "(1,2,0,1,1,0,0,0),(2,2,0,0,3,0,0,0),(2,6,0,1,0,0,0,0)"_s})));
    const Goods goods(book);
    QStringList told;
    for (const char* name : {"kapr", "cibule", "sůl", "chřest", "Hrách", "voda"}) {
        const Good good = goods.of(QString::fromUtf8(name));
        told << u"%1: %2%3, allergens %4"_s
                    .arg(QString::fromUtf8(name), departmentName(good.department),
                         good.atHome ? u", at home"_s : QString())
                    .arg(good.allergens);
    }
    for (const auto& [recipe, base] : {std::pair(1, 4), {2, 0}}) {
        for (const ShoppingItem& item :
             shoppingNeeds(readIngredients(book, recipe), goods, {recipe, u"Jídlo"_s, 6}, base))
            told << u"%1 for %2: %3 %4 of %5%6"_s.arg(item.parts[0].recipeName)
                        .arg(item.parts[0].portions)
                        .arg(item.parts[0].amount)
                        .arg(item.parts[0].unit, item.name,
                             item.alternative.isEmpty() ? QString() : u" or "_s + item.alternative);
    }
    for (const PantryRecipe& one : readPantryRecipes(book))
        told << u"%1 %2: of %3; allergens %4, months %5, minutes %6"_s.arg(one.id)
                    .arg(one.name, numbers(one.ingredients))
                    .arg(one.allergens)
                    .arg(one.months)
                    .arg(one.minutes);
    for (const PantryIngredient& one : readPantryIngredients(book))
        told << u"%1 %2"_s.arg(one.id).arg(one.name);
    for (int allergen = 0; allergen <= 15; ++allergen) told << allergenName(allergen);
    test::expectText(u"zbozi"_s, told.join(u'\n'));
    for (const char* table : {"Fakta", "Zbozi"})
        ASSERT_TRUE(book.Execute(u"DROP TABLE "_s + QLatin1String(table)));
    EXPECT_TRUE(readPantryRecipes(book).empty());
    EXPECT_EQ(readPantryIngredients(book).size(), 6U) << "nothing is known to be at hand in every kitchen";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
