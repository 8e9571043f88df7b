#include <gtest/gtest.h>

#include "db/database.h"
#include "disc/season.h"
#include "kitchen/goods.h"
#include "kitchen/steps.h"
#include "smallcookbook.h"

namespace sarne::disc {
namespace {

const QString kRecipe = QStringLiteral("recepty/06-pstruh.txt");

/// The steps of recipe 6 in words: "0:1 4:1" are all of the lines 0 and 4.
QString stepsOf(const Cookbook& book) {
    QStringList steps;
    for (const RecipeStep& step : book.recipes[6].steps) {
        QStringList shares;
        for (auto share = step.shares.cbegin(); share != step.shares.cend(); ++share)
            shares << QStringLiteral("%1:%2").arg(share.key()).arg(*share, 0, 'g', 3);
        steps << shares.join(u' ');
    }
    return steps.join(QStringLiteral(" | "));
}

struct MarkedMethod {
    const char* marks;    ///< put behind "na másle" of the second step
    const char* serving;  ///< put behind "citronem" of the serving
    const char* steps;
};

TEST(StepsTest, TakeWhatTheMethodSaysAndElseAllAtOnce) {
    // pstruh, máslo 60 g = 4 lžíce, mouka, citron, víno, sůl
    const MarkedMethod cases[] = {
        {"", "", "0:1 2:1 5:1 | 1:1 4:1 | 3:1"},
        {" {máslo: polovina} {máslo: zbytek}", "", "0:1 2:1 5:1 | 1:1 4:1 | 3:1"},
        {" {máslo: 1 lžíce}", " {máslo: tři čtvrtiny}", "0:1 2:1 5:1 | 1:0.25 4:1 | 1:0.75 3:1"},
        {" {máslo: 40 g}", " {máslo: zbytek}", "0:1 2:1 5:1 | 1:0.667 4:1 | 1:0.333 3:1"},
        {"", " {mouka: vše}", "0:1 5:1 | 1:1 4:1 | 2:1 3:1"},
    };
    for (const MarkedMethod& one : cases) {
        SmallCookbook small;
        ASSERT_TRUE(small.replace(kRecipe, QStringLiteral("pánvi na másle"),
                                  QStringLiteral("pánvi na másle") + QString::fromUtf8(one.marks)));
        ASSERT_TRUE(small.replace(kRecipe, QStringLiteral("a citronem."),
                                  QStringLiteral("a citronem%1.").arg(QString::fromUtf8(one.serving))));
        Problems problems;
        const Cookbook book = loadCookbook(ContentFolder(small.path(), problems), problems);
        EXPECT_EQ(problems.errors().join(u'\n').toStdString(), "");
        EXPECT_EQ(stepsOf(book).toStdString(), one.steps) << one.marks << one.serving;
        for (const Line& line : book.recipes[6].method) EXPECT_FALSE(line.text.contains(u'{'));
        EXPECT_EQ(book.recipes[6].steps.last().title, QStringLiteral("Na stůl"));
    }
}

struct WrongMark {
    const char *mark, *message;
};

TEST(StepsTest, WhatDoesNotAddUpIsReportedAtItsLine) {
    const WrongMark cases[] = {
        {"{máslo: polovina}", "recepty/06-pstruh.txt:20: podíly suroviny „máslo“ v postupu dávají 50 %"},
        {"{máslo: 5 lžíce}", "recepty/06-pstruh.txt:20: podíly suroviny „máslo“ v postupu dávají 125 %"},
        {"{máslo: vše} {máslo: zbytek}", ": „zbytek“ není podíl suroviny „máslo“"},
        {"{máslo: hodně}", ": „hodně“ není podíl suroviny „máslo“"},
        {"{maslo: vše}", ": recept nemá surovinu „maslo“ – mysleli jste „máslo“?"},
        {"{máslo}", ": podíl není „surovina: podíl“: „máslo“"},
        {"{máslo: vše", ": závorka podílu nekončí na témže řádku"},
    };
    for (const WrongMark& one : cases) {
        SmallCookbook small;
        ASSERT_TRUE(small.replace(kRecipe, QStringLiteral("pánvi na másle"),
                                  QStringLiteral("pánvi na másle ") + QString::fromUtf8(one.mark)));
        const QString all = small.complaints().join(u'\n');
        EXPECT_TRUE(all.contains(QString::fromUtf8(one.message))) << one.mark << "\n" << all.toStdString();
    }
}

TEST(SeasonTest, IsASetOfMonths) {
    EXPECT_EQ(monthsOf(QStringLiteral("celoročně, nejlepší květen–srpen")), 0xfff);
    EXPECT_EQ(monthsOf(QStringLiteral("květen–červenec")), 0b000001110000);
    EXPECT_EQ(monthsOf(QStringLiteral("listopad–únor")), 0b110000000011);
    EXPECT_EQ(monthsOf(QStringLiteral("září")), 0b000100000000);
    EXPECT_FALSE(monthsOf(QStringLiteral("na jaře")));
    EXPECT_FALSE(monthsOf(QString()));
}

TEST(GoodsTest, AreReadAndReachTheBook) {
    SmallCookbook small;
    QFile file(small.path(QStringLiteral("obchod.txt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "== Ryby\npstruh\n== Mléčné\nmáslo, sádlo, slon\n== Suché\nmouka, máslo\n== Doma\nsůl\n"
        "== Úpravy\ncelý\n== Výtěžnost\ncelý: 100 %\nsůl: 5\n");
    file.close();
    const QString all = small.complaints().join(u'\n');
    for (const char* message :
         {"obchod.txt:4: „slon“ není v seznamu", "obchod.txt:5: „máslo“ je už v jiném oddělení",
          "obchod.txt:13: výtěžnost není „upřesnění: 45 %“",
          "suroviny.txt:4: obchod.txt neříká, v kterém oddělení je „citron“"})
        EXPECT_TRUE(all.contains(QString::fromUtf8(message))) << message << "\n" << all.toStdString();
}

TEST(GoodsTest, TheShippedBookKnowsItsGoodsAndSteps) {
    SmallCookbook small;
    Problems problems;
    const Cookbook book = loadCookbook(ContentFolder(QStringLiteral(SARNE_CONTENT), problems), problems);
    const QString file = small.path(QStringLiteral("Sarne.drc"));
    writeRecipeDatabase(book, file, problems);
    Database db;
    ASSERT_TRUE(db.Open(file));
    const sarne::Goods goods(db);
    EXPECT_EQ(goods.of(QStringLiteral("kapr")).department, Department::Fish);
    EXPECT_TRUE(goods.of(QStringLiteral("sůl")).atHome);
    EXPECT_EQ(goods.of(QStringLiteral("máslo")).allergens, 1 << 6);
    // Every ingredient of every recipe is needed in some step, and wholly.
    for (int recipe = 1; recipe <= 50; ++recipe) {
        std::vector<double> sums(readIngredients(db, recipe).size());
        for (const CookingStep& step : readSteps(db, recipe))
            for (const StepNeed& need : step.needs) sums.at(static_cast<size_t>(need.line)) += need.share;
        for (const double sum : sums) EXPECT_NEAR(sum, 1, 0.007) << recipe;
    }
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
