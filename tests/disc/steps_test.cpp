#include <gtest/gtest.h>

#include "db/database.h"
#include "disc/markup.h"
#include "disc/season.h"
#include "kitchen/goods.h"
#include "kitchen/steps.h"
#include "medialines.h"
#include "smallcookbook.h"
#include "support/files.h"

namespace sarne::disc {
namespace {

const QString kRecipe = u"recepty/06-pstruh.txt"_s;

/// The steps of recipe 6 in words: "0:1 4:1" are all of the lines 0 and 4.
QString stepsOf(const Cookbook& book) {
    QStringList steps;
    for (const RecipeStep& step : book.recipes[6].steps) {
        QStringList shares;
        for (auto share = step.shares.cbegin(); share != step.shares.cend(); ++share)
            shares << u"%1:%2"_s.arg(share.key()).arg(*share, 0, 'g', 3);
        steps << shares.join(u' ');
    }
    return steps.join(u" | "_s);
}

TEST(StepsTest, TakeWhatTheMethodSaysAndElseAllAtOnce) {
    // pstruh, máslo 60 g = 4 lžíce, mouka, citron, víno, sůl
    const struct {
        const char* marks;    // put behind "na másle" of the second step
        const char* serving;  // put behind "citronem" of the serving
        const char* steps;
    } cases[] = {
        {"", "", "0:1 2:1 5:1 | 1:1 4:1 | 3:1"},
        {" {máslo: polovina} {máslo: zbytek}", "", "0:1 2:1 5:1 | 1:1 4:1 | 3:1"},
        {" {máslo: 1 lžíce}", " {máslo: tři čtvrtiny}", "0:1 2:1 5:1 | 1:0.25 4:1 | 1:0.75 3:1"},
        {" {máslo: 40 g}", " {máslo: zbytek}", "0:1 2:1 5:1 | 1:0.667 4:1 | 1:0.333 3:1"},
        {"", " {mouka: vše}", "0:1 5:1 | 1:1 4:1 | 2:1 3:1"},
    };
    for (const auto& one : cases) {
        SmallCookbook small;
        ASSERT_TRUE(
            small.replace(kRecipe, u"pánvi na másle"_s, u"pánvi na másle"_s + QString::fromUtf8(one.marks)));
        ASSERT_TRUE(
            small.replace(kRecipe, u"a citronem."_s, u"a citronem%1."_s.arg(QString::fromUtf8(one.serving))));
        Problems problems;
        const Cookbook book = loadCookbook(ContentFolder(small.path(), problems), problems);
        EXPECT_EQ(problems.errors().join(u'\n').toStdString(), "");
        EXPECT_EQ(stepsOf(book).toStdString(), one.steps) << one.marks << one.serving;
        for (const Line& line : book.recipes[6].method) EXPECT_FALSE(line.text.contains(u'{'));
        EXPECT_EQ(book.recipes[6].steps.last().title, u"Na stůl"_s);
    }
}

TEST(StepsTest, WhatDoesNotAddUpIsReportedAtItsLine) {
    const struct {
        const char *mark, *message;
    } cases[] = {
        {"{máslo: polovina}", "recepty/06-pstruh.txt:20: podíly suroviny „máslo“ v postupu dávají 50 %"},
        {"{máslo: 5 lžíce}", "recepty/06-pstruh.txt:20: podíly suroviny „máslo“ v postupu dávají 125 %"},
        {"{máslo: vše} {máslo: zbytek}", ": „zbytek“ není podíl suroviny „máslo“"},
        {"{máslo: hodně}", ": „hodně“ není podíl suroviny „máslo“"},
        {"{maslo: vše}", ": recept nemá surovinu „maslo“ – mysleli jste „máslo“?"},
        {"{máslo}", ": podíl není „surovina: podíl“: „máslo“"},
        {"{máslo: vše", ": závorka podílu nekončí na témže řádku"},
    };
    for (const auto& one : cases) {
        SmallCookbook small;
        ASSERT_TRUE(
            small.replace(kRecipe, u"pánvi na másle"_s, u"pánvi na másle "_s + QString::fromUtf8(one.mark)));
        const QString all = small.complaints().join(u'\n');
        EXPECT_TRUE(all.contains(QString::fromUtf8(one.message))) << one.mark << "\n" << all.toStdString();
    }
}

TEST(SeasonTest, IsASetOfMonths) {
    EXPECT_EQ(monthsOf(u"celoročně, nejlepší květen–srpen"_s), 0xfff);
    EXPECT_EQ(monthsOf(u"květen–červenec"_s), 0b000001110000);
    EXPECT_EQ(monthsOf(u"listopad–únor"_s), 0b110000000011);
    EXPECT_EQ(monthsOf(u"září"_s), 0b000100000000);
    EXPECT_FALSE(monthsOf(u"na jaře"_s));
    EXPECT_FALSE(monthsOf(QString()));
}

TEST(GoodsTest, AreReadAndReachTheBook) {
    SmallCookbook small;
    ASSERT_TRUE(
        test::write(small.path(u"obchod.txt"_s),
                    "== Ryby\npstruh\n== Mléčné\nmáslo, sádlo, slon\n== Suché\nmouka, máslo\n== Doma\nsůl\n"
                    "== Úpravy\ncelý\n== Výtěžnost\ncelý: 100 %\nsůl: 5\n"));
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
    const QString file = small.path(u"Sarne.drc"_s);
    writeRecipeDatabase(book, file, problems);
    Database db;
    ASSERT_TRUE(db.Open(file));
    const sarne::Goods goods(db);
    EXPECT_EQ(goods.of(u"kapr"_s).department, Department::Fish);
    EXPECT_TRUE(goods.of(u"sůl"_s).atHome);
    EXPECT_EQ(goods.of(u"máslo"_s).allergens, 1 << 6);
    // Every ingredient of every recipe is needed in some step, and wholly.
    for (int recipe = 1; recipe <= 50; ++recipe) {
        std::vector<double> sums(readIngredients(db, recipe).size());
        for (const CookingStep& step : readSteps(db, recipe))
            for (const StepNeed& need : step.needs) sums.at(static_cast<size_t>(need.line)) += need.share;
        for (const double sum : sums) EXPECT_NEAR(sum, 1, 0.007) << recipe;
    }
}

class MarkupTest : public testing::Test {
  protected:
    MarkupTest() {
        links_.addKeyword(u"Kapr"_s, 12);
        links_.addKeyword(u"Losos"_s, 150);
        links_.addVideo(7);
    }

