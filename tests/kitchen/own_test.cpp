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
    test::expectCases(u"obdobi"_s, [](const QString& day) {
        return occasionsOf(QDate::fromString(day, Qt::ISODate)).join(u' ');
    });
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

/// "1 2" are at home; "not 4" must not be in it, nor the allergens "without 64"; "month 7", "minutes 30".
TEST(Pantry, TheLeastMissingComesFirstThenTheMostUsedThenTheName) {
    test::expectCases(u"spiz"_s, [](const QString& asked) {
        const QStringList words = asked.split(u' ');
        PantryQuery query;
        const auto number = [&](const char* word) {
            const qsizetype at = words.indexOf(QLatin1String(word));
            return at < 0 ? 0 : words[at + 1].toInt();
        };
        for (const QString& word : words) {
            bool isNumber = false;
            const int id = word.toInt(&isNumber);
            if (!isNumber) break;
            query.have.push_back(id);
        }
        if (const int id = number("not")) query.without = {id};
        query.withoutAllergens = number("without");
        query.month = number("month");
        query.mostMinutes = number("minutes");
        const PantryIndex index = book();
        QStringList all;
        for (const PantryMatch& match : index.find(query, 10)) {
            all << u"%1 lacks %2"_s.arg(index.recipe(match.recipe).id).arg(match.missing);
            for (const int id : index.missing(match.recipe, query)) all.last() += u" %1"_s.arg(id);
        }
        return all.join(u", "_s);
    });
    EXPECT_EQ(book().find({{1}, {}, 0, 0, 0}, 1).size(), 1U);
    EXPECT_TRUE(PantryIndex().find({{1}, {}, 0, 0, 0}, 5).empty());
}

TEST(Pantry, AnyWordOfANameIsFoundByItsBeginning) {
    const QStringList names{u"losos"_s,         u"losos uzený"_s, u"Řepa červená"_s, u"olej"_s,
                            u"řízek z oleje"_s, u"hlava kapří"_s, u"kapr"_s};
    std::vector<PantryIngredient> all;
    for (const QString& name : names) all.push_back({int(all.size()) + 1, name});
    test::expectCases(u"spiz-jmena"_s, [&](const QString& word) {
        QStringList found;
        for (const int at : namesWithWord(all, word)) found << names[at];
        return found.join(u", "_s);
    });
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
