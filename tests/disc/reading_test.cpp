#include <gtest/gtest.h>

#include "disc/markup.h"
#include "disc/menu.h"
#include "disc/readrecipes.h"
#include "disc/readtables.h"
#include "disc/recipefacts.h"
#include "disc/typography.h"
#include "medialines.h"
#include "smallcookbook.h"
#include "support/files.h"

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

TEST_F(ReadingTest, AnIngredientLineGivesBothUnitSystems) {
    const Cookbook book = load();
    const std::pair<const char*, const char*> cases[] = {
        {"máslo: 60 g = 4 lžíce, nebo sádlo", "máslo|60 g|4 lžíce|sádlo"},
        {"pstruh, celý: 600 gramů = 2 kus", "pstruh|600 g|2 ks|"},
        {"mouka: 7,5 g = 0,75 lžíci", "mouka|7.5 g|0.75 lžíce|"},
        {"citron: 1 ks", "citron|1 ks|1 ks|"},
        {"sůl: podle chuti", "sůl|0 podle chuti|0 podle chuti|"}};
    for (const auto& [text, wanted] : cases) {
        const IngredientLine read = readIngredientLine(linesOf(text).first(), book, problems_);
        ASSERT_EQ(problems_.errors(), QStringList()) << text;
        const auto amount = [&](double number, int unit) {
            return u"%1 %2|"_s.arg(number).arg(book.unit(unit)->name);
        };
        const Ingredient* alternative = book.ingredient(read.alternative);
        EXPECT_EQ(book.ingredient(read.ingredient)->name + u'|' + amount(read.amount, read.unit) +
                      amount(read.spoonAmount, read.spoonUnit) +
                      (alternative ? alternative->name : QString()),
                  QString::fromUtf8(wanted));
    }
}

TEST_F(ReadingTest, CommentsAndBlankLinesKeepTheLineNumbers) {
    ASSERT_TRUE(small_.replace(u"suroviny.txt"_s, u"máslo"_s, u"; poznámka\n\nmáslo"_s));
    const Cookbook book = load();
    EXPECT_EQ(book.ingredients[1].name, u"máslo"_s);
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
    book.recipes[7].name = u"Čirá polévka"_s;
    book.recipes[10].name = u"Chlebíčky"_s;
    book.recipes[14].name = u"Candát"_s;
    book.recipes[7].tags = {u"kapr"_s, u"pečené"_s};
    book.recipes[14].tags = {u"kapr"_s};
    MenuTopic topic{{}, 6, u"Výběr"_s, {}};
    const auto item = [&](const char* target) {
        topic.items << MenuNode{{}, u"Položka"_s, QString::fromUtf8(target), {}};
    };
    item("kapr, pstruh");
    item("kapr + pečené");
    book.menuTopics = {topic};
    const QList<MenuRow> rows = menuRows(book, problems_);
    ASSERT_EQ(rows.size(), 3);
    // Czech order: c, č, ch, p.
    EXPECT_EQ(rows[1].target, u"14,7,10,6,"_s);
    EXPECT_EQ(rows[2].target, u"7,"_s);
    EXPECT_EQ(rows[2].code, u"62"_s);
}

TEST_F(ReadingTest, SpoonTableComesFromTheWeights) {
    ASSERT_TRUE(test::write(small_.path(u"tabulky/5.txt"_s),
                            "5 | Lžíce\nSurovina | Lžička | Lžíce | Hrnek\nVoda | 5 g | 15 g | 250 g\n"));
    const Cookbook book = load();
    const LookupTable& spoons = book.tables.last();
    ASSERT_EQ(spoons.rows.size(), 3);
    EXPECT_EQ(spoons.rows[1].join(u'|'), u"Máslo|5 g|15 g|–"_s);
    EXPECT_EQ(spoons.rows[2].join(u'|'), u"Mouka|3,5 g|10 g|–"_s);
}

TEST(NumberTest, ReadsTheDecimalComma) {
    EXPECT_DOUBLE_EQ(czechNumber(u"1 200,5"_s), 1200.5);
    EXPECT_DOUBLE_EQ(czechNumber(u"půl"_s), -1);
}

TEST(TypographyTest, GoodCzechPasses) {
    Problems problems;
    checkTypography(u"„Voda“ má 80–85 °C, 1,5 litru; 33 % tuku – tak, a dost… 1. 9. – 15. 4."_s, {},
                    problems);
    EXPECT_EQ(problems.errors().join(u'\n').toStdString(), "");
}

class FactsTest : public testing::Test {
  protected:
    FactsTest() {
        const ContentFolder folder(small_.path(), problems_);
        book_ = loadCookbook(folder, problems_);
    }

    static std::string text(const Lines& lines) {
        QStringList all;
        for (const Line& line : lines)
            if (!line.isBlank()) all << plainText(line.text).replace(QChar(QChar::Nbsp), u' ');
        return all.join(u'\n').toStdString();
    }

    SmallCookbook small_;
    Problems problems_;
    Cookbook book_;
};

TEST_F(FactsTest, SayWhatTheHeadKnows) {
    Recipe& recipe = book_.recipes[6];
    EXPECT_EQ(text(factLine(recipe)), "Příprava 10 min · vaření 15 min · 2 porce · snadné");
    EXPECT_EQ(methodHeading(recipe), u"Postup pro 2 porce"_s);
    recipe.ahead = u"12 hodin v chladu"_s;
    recipe.portions = 6;
    recipe.cooking = 0;
    EXPECT_EQ(text(factLine(recipe)), "Příprava 10 min · předem: 12 hodin v chladu · 6 porcí · snadné");
    EXPECT_EQ(methodHeading(recipe), u"Postup pro 6 porcí"_s);
    recipe.portions = 1;
    EXPECT_EQ(methodHeading(recipe), u"Postup pro 1 porci"_s);
    recipe.preparation = 0;
    EXPECT_EQ(text(factLine(recipe)), "");
}

TEST_F(FactsTest, APortionIsReckonedFromTheWeights) {
    // pstruh 600 g, máslo 60 g, mouka 20 g, citron 100 g, víno 30 ml, for two
    const std::optional<Nutrition> portion = nutrition(book_, book_.recipes[6], problems_);
    ASSERT_TRUE(portion);
    EXPECT_NEAR(portion->energy, (660 + 444 + 70 + 20 + 24) / 2.0, 0.01);
    EXPECT_NEAR(portion->protein, (120 + 0.6 + 2 + 0.6) / 2.0, 0.01);
    EXPECT_EQ(
        text(factFoot(book_.recipes[6], portion)),
        "Jedna porce: asi 610 kcal (2 550 kJ), 62 g bílkovin. Alergeny: 1 lepek, 4 ryby, 7 mléko, 12 oxid "
        "siřičitý.\nSezona: celoročně. Kosti: ano. Mrazit: ne. Vydrží: 1 den v chladu.");
    EXPECT_EQ(text(factFoot(Recipe{}, {})), "");
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
