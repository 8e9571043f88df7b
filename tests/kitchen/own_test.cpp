#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "db/database.h"
#include "db/notestore.h"
#include "db/recipemarks.h"
#include "db/userfile.h"
#include "kitchen/cooked.h"
#include "kitchen/dinner.h"
#include "kitchen/feasts.h"
#include "kitchen/owncookery.h"
#include "kitchen/pantry.h"
#include "kitchen/shoppingstore.h"
#include "kitchen/timerstore.h"
#include "support/kept.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

/// Whoever misspells a name here loses what cooks have kept with the edition before.
TEST(UsersFile, KeepsItsNamesFromEditionToEdition) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"vlastni.db"_s);
    {
        UserFile file(path);
        NoteStore notes(file);
        ShoppingList list;
        list.addRecipe(
            {{u"máslo"_s, Department::Dairy, false, true, u"sádlo"_s, {{7, u"Kapr"_s, 4, u"g"_s, 80}}}});
        const KitchenTimer timer{1, u"Ryba"_s, 601000, false};
        EXPECT_TRUE(RecipeMarks(file).setStars(7, u"Kapr"_s, 3) &&
                    RecipeMarks(file).keepOpened(7, u"Kapr"_s, {{2026, 12, 1}, {18, 0}}) &&
                    keepCooked(file, 7, u"Kapr"_s, {2026, 7, 1}, 4) && storeShoppingList(file, list) &&
                    storeDinner(file, {u"Vánoce"_s, {1, 0, 3}, 6.5, 750}) &&
                    storeTimers(file, {timer}, 1000, 90000) && notes.keep({7, u"Kapr"_s, u"sůl"_s}) &&
                    notes.keepDraft(3, u"rozepsáno"_s));
    }
    const SQLite::Database db(path.toStdString());
    QStringList rows;
    SQLite::Statement tables(db, "SELECT name, sql FROM sqlite_master WHERE type = 'table' ORDER BY name");
    while (tables.executeStep()) {
        rows << QString::fromStdString(tables.getColumn(1).getString());
        SQLite::Statement all(db, "SELECT * FROM " + tables.getColumn(0).getString());
        for (QStringList row; all.executeStep(); row.clear()) {
            for (int i = 0; i < all.getColumnCount(); ++i)
                row << QString::fromStdString(all.getColumn(i).getString());
            rows << u"    "_s + row.join(u" | "_s);
        }
    }
    test::expectText(u"vlastni-soubor"_s, rows.join(u'\n'));
}

TEST(Feasts, FallIntoTheirMonths) {
    QStringList easters;  // the earliest and the latest among them
    for (const int first : {1815, 1885, 1940, 2010, 2020, 2030, 2280}) {
        QStringList days;
        for (int year = first; year < first + 10; ++year) days << easterSunday(year).toString(u"d.M."_s);
        easters << u"%1: "_s.arg(first) + days.join(u' ');
    }
    test::expectText(u"velikonoce"_s, easters.join(u'\n'));
    const auto of = [](QDate day) { return occasionsOf(day).join(u' '); };
    EXPECT_EQ(of({2026, 12, 1}), u"Vánoce Silvestr zima"_s);
    EXPECT_EQ(of({2026, 4, 30}), u"Velikonoce jaro"_s);
    EXPECT_EQ(of({2029, 3, 1}), u"Velikonoce jaro"_s);  // Sunday is the first of April
    EXPECT_EQ(of({2026, 3, 1}), u"jaro"_s);
    EXPECT_EQ(of({2026, 8, 1}), u"léto"_s);
    EXPECT_EQ(of({2026, 1, 1}), u"zima"_s);
}

class OwnCookery : public testing::Test {
  protected:
    OwnCookery() {
        book_.Open(test::writeRecipeDatabase(
            folder_.filePath(u"Sarne.drc"_s),
            {u"INSERT INTO Recepty (ID, Nazev, Vlastni) VALUES (1,'Smažený kapr',NULL),"
             "(2,'Amur na grilu','více kopru'),(3,'Candát',''),(4,'Treska',NULL)"_s,
             u"INSERT INTO Fakta (ID, Mesice, Obdobi) VALUES (1,3591,'Vánoce,zima'),(2,992,'léto'),"
             "(3,4095,'podzim,zima'),(4,4095,'jaro')"_s}));
    }

    QString shelf(Shelf which, QDate today) {
        QStringList names;
        for (const OwnRecipe& one : onShelf(readOwnRecipes(book_, file_), which, today)) names << one.name;
        return names.join(u", "_s);
    }

    QTemporaryDir folder_;
    Database book_;
    UserFile file_{folder_.filePath(u"vlastni.db"_s)};
    const QDate december_{2026, 12, 10};
};

