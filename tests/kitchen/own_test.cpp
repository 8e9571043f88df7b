// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "db/database.h"
#include "db/recipemarks.h"
#include "db/userfile.h"
#include "kitchen/cooked.h"
#include "kitchen/feasts.h"
#include "kitchen/owncookery.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

TEST(Feasts, FallIntoTheirMonths) {
    const struct {
        int year, month, day;
    } easters[] = {{2024, 3, 31}, {2025, 4, 20}, {2026, 4, 5}, {2027, 3, 28}, {2038, 4, 25}, {2285, 3, 22}};
    for (const auto& [year, month, day] : easters) EXPECT_EQ(easterSunday(year), QDate(year, month, day));
    const auto of = [](QDate day) { return occasionsOf(day).join(u' '); };
    EXPECT_EQ(of({2026, 12, 1}), QStringLiteral("Vánoce Silvestr zima"));
    EXPECT_EQ(of({2026, 4, 30}), QStringLiteral("Velikonoce jaro"));
    EXPECT_EQ(of({2029, 3, 1}), QStringLiteral("Velikonoce jaro"));  // Sunday is the first of April
    EXPECT_EQ(of({2026, 3, 1}), QStringLiteral("jaro"));
    EXPECT_EQ(of({2026, 8, 1}), QStringLiteral("léto"));
    EXPECT_EQ(of({2026, 1, 1}), QStringLiteral("zima"));
}

class OwnCookery : public testing::Test {
  protected:
    OwnCookery() {
        const auto row = [](const char* text) { return QString::fromUtf8(text); };
        const QString file = folder_.filePath(QStringLiteral("Sarne.drc"));
        test::writeRecipeDatabase(
            file, {row("INSERT INTO Recepty (ID, Nazev, Vlastni) VALUES (1,'Smažený kapr',NULL),"
                       "(2,'Amur na grilu','více kopru'),(3,'Candát',''),(4,'Treska',NULL)"),
                   row("INSERT INTO Fakta (ID, Mesice, Obdobi) VALUES (1,3591,'Vánoce,zima'),(2,992,'léto'),"
                       "(3,4095,'podzim,zima'),(4,4095,'jaro')")});
        book_.Open(file);
    }

    QString shelf(Shelf which, QDate today) {
        QStringList names;
        for (const OwnRecipe& one : onShelf(readOwnRecipes(book_, file_), which, today)) names << one.name;
        return names.join(QStringLiteral(", "));
    }

    QTemporaryDir folder_;
    Database book_;
    UserFile file_{folder_.filePath(QStringLiteral("vlastni.db"))};
    const QDate december_{2026, 12, 10};
};

TEST_F(OwnCookery, HasAShelfForEverythingTheUserHasMade) {
    RecipeMarks marks(file_);
    EXPECT_TRUE(marks.setStars(3, QStringLiteral("Candát"), 3));
    EXPECT_TRUE(marks.setStars(4, QStringLiteral("Treska"), 9));  // no more than five
    EXPECT_TRUE(marks.keepOpened(3, QStringLiteral("Candát"), QDateTime({2026, 12, 1}, {18, 0})));
    EXPECT_TRUE(marks.keepOpened(1, QStringLiteral("Smažený kapr"), QDateTime({2026, 12, 2}, {9, 0})));
    keepCooked(file_, 2, QStringLiteral("Amur na grilu"), {2026, 7, 1}, 4);
    keepCooked(file_, 2, QStringLiteral("Amur na grilu"), {2026, 7, 8}, 4);
    keepCooked(file_, 4, QStringLiteral("Treska"), {2026, 7, 5}, 4);
    EXPECT_EQ(marks.stars(3, QStringLiteral("Candát")), 3);  // looking at it took none away
    EXPECT_EQ(shelf(Shelf::Starred, december_), QStringLiteral("Treska, Candát"));
    EXPECT_EQ(shelf(Shelf::Opened, december_), QStringLiteral("Smažený kapr, Candát"));
    EXPECT_EQ(shelf(Shelf::Cooked, december_), QStringLiteral("Amur na grilu, Treska"));
    EXPECT_EQ(shelf(Shelf::Noted, december_), QStringLiteral("Amur na grilu"));
    marks.setStars(3, QStringLiteral("Candát"), 0);
    EXPECT_EQ(shelf(Shelf::Starred, december_), QStringLiteral("Treska"));
}

TEST_F(OwnCookery, ThisMonthBeginsWithItsFeasts) {
    EXPECT_EQ(shelf(Shelf::ThisMonth, december_), QStringLiteral("Smažený kapr, Candát"));
    EXPECT_EQ(shelf(Shelf::ThisMonth, {2026, 7, 1}), QStringLiteral("Amur na grilu"));
    EXPECT_EQ(shelf(Shelf::ThisMonth, {2026, 10, 1}), QStringLiteral("Candát"));
    const auto all = readOwnRecipes(book_, file_);
    EXPECT_EQ(reasonThisMonth(all[0], december_), QStringLiteral("Vánoce"));
    EXPECT_EQ(reasonThisMonth(all[1], {2026, 7, 1}), QStringLiteral("v sezoně"));
    EXPECT_EQ(reasonThisMonth(all[1], december_), QString());
}

TEST_F(OwnCookery, FindsItsRecipesInAnEditionThatNumbersOtherwise) {
    RecipeMarks(file_).setStars(40, QStringLiteral("Candát"), 4);
    RecipeMarks(file_).setStars(1, QStringLiteral("Losos, který tu není"), 5);
    EXPECT_EQ(shelf(Shelf::Starred, december_), QStringLiteral("Candát"));
    EXPECT_EQ(RecipeMarks(file_).stars(1, QStringLiteral("Smažený kapr")), 0);
}

TEST_F(OwnCookery, ABookWithoutFactsHasTheOtherShelves) {
    ASSERT_TRUE(book_.Execute(QStringLiteral("DROP TABLE Fakta")));
    RecipeMarks(file_).setStars(1, QStringLiteral("Smažený kapr"), 1);
    EXPECT_EQ(shelf(Shelf::Starred, december_), QStringLiteral("Smažený kapr"));
    EXPECT_EQ(shelf(Shelf::ThisMonth, december_), QString());
}

}  // namespace
}  // namespace sarne
