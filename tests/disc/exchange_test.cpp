#include <gtest/gtest.h>

#include "disc/exchange/booknames.h"
#include "disc/exchange/cooklang.h"
#include "disc/exchange/ingredientline.h"
#include "disc/exchange/jsonld.h"
#include "disc/exchange/pastedtext.h"
#include "disc/loadcookbook.h"
#include "support/kept.h"

namespace sarne::disc {
namespace {

const QStringList kUnits{u"g"_s, u"ml"_s, u"ks"_s, u"lžíce"_s, u"lžičky"_s, u"hrnky"_s, u"stroužky"_s};

QStringList lines(const SharedRecipe& recipe) {
    QStringList all;
    for (const SharedIngredient& one : recipe.ingredients) all << one.name + u": "_s + one.amount;
    return all;
}

/// All of \a recipe that was read, a line each.
QString told(const SharedRecipe& recipe) {
    return (QStringList{u"%1: for %2, %3 + %4 of %5 minutes"_s.arg(recipe.name)
                            .arg(recipe.portions)
                            .arg(recipe.preparation)
                            .arg(recipe.cooking)
                            .arg(recipe.minutes)} +
            lines(recipe) + recipe.steps)
        .join(u'\n');
}

/// Every recipe of the shipped book, out and in again: through the format, and through its own file.
TEST(ExchangeTest, FiftyRecipesComeBackAsTheyWent) {
    Problems problems;
    const ContentFolder folder(QStringLiteral(SARNE_CONTENT), problems);
    const QStringList units = loadCookbook(folder, problems).unitForms.keys();
    const QStringList files = folder.files(u"recepty"_s);
    ASSERT_EQ(files.size(), 50);
    for (const QString& file : files) {
        const SharedRecipe recipe = sharedRecipe(folder.read(file));
        ASSERT_GE(recipe.ingredients.size(), 6);
        ASSERT_GE(recipe.steps.size(), 2);
        const auto fromJson = fromJsonLd(QString::fromUtf8(toJsonLd(recipe)), units);
        ASSERT_TRUE(fromJson);
        for (const SharedRecipe& back : {*fromJson, fromCooklang(toCooklang(recipe), units)})
            EXPECT_EQ(back, recipe) << file.toStdString() << told(back).toStdString();
        Lines written;
        for (const QString& line : recipeFile(recipe).split(u'\n'))
            if (!line.startsWith(u';')) written << Line{{file, 1}, line};
        SharedRecipe again = sharedRecipe(written);
        const auto byTitle = [](const SharedText& a, const SharedText& b) { return a.title < b.title; };
        SharedRecipe sorted = recipe;
        std::sort(again.texts.begin(), again.texts.end(), byTitle);
        std::sort(sorted.texts.begin(), sorted.texts.end(), byTitle);
        EXPECT_EQ(again, sorted) << file.toStdString();
    }
}

TEST(ExchangeTest, IngredientsAreReadAsPeopleWriteThem) {
    test::expectCases(u"suroviny"_s, [](const QString& text) {
        const SharedIngredient read = readIngredientText(text, kUnits);
        return read.name + u": "_s + read.amount;
    });
}

/// "page ", "cooklang " or "text ", and what follows in that form.
TEST(ExchangeTest, RecipesOfOthersAreRead) {
    test::expectCases(u"cizi"_s, [](const QString& text) {
        const QString form = text.section(u' ', 0, 0), content = text.section(u' ', 1);
        const auto recipe = form == u"page"       ? fromJsonLd(content, kUnits)
                            : form == u"cooklang" ? fromCooklang(content, kUnits)
                                                  : fromPastedText(content, kUnits);
        return recipe ? told(*recipe) : u"none"_s;
    });
}

TEST(ExchangeTest, IngredientsAreNamedAsTheBookDoes) {
    Cookbook book;
    book.ingredients << Ingredient{1, u"mléko"_s, false, {}} << Ingredient{2, u"sůl"_s, false, {}};
    book.refinements.names << u"tučné"_s;
    SharedRecipe recipe = fromPastedText(
        u"Kaše\nSuroviny\n1 l tučného Mléka\n2 g soli\n2 Cibule (Nakrájené)\n100 G RÝŽE\n3 lžíce Tabasca\nMáslo, nebo Sádlo\n"_s,
        kUnits);
    useBookNames(book, recipe, {{{{}, {u"sůl"_s}, {u"soli"_s}}}, {}});
    EXPECT_EQ(lines(recipe),
              (QStringList{u"mléko, tučné: 1000 ml"_s, u"sůl: 2 g"_s, u"cibule, nakrájené: 2 ks"_s,
                           u"rýže: 100 g"_s, u"Tabasca: 3 lžíce"_s, u"máslo: "_s}));
    EXPECT_EQ(recipe.ingredients.last().alternative, u"sádlo"_s);
}

TEST(ExchangeTest, APastedTextBecomesAFileWithMarks) {
    const QString file = recipeFile(
        fromPastedText(u"Bramboračka\nSuroviny:\n- 2 mrkve\n- majoránka\n\nPostup\n1. Okoříme.\n"_s, kUnits));
    EXPECT_TRUE(file.contains(u"; ??? kolik?\nmajoránka: podle chuti\n"_s)) << file.toStdString();
    EXPECT_TRUE(file.contains(u"; ??? minut: celkem od začátku ke stolu\n"_s));
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
