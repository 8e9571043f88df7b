#include <gtest/gtest.h>

#include "db/database.h"
#include "disc/markup.h"
#include "disc/season.h"
#include "kitchen/goods.h"
#include "kitchen/steps.h"
#include "medialines.h"
#include "smallcookbook.h"
#include "support/files.h"
#include "support/kept.h"

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

/// What stands behind "na másle" of the second step, and behind "citronem" of the serving.
TEST(StepsTest, TakeWhatTheMethodSaysAndElseAllAtOnce) {
    test::expectCases(u"kroky"_s, [](const QString& marks) {
        SmallCookbook small;
        EXPECT_TRUE(
            small.replace(kRecipe, u"pánvi na másle"_s, u"pánvi na másle"_s + marks.section(u'/', 0, 0)) &&
            small.replace(kRecipe, u"a citronem."_s, u"a citronem%1."_s.arg(marks.section(u'/', 1))));
        Problems problems;
        const Cookbook book = loadCookbook(ContentFolder(small.path(), problems), problems);
        EXPECT_EQ(problems.errors().join(u'\n').toStdString(), "");
        for (const Line& line : book.recipes[6].method) EXPECT_FALSE(line.text.contains(u'{'));
        EXPECT_EQ(book.recipes[6].steps.last().title, u"Na stůl"_s);
        return stepsOf(book);
    });
}

TEST(SeasonTest, IsASetOfMonths) {
    test::expectCases(u"mesice"_s, [](const QString& text) {
        const auto months = monthsOf(text);
        return months ? u"%1"_s.arg(int(*months), 12, 2, QChar(u'0')) : u"none"_s;
    });
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
    QString body(const QString& text) {
        const QString rtf = toRtf(linesOf(text.toUtf8()), {}, links_, problems_);
        const QString start = u"\\lang1029 "_s;
        QString rest = rtf.mid(rtf.indexOf(start) + start.size());
        rest.remove(u"\\fs10 \\par\r\n\\fs24 "_s);
        return rest.replace(u"\r\n"_s, u"|"_s);
    }

    LinkBook links_;
    Problems problems_;
};

TEST_F(MarkupTest, BecomesWhatTheRendererReads) {
    test::expectCases(u"znacky"_s, [this](const QString& text) { return body(text); });
    EXPECT_FALSE(problems_.hasErrors());
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
