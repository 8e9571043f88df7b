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
#include "support/kept.h"

namespace sarne::disc {
namespace {

class ReadingTest : public testing::Test {
  protected:
    Cookbook load() {
        const ContentFolder folder(small_.path(), problems_);
        return loadCookbook(folder, problems_);
    }

    /// What a reader sees of \a lines.
    static QString words(const Lines& lines) {
        QStringList all;
        for (const Line& line : lines)
            if (!line.isBlank()) all << plainText(line.text).replace(QChar(QChar::Nbsp), u' ');
        return all.join(u'\n');
    }

    SmallCookbook small_;
    Problems problems_;
};

TEST_F(ReadingTest, AnIngredientLineGivesBothUnitSystems) {
    const Cookbook book = load();
    test::expectCases(u"radky"_s, [&](const QString& text) {
        const IngredientLine read = readIngredientLine(linesOf(text.toUtf8()).first(), book, problems_);
        const auto amount = [&](double number, int unit) {
            return u"%1 %2"_s.arg(number).arg(book.unit(unit)->name);
        };
        const Ingredient* alternative = book.ingredient(read.alternative);
        return QStringList{book.ingredient(read.ingredient)->name, amount(read.amount, read.unit),
                           amount(read.spoonAmount, read.spoonUnit), alternative ? alternative->name : u"-"_s}
            .join(u" | "_s);
    });
    EXPECT_EQ(problems_.errors(), QStringList());
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
    const std::tuple<int, QString, QSet<QString>> others[] = {
        {7, u"Čirá polévka"_s, {u"kapr"_s, u"pečené"_s}},
        {10, u"Chlebíčky"_s, {u"pstruh"_s}},
        {14, u"Candát"_s, {u"kapr"_s}}};
    for (const auto& [id, name, tags] : others) {
        Recipe& recipe = book.recipes[id] = book.recipes[6];
        recipe.id = id;
        recipe.name = name;
        recipe.tags = tags;
    }
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

/// Minutes of preparation and of cooking, portions, and what is to be done ahead.
TEST_F(ReadingTest, FactsSayWhatTheHeadKnows) {
    Recipe recipe = load().recipes[6];
    test::expectCases(u"fakta"_s, [&](const QString& text) {
        const QStringList parts = text.split(u" / "_s);
        recipe.preparation = parts[0].toInt();
        recipe.cooking = parts[1].toInt();
        recipe.portions = parts[2].toInt();
        recipe.ahead = parts.value(3);
        return words(factLine(recipe)) + u" / "_s + methodHeading(recipe);
    });
}

TEST_F(ReadingTest, APortionIsReckonedFromTheWeights) {
    // pstruh 600 g, máslo 60 g, mouka 20 g, citron 100 g, víno 30 ml, for two
    Cookbook book = load();
    const std::optional<Nutrition> portion = nutrition(book, book.recipes[6], problems_);
    ASSERT_TRUE(portion);
    EXPECT_NEAR(portion->energy, (660 + 444 + 70 + 20 + 24) / 2.0, 0.01);
    EXPECT_NEAR(portion->protein, (120 + 0.6 + 2 + 0.6) / 2.0, 0.01);
    test::expectText(u"pod-carou"_s, words(factFoot(book.recipes[6], portion)));
    EXPECT_EQ(words(factFoot(Recipe{}, {})), QString());
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
