#include <gtest/gtest.h>

#include "richtext/layoutdump.h"
#include "support/kept.h"

namespace sarne {
namespace {

constexpr int kChar = 120;  // the width of a character in the default font under FixedMetrics

class Layout : public testing::Test {
  protected:
    RtfLayout layOut(const QString& body, int characters = 20, LayoutArea area = {}) {
        area.right = area.left + characters * kChar;
        layout = RtfLayout::of(u"{\\rtf1\\plain "_s + body + u'}', area, metrics);
        EXPECT_EQ(test::faultOf(layout), QString());
        return layout;
    }
    test::FixedMetrics metrics;
    RtfLayout layout;
};

TEST_F(Layout, StandsToTheTwip) {
    test::expectCases(u"sazba"_s, [this](const QString& text) {
        const QStringList area = text.section(u' ', 0, 0).split(u'+');
        return test::dumped(layOut(text.section(u' ', 1), area[0].toInt(), {area.value(1).toInt(), 0, 0}));
    });
}

TEST_F(Layout, FindsItsLinesAndBoxes) {
    layOut(u"\\fs24 a \\fs48\\b\\cf9 bb \\fs20\\b0 c\\par\\fs48\\par x"_s, 40);
    EXPECT_EQ(RtfLayout::rect(layout.boxes()[0]), QRect(0, 240, 120, 300));
    EXPECT_EQ(layout.height(), 1800);
    EXPECT_EQ(layout.linesBetween(600, 601).first, 1);
    EXPECT_EQ(layout.linesBetween(0, 601).end, 2);
}

TEST_F(Layout, KeepsLinkPhrasesWhole) {
    layOut(u"(*12Fresh herbs*) are used with *7a very long phrase* #3x#@4y@ z"_s, 16);
    EXPECT_EQ(layout.linkRects(0), (std::vector<QRect>{QRect(0, 0, 13 * kChar, 300)}));
    EXPECT_EQ(layout.linkAt({0, 0}), 0);
    EXPECT_EQ(layout.linkAt({13 * kChar - 1, 299}), 0);
    EXPECT_EQ(layout.linkAt({13 * kChar, 0}), std::nullopt);
    EXPECT_EQ(layout.linkAt({0, 300}), std::nullopt);
    EXPECT_EQ(layout.linkAt({0, -1}), std::nullopt);
    EXPECT_EQ(layout.linkAt({-1, 5000}), std::nullopt);
    EXPECT_TRUE(layout.linkRects(9).empty());
}

TEST_F(Layout, PlainTextIsLaidOutAsTyped) {
    const QString typed = u"{\\rtf1 *12 sůl* \n "_s + QString(300, u'x');
    layout = RtfLayout::ofPlain(typed, {0, 100 * kChar, 0}, metrics);
    EXPECT_EQ(test::wordsOf(layout).left(17), u"{\\rtf1 *12 sůl*|x"_s);
    EXPECT_GE(layout.lines().size(), 4U) << "a word longer than any is broken";
    EXPECT_TRUE(layout.links().empty());
}

TEST_F(Layout, MeasuresRepeatedWordsOnce) {
    layOut(u"kapr sumec kapr \\i kapr \\i0 sumec kapr kapr"_s);
    EXPECT_EQ(metrics.measured, 3 + 2);  // three words, a blank of each font
    QString many;
    for (int word = 0; word < 4000; ++word) many += u"slovo%1 "_s.arg(word);
    metrics.measured = 0;
    layOut(many + many);
    EXPECT_EQ(metrics.measured, 4000 + 1);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