    /// The body of the RTF of \a text: what stands behind the header.
    std::string body(const char* text) {
        const QString rtf = toRtf(linesOf(text), {}, links_, problems_);
        const QString start = u"\\lang1029 "_s;
        QString rest = rtf.mid(rtf.indexOf(start) + start.size());
        rest.remove(u"\\fs10 \\par\r\n\\fs24 "_s);
        return rest.replace(u"\r\n"_s, u"|"_s).toStdString();
    }

    LinkBook links_;
    Problems problems_;
};

TEST_F(MarkupTest, EncodesCzechLettersAndTheRenderersOwnCharacters) {
    EXPECT_EQ(body("Žába"), "\\'8e\\'e1ba\\par|}");
    EXPECT_EQ(body("5*#@{}\\"), "5\\'2a\\'23\\'40\\'7b\\'7d\\'5c\\par|}");
}

TEST_F(MarkupTest, KeepsOneLetterWordsAndNumbersWithWhatFollows) {
    EXPECT_EQ(body("v peci a k tomu 20 minut"), "v\\~peci a\\~k\\~tomu 20\\~minut\\par|}");
    EXPECT_EQ(body("1. Krok"), "1.\\~Krok\\par|}");
}

TEST_F(MarkupTest, SwitchesFontsInFrontOfWholeWords) {
    // The renderer draws a word in the font at its end: the blank and the comma still belong to the word.
    EXPECT_EQ(body("To **je dobré**, ano"), "To \\b je dobr\\'e9, \\b0 ano\\par|}");
    EXPECT_EQ(body("**Konec**"), "\\b Konec\\par\\b0|}");
    EXPECT_EQ(body("_sic_ ne"), "\\i sic \\i0 ne\\par|}");
    EXPECT_EQ(body("s **vínem**"), "s \\b v\\'ednem\\par\\b0|}");
}

TEST_F(MarkupTest, MarksLinkPhrasesAsOneWord) {
    EXPECT_EQ(body("[kapra na -> kapr], dobře"), "*12kapra na*, dob\\'f8e\\par|}");
    EXPECT_EQ(body("viz [film -> video 7]"), "viz @7film@\\par|}");
    EXPECT_EQ(body("[2 ryby -> losos]"), "*1502\\~ryby*\\par|}");
    // What is joined to the front of a phrase would be drawn, and clicked, as a part of it.
    EXPECT_EQ(body("u [kapra -> kapr] i\n[losos]"), "u *12kapra* i *150losos*\\par|}");
    EXPECT_FALSE(problems_.hasErrors());
}

TEST_F(MarkupTest, JoinsLinesAndPartsParagraphsStepsAndHeadings) {
    EXPECT_EQ(body("první\nřádek\n\ndruhý"), "prvn\\'ed \\'f8\\'e1dek\\par|druh\\'fd\\par|}");
    EXPECT_EQ(body("1. jedna\n2. dvě"), "1.\\~jedna\\par|2.\\~dv\\'ec\\par|}");
    EXPECT_EQ(body("# Nadpis\ntext"), "\\f1\\fs26\\b\\cf1 Nadpis\\par|\\f0\\fs24\\b0\\cf0 text\\par|}");
}

TEST_F(MarkupTest, AnEmptyTextIsNoDocument) {
    EXPECT_TRUE(toRtf({}, u"Nadpis"_s, links_, problems_).isEmpty());
}

TEST_F(MarkupTest, PlainTextIsWhatAReaderSees) {
    EXPECT_EQ(plainText(u"# **Tučně** [kapra -> kapr] i [losos]"_s), u"Tučně kapra i losos"_s);
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
