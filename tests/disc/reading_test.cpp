#include <gtest/gtest.h>

#include "disc/menu.h"
#include "disc/readrecipes.h"
#include "disc/readtables.h"
#include "disc/typography.h"
#include "smallcookbook.h"

namespace sarne::disc {
namespace {

class ReadingTest : public testing::Test {
  protected:
    Cookbook load() {
        const ContentFolder folder(small_.path(), problems_);
        return loadCookbook(folder, problems_);
    }

    SmallCookbook small_;
    Problems problems_;
};

struct LineCase {
    const char* text;
    const char* ingredient;
    double amount;
    const char* unit;
    double spoons;
    const char* spoonUnit;
    const char* alternative;
};

void PrintTo(const LineCase& one, std::ostream* out) {
    *out << one.text;
}

class IngredientLineTest : public ReadingTest, public testing::WithParamInterface<LineCase> {};

TEST_P(IngredientLineTest, GivesBothUnitSystems) {
    const LineCase& wanted = GetParam();
    const Cookbook book = load();
    const Line line{{QStringLiteral("f"), 1}, QString::fromUtf8(wanted.text)};
    const IngredientLine read = readIngredientLine(line, book, problems_);
    ASSERT_FALSE(problems_.hasErrors()) << problems_.errors().join(u'\n').toStdString();
    EXPECT_EQ(book.ingredient(read.ingredient)->name, QString::fromUtf8(wanted.ingredient));
    EXPECT_DOUBLE_EQ(read.amount, wanted.amount);
    EXPECT_EQ(book.unit(read.unit)->name, QString::fromUtf8(wanted.unit));
    EXPECT_DOUBLE_EQ(read.spoonAmount, wanted.spoons);
    EXPECT_EQ(book.unit(read.spoonUnit)->name, QString::fromUtf8(wanted.spoonUnit));
    const Ingredient* alternative = book.ingredient(read.alternative);
    EXPECT_EQ(alternative ? alternative->name : QString(), QString::fromUtf8(wanted.alternative));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, IngredientLineTest,
    testing::Values(LineCase{"máslo: 60 g = 4 lžíce, nebo sádlo", "máslo", 60, "g", 4, "lžíce", "sádlo"},
                    LineCase{"pstruh, celý: 600 gramů = 2 kus", "pstruh", 600, "g", 2, "ks", ""},
                    LineCase{"mouka: 7,5 g = 0,75 lžíci", "mouka", 7.5, "g", 0.75, "lžíce", ""},
                    LineCase{"citron: 1 ks", "citron", 1, "ks", 1, "ks", ""},
                    LineCase{"sůl: podle chuti", "sůl", 0, "podle chuti", 0, "podle chuti", ""}));

TEST_F(ReadingTest, CommentsAndBlankLinesKeepTheLineNumbers) {
    ASSERT_TRUE(small_.replace(QStringLiteral("suroviny.txt"), QStringLiteral("máslo"),
                               QStringLiteral("; poznámka\n\nmáslo")));
    const Cookbook book = load();
    EXPECT_EQ(book.ingredients[1].name, QStringLiteral("máslo"));
    EXPECT_EQ(book.ingredients[1].place.line, 4);
    EXPECT_FALSE(problems_.hasErrors());
}

TEST_F(ReadingTest, TagsComeFromCourseWineTimeAndAuxiliaryRecipes) {
    const QSet<QString> tags = load().recipes[6].tags;
    for (const char* tag : {"pstruh", "teplé", "bílé", "do 30 minut", "Bylinkové máslo"})
        EXPECT_TRUE(tags.contains(QString::fromUtf8(tag))) << tag;
}

TEST_F(ReadingTest, MenuListsFollowTheirTags) {
    Cookbook book = load();
    for (const int id : {7, 10, 14}) {
        Recipe recipe = book.recipes[6];
        recipe.id = id;
        book.recipes.insert(id, recipe);
    }
    book.recipes[7].name = QStringLiteral("Čirá polévka");
    book.recipes[10].name = QStringLiteral("Chlebíčky");
    book.recipes[14].name = QStringLiteral("Candát");
    book.recipes[7].tags = {QStringLiteral("kapr"), QStringLiteral("pečené")};
    book.recipes[14].tags = {QStringLiteral("kapr")};
    MenuTopic topic{{}, 6, QStringLiteral("Výběr"), {}};
    const auto item = [&](const char* target) {
        topic.items << MenuNode{{}, QStringLiteral("Položka"), QString::fromUtf8(target), {}};
    };
    item("kapr, pstruh");
    item("kapr + pečené");
    book.menuTopics = {topic};
    const QList<MenuRow> rows = menuRows(book, problems_);
    ASSERT_EQ(rows.size(), 3);
    // Czech order: c, č, ch, p.
    EXPECT_EQ(rows[1].target, QStringLiteral("14,7,10,6,"));
    EXPECT_EQ(rows[2].target, QStringLiteral("7,"));
    EXPECT_EQ(rows[2].code, QStringLiteral("62"));
}

TEST_F(ReadingTest, SpoonTableComesFromTheWeights) {
    QDir().mkpath(small_.path(QStringLiteral("tabulky")));
    QFile table(small_.path(QStringLiteral("tabulky/5.txt")));
    ASSERT_TRUE(table.open(QIODevice::WriteOnly));
    table.write("5 | Lžíce\nSurovina | Lžička | Lžíce | Hrnek\nVoda | 5 g | 15 g | 250 g\n");
    table.close();
    const Cookbook book = load();
    const LookupTable& spoons = book.tables.last();
    ASSERT_EQ(spoons.rows.size(), 3);
    EXPECT_EQ(spoons.rows[1].join(u'|'), QStringLiteral("Máslo|5 g|15 g|–"));
    EXPECT_EQ(spoons.rows[2].join(u'|'), QStringLiteral("Mouka|3,5 g|10 g|–"));
}

TEST(NumberTest, ReadsTheDecimalComma) {
    EXPECT_DOUBLE_EQ(czechNumber(QStringLiteral("1 200,5")), 1200.5);
    EXPECT_DOUBLE_EQ(czechNumber(QStringLiteral("půl")), -1);
}

TEST(TypographyTest, GoodCzechPasses) {
    Problems problems;
    checkTypography(QStringLiteral("„Voda“ má 80–85 °C, 1,5 litru; 33 % tuku – tak, a dost… 1. 9. – 15. 4."),
                    {}, problems);
    EXPECT_EQ(problems.errors().join(u'\n').toStdString(), "");
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