TEST_F(OwnCookery, HasAShelfForEverythingTheUserHasMade) {
    RecipeMarks marks(file_);
    EXPECT_TRUE(marks.setStars(3, u"Candát"_s, 3));
    EXPECT_TRUE(marks.setStars(4, u"Treska"_s, 9));  // no more than five
    EXPECT_TRUE(marks.keepOpened(3, u"Candát"_s, QDateTime({2026, 12, 1}, {18, 0})));
    EXPECT_TRUE(marks.keepOpened(1, u"Smažený kapr"_s, QDateTime({2026, 12, 2}, {9, 0})));
    keepCooked(file_, 2, u"Amur na grilu"_s, {2026, 7, 1}, 4);
    keepCooked(file_, 2, u"Amur na grilu"_s, {2026, 7, 8}, 4);
    keepCooked(file_, 4, u"Treska"_s, {2026, 7, 5}, 4);
    keepCooked(file_, 9, u"Jiná kniha"_s, {2026, 7, 5}, 4);
    EXPECT_EQ(marks.stars(3, u"Candát"_s), 3);  // looking at it took none away
    EXPECT_EQ(shelf(Shelf::Starred, december_), u"Treska, Candát"_s);
    EXPECT_EQ(shelf(Shelf::Opened, december_), u"Smažený kapr, Candát"_s);
    EXPECT_EQ(shelf(Shelf::Cooked, december_), u"Amur na grilu, Treska"_s);
    EXPECT_EQ(shelf(Shelf::Noted, december_), u"Amur na grilu"_s);
    marks.setStars(3, u"Candát"_s, 0);
    EXPECT_EQ(shelf(Shelf::Starred, december_), u"Treska"_s);
}

TEST_F(OwnCookery, ThisMonthBeginsWithItsFeasts) {
    EXPECT_EQ(shelf(Shelf::ThisMonth, december_), u"Smažený kapr, Candát"_s);
    EXPECT_EQ(shelf(Shelf::ThisMonth, {2026, 7, 1}), u"Amur na grilu"_s);
    EXPECT_EQ(shelf(Shelf::ThisMonth, {2026, 10, 1}), u"Candát"_s);
    const auto all = readOwnRecipes(book_, file_);
    EXPECT_EQ(reasonThisMonth(all[0], december_), u"Vánoce"_s);
    EXPECT_EQ(reasonThisMonth(all[1], {2026, 7, 1}), u"v sezoně"_s);
    EXPECT_EQ(reasonThisMonth(all[1], december_), QString());
    EXPECT_EQ(reasonThisMonth(all[2], december_), u"hodí se teď"_s);
    OwnRecipe both = all[0];
    both.occasions = QStringList{u"Silvestr"_s, u"zima"_s, u"Vánoce"_s};
    EXPECT_EQ(reasonThisMonth(both, december_), u"Vánoce, Silvestr"_s);
    OwnRecipe unknown = all[2];
    unknown.months = 0;
    EXPECT_EQ(reasonThisMonth(unknown, december_), u"hodí se teď"_s);
    EXPECT_TRUE(unknown.isForAllYear() && all[2].isForAllYear() && !all[0].isForAllYear());
    // Of those that are as near the one with more stars, and no star makes up for the season.
    ASSERT_TRUE(book_.Execute(u"UPDATE Fakta SET Obdobi = 'zima' WHERE ID IN (1, 2, 4)"_s));
    RecipeMarks(file_).setStars(3, u"Candát"_s, 5);
    RecipeMarks(file_).setStars(4, u"Treska"_s, 1);
    EXPECT_EQ(shelf(Shelf::ThisMonth, december_), u"Smažený kapr, Candát, Treska"_s);
}

TEST_F(OwnCookery, FindsItsRecipesInAnEditionThatNumbersOtherwise) {
    RecipeMarks(file_).setStars(40, u"Candát"_s, 4);
    RecipeMarks(file_).setStars(1, u"Losos, který tu není"_s, 5);
    EXPECT_EQ(shelf(Shelf::Starred, december_), u"Candát"_s);
    EXPECT_EQ(RecipeMarks(file_).stars(1, u"Smažený kapr"_s), 0);
}

TEST_F(OwnCookery, ABookWithoutFactsHasTheOtherShelves) {
    ASSERT_TRUE(book_.Execute(u"DROP TABLE Fakta"_s));
    RecipeMarks(file_).setStars(1, u"Smažený kapr"_s, 1);
    EXPECT_EQ(shelf(Shelf::Starred, december_), u"Smažený kapr"_s);
    EXPECT_EQ(shelf(Shelf::ThisMonth, december_), QString());
}

