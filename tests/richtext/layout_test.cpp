#include <gtest/gtest.h>

#include "richtext/layoutdump.h"

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
    QString wordsAt(int characters, const char16_t* body) {
        return test::wordsOf(layOut(QString::fromUtf16(body), characters));
    }
    std::vector<int> lefts(qsizetype line = 0) const {
        std::vector<int> xs;
        for (qsizetype i = 0; i < layout.lines().at(line).boxCount; ++i) {
            xs.push_back(layout.boxes()[layout.lines()[line].firstBox + i].x);
        }
        return xs;
    }

    test::FixedMetrics metrics;
    RtfLayout layout;
};

using Xs = std::vector<int>;

TEST_F(Layout, WrapsBetweenWords) {
    EXPECT_EQ(wordsAt(10, u"aaaa bbbb cccc"), u"aaaa bbbb|cccc"_s);
    EXPECT_EQ(wordsAt(9, u"aaaa bbbb cccc"),
              u"aaaa|bbbb cccc"_s);  // a word's blank wants room too
    EXPECT_EQ(wordsAt(9, u"aaaa bbbb"), u"aaaa bbbb"_s);
    EXPECT_EQ(wordsAt(10, u"aaaa\\~bbbb cccc"), u"aaaa\u00a0bbbb|cccc"_s);
    EXPECT_EQ(wordsAt(4, u"a bbbbbbbb c"), u"a|bbbbbbbb|c"_s);
    EXPECT_EQ(wordsAt(0, u"a b"), u"a|b"_s);
    EXPECT_EQ(wordsAt(10, u"a\\par\\par b\\par"), u"a||b"_s);
    EXPECT_EQ(wordsAt(10, u"   \\par   bbbbbbbbbbb"), u"|bbbbbbbbbbb"_s);
    EXPECT_EQ(lefts(1), (Xs{0}));
}

TEST_F(Layout, JustifiesWrappedLinesToTheTwip) {
    layOut(u"a b c dddd e f \\par g h"_s, 11, {77, 0, 0});
    EXPECT_EQ(lefts(0), (Xs{77, 77 + 280, 77 + 560, 77 + 840}));
    const WordBox& last = layout.boxes()[3];
    EXPECT_EQ(last.x + last.width, 77 + 11 * kChar);
    EXPECT_EQ(lefts(1), (Xs{77, 77 + 240}));  // the paragraph's end
    EXPECT_EQ(lefts(2), (Xs{77, 77 + 240}));  // the text's end
    layOut(u"aa bb   cccccccccc"_s, 8);       // blanks at the end of a line take no part
    EXPECT_EQ(lefts(0), (Xs{0, 720}));
    layOut(u"aa bbbbbbbbb"_s, 8);  // a word alone stays
    EXPECT_EQ(lefts(0), (Xs{0}));
}

TEST_F(Layout, StandsOnOneBaselineInTheHighestFont) {
    layOut(u"\\fs24 a \\fs48\\b\\cf9 bb \\fs20\\b0 c\\par\\fs48\\par x"_s, 40);
    EXPECT_EQ(test::dumped(layout),
              u"line 0+600 on 480 starts ends\n"
              "  0+120 \"a\"  Times New Roman 12 #000000\n"
              "  240+528 \"bb\"  Times New Roman 24 b #000000\n"
              "  1032+100 \"c\"  Times New Roman 10 #000000\n"
              "line 600+600 on 1080 starts ends\n"
              "line 1200+600 on 1680 starts ends\n"
              "  0+240 \"x\"  Times New Roman 24 #000000\n"_s);
    EXPECT_EQ(RtfLayout::rect(layout.boxes()[0]), QRect(0, 240, 120, 300));
    EXPECT_EQ(layout.height(), 1800);
    EXPECT_EQ(layout.linesBetween(600, 601).first, 1);
    EXPECT_EQ(layout.linesBetween(0, 601).end, 2);
    // A word is in the font of its last character, not of the change behind it.
    layOut(u"x\\b y\\b0  z"_s);
    EXPECT_TRUE(layout.fonts()[layout.boxes()[0].font].bold);
}

TEST_F(Layout, MovesToTabStops) {
    layOut(u"\\tx1500\\tx500\\tx-3 a\\tab b\\tab c\\tab d"_s);
    EXPECT_EQ(lefts(), (Xs{0, 500, 1500, 1700}));  // then multiples of the default width
    layOut(u"\\tx1500 a\\par\\pard b\\tab c"_s);
    EXPECT_EQ(lefts(1), (Xs{0, 200}));
    layOut(u"\\tx1200\\tx2500 a\\tab b\\tab c"_s, 20);
    EXPECT_EQ(test::wordsOf(layout), u"a b|c"_s);
    EXPECT_EQ(lefts(0), (Xs{0, 1200}));
    layOut(u"\\tx600 a\\tab b c dddddddddddd"_s, 12);  // what stands before a tab is not spread
    EXPECT_EQ(lefts(0), (Xs{0, 600, 1320}));
    EXPECT_EQ(wordsAt(8, u"\\tx600 a\\tab b ccccccccc d"), u"a b|ccccccccc|d"_s);
    EXPECT_EQ(wordsAt(3, u"\\tx9999\\tab\\tab a"), u"||a"_s);
}

TEST_F(Layout, KeepsLinkPhrasesWhole) {
    layOut(u"(*12Fresh herbs*) are used with *7a very long phrase* #3x#@4y@ z"_s, 16);
    EXPECT_EQ(test::wordsOf(layout), u"(Fresh herbs)|are used with|a very long phrase|x y z"_s);
    QStringList keys;
    for (const LinkPhrase& link : layout.links()) keys += link.key.text();
    EXPECT_EQ(keys, (QStringList{u"112"_s, u"17"_s, u"23"_s, u"34"_s}));
    EXPECT_EQ(layout.linkRects(0), (std::vector<QRect>{QRect(0, 0, 13 * kChar, 300)}));
    EXPECT_EQ(layout.linkAt({0, 0}), 0);
    EXPECT_EQ(layout.linkAt({13 * kChar - 1, 299}), 0);
    EXPECT_EQ(layout.linkAt({13 * kChar, 0}), std::nullopt);
    EXPECT_EQ(layout.linkAt({0, 300}), std::nullopt);
    EXPECT_EQ(layout.linkAt({0, -1}), std::nullopt);
    EXPECT_EQ(layout.linkAt({-1, 5000}), std::nullopt);
    EXPECT_TRUE(layout.linkRects(9).empty());
}

TEST_F(Layout, LaysOutAnOpenPhraseAsPlainWords) {
    layOut(u"a *5b c\\tab d\\par e *"_s, 40);
    EXPECT_EQ(test::wordsOf(layout), u"a *5b c d|e *"_s);
    EXPECT_TRUE(layout.links().empty()) << "nothing closes them in their paragraphs";
    layOut(u"a *5b c"_s, 40);
    EXPECT_EQ(test::wordsOf(layout), u"a *5b c"_s);
    layOut(u"a *5* b *"_s, 40);  // a phrase without a letter is no link
    EXPECT_TRUE(layout.links().empty());
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
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
