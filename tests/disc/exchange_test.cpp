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
        for (const SharedRecipe& back : {*fromJson, fromCooklang(toCooklang(recipe), units)}) {
            EXPECT_EQ(lines(back).join(u'\n').toStdString(), lines(recipe).join(u'\n').toStdString())
                << file.toStdString();
            EXPECT_EQ(back.steps.join(u'\n').toStdString(), recipe.steps.join(u'\n').toStdString())
                << file.toStdString();
            EXPECT_EQ(back, recipe) << file.toStdString();
        }
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

/// A page as they are met: the recipe deep in a graph, sections, texts in the place of lists, entities, a
/// line broken within a text.
TEST(ExchangeTest, ARecipeIsFoundOnASavedPage) {
    const QString page =
        uR"(<html><script type="application/ld+json">{"@type":"Organization"}</script>
<script type='application/ld+json' class="seo"><!--
{"@context":"https://schema.org","@graph":[{"@type":"WebPage","mainEntity":{"@graph":[{"@type":["Thing",
"http://schema.org/Recipe"],"name":"Vajíčka &amp; spol","recipeYield":{"@type":"QuantitativeValue","value":2},
"prepTime":"PT0H20M","cookTime":"PT2700S","totalTime":"P0DT1.5H",
"recipeIngredient":"<p>4 vejce</p><p>&frac12; l mléka</p>","recipeInstructions":[{"@type":"HowToSection",
"name":"Základ","itemListElement":{"@type":"HowToStep","text":"<p>Rozehřejeme
máslo&nbsp;na pánvi.</p>"}},"1. Vlijeme vejce.<br>2. Mícháme.",{"@type":"HowToStep","name":"Podáváme."}],
"image":[],"author":[{"@type":"Person","name":"Jana"}]}]}}]} --></script></html>)"_s;
    const auto recipe = fromJsonLd(page, kUnits);
    ASSERT_TRUE(recipe);
    test::expectText(u"stranka"_s, told(*recipe));
    for (const char* none : {"<html>nic</html>", "{", R"({"@type":"Recipe)", "[[]]"})
        EXPECT_FALSE(fromJsonLd(QString::fromUtf8(none), kUnits)) << none;
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

TEST(ExchangeTest, CooklangOfOthersIsRead) {
    const SharedRecipe recipe = fromCooklang(
        uR"(---
title: "Lívance: zlaté"
servings: 4|8
tags: [snídaně, sladké]
time:
  prep: 1 h 10 min
---
-- poznámka
Smícháme @mouku{=250%g}(hladkou) a @mléko{1/2%l} v #velké míse{}.

Smažíme na @olej{} ~{5%minut} [- nebo déle -], osolíme @sůl. Necháme ~odpočinek{1%hodinu}.

Podáváme s @./omáčky/vanilkový krém{200%ml}.
)"_s,
        kUnits);
    test::expectText(u"cooklang"_s, told(recipe));
}

TEST(ExchangeTest, APastedTextBecomesAFileWithMarks) {
    const SharedRecipe recipe = fromPastedText(
        u"Bramboračka\n4 porce\n\nSuroviny:\n- 500 g brambor\n- 2 mrkve\n- majoránka\n\nPostup\n"
        "1. Brambory nakrájíme\na uvaříme.\n2. Okoříme.\n"_s,
        kUnits);
    test::expectText(u"vlozeny"_s, told(recipe));
    const QString file = recipeFile(recipe);
    EXPECT_TRUE(file.contains(u"; ??? kolik?\nmajoránka: podle chuti\n"_s)) << file.toStdString();
    EXPECT_TRUE(file.contains(u"; ??? minut: celkem od začátku ke stolu\n"_s));
    const SharedRecipe bare = fromPastedText(u"Čaj\n1 lžíce čaje\nZalijeme vodou.\n"_s, kUnits);
    EXPECT_EQ(bare.ingredients.size(), 1);
    EXPECT_EQ(bare.steps.size(), 1);
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