constexpr int kMilk = 1 << 6;

/// kapr 1, máslo 2, losos 3, smetana 4, losos uzený 5.
PantryIndex book() {
    return PantryIndex({{1, u"Kapr na másle"_s, {1, 2}, kMilk, 0b111000000111, 40},
                        {2, u"Losos se smetanou"_s, {3, 4, 2}, kMilk, 0xfff, 25},
                        {3, u"Čistý kapr"_s, {1}, 0, 0, 90},
                        {4, u"Chlebíčky"_s, {5, 2}, kMilk, 0xfff, 0}});
}

QString found(const PantryQuery& query) {
    const PantryIndex index = book();
    QStringList all;
    for (const PantryMatch& match : index.find(query, 10))
        all << u"%1:%2"_s.arg(index.recipe(match.recipe).id).arg(match.missing);
    return all.join(u' ');
}

TEST(Pantry, TheLeastMissingComesFirstThenTheMostUsedThenTheName) {
    EXPECT_EQ(found({{1, 2}, {}, 0, 0, 0}), u"1:0 3:0 4:1 2:2"_s);
    EXPECT_EQ(found({{2}, {}, 0, 0, 0}), u"4:1 1:1 2:2"_s);  // Ch stands behind H, before K
    EXPECT_EQ(found({{77, -1}, {}, 0, 0, 0}), QString());
    EXPECT_EQ(found({}), u"3:1 4:2 1:2 2:3"_s);  // with nothing chosen all are there
}

TEST(Pantry, WhatMustNotBeInARecipeKeepsItOut) {
    EXPECT_EQ(found({{1, 2}, {4}, 0, 0, 0}), u"1:0 3:0 4:1"_s);
    EXPECT_EQ(found({{1, 2}, {2}, 0, 0, 0}), u"3:0"_s);
    EXPECT_EQ(found({{1, 2}, {}, kMilk, 0, 0}), u"3:0"_s);
    EXPECT_EQ(found({{1, 2}, {}, 0, 7, 0}), u"3:0 4:1 2:2"_s);  // carp is out of season in July
    EXPECT_EQ(found({{1, 2}, {}, 0, 1, 0}), u"1:0 3:0 4:1 2:2"_s);
    EXPECT_EQ(found({{1, 2}, {}, 0, 0, 30}), u"2:2"_s);  // an unknown time is no short one
}

TEST(Pantry, NamesWhatIsMissing) {
    const PantryIndex index = book();
    const PantryQuery query{{2, 3}, {}, 0, 0, 0};
    const auto matches = index.find(query, 1);
    ASSERT_EQ(matches.size(), 1u);
    EXPECT_EQ(index.missing(matches[0].recipe, query), std::vector<int>{4});
    EXPECT_TRUE(PantryIndex().find(query, 5).empty());
}

TEST(Pantry, AnyWordOfANameIsFoundByItsBeginning) {
    const std::vector<PantryIngredient> all{{3, u"losos"_s},
                                            {5, u"losos uzený"_s},
                                            {6, u"Řepa červená"_s},
                                            {7, u"olej"_s},
                                            {8, u"řízek z oleje"_s}};
    EXPECT_EQ(namesWithWord(all, u"olej"_s), (std::vector<int>{3, 4}));
    EXPECT_EQ(namesWithWord(all, u"z"_s), (std::vector<int>{4}));
    EXPECT_EQ(namesWithWord({{1, u"hlava kapří"_s}, {2, u"kapr"_s}}, u"kapr"_s), (std::vector<int>{1, 0}));
    EXPECT_EQ(namesWithWord(all, u"los"_s), (std::vector<int>{0, 1}));
    EXPECT_EQ(namesWithWord(all, u"UZE"_s), (std::vector<int>{1}));
    EXPECT_EQ(namesWithWord(all, u"cerv"_s), (std::vector<int>{2}));
    EXPECT_EQ(namesWithWord(all, u"ř"_s), (std::vector<int>{2, 4}));
    EXPECT_EQ(namesWithWord(all, u"sos"_s), std::vector<int>{});
    EXPECT_EQ(namesWithWord(all, u"  "_s).size(), 5u);
}

TEST(Pantry, OnlyAllergensThatTellRecipesApartAreWorthAsking) {
    EXPECT_EQ(
        PantryIndex({{1, u"a"_s, {1}, 0b1001, 0, 0}, {2, u"b"_s, {1}, 0b1100, 0, 0}}).tellingAllergens(),
        0b0101);
    EXPECT_EQ(PantryIndex(std::vector<PantryRecipe>{}).tellingAllergens(), 0);
    EXPECT_EQ(allergenName(9), u"celer"_s);
    EXPECT_EQ(allergenName(15), QString());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
