#include "disc/markup.h"

#include <gtest/gtest.h>

namespace sarne::disc {
namespace {

class MarkupTest : public testing::Test {
  protected:
    MarkupTest() {
        links_.addKeyword(QStringLiteral("Kapr"), 12);
        links_.addKeyword(QStringLiteral("Losos"), 150);
        links_.addVideo(7);
    }

    /// The body of the RTF of \a text: what stands behind the header.
    std::string body(const char* text) {
        Lines lines;
        int number = 0;
        for (const QString& line : QString::fromUtf8(text).split(u'\n'))
            lines << Line{{QStringLiteral("f"), ++number}, line};
        const QString rtf = toRtf(lines, {}, links_, problems_);
        const QString start = QStringLiteral("\\lang1029 ");
        QString rest = rtf.mid(rtf.indexOf(start) + start.size());
        rest.remove(QStringLiteral("\\fs10 \\par\r\n\\fs24 "));
        return rest.replace(QStringLiteral("\r\n"), QStringLiteral("|")).toStdString();
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
    EXPECT_TRUE(toRtf({}, QStringLiteral("Nadpis"), links_, problems_).isEmpty());
}

TEST_F(MarkupTest, PlainTextIsWhatAReaderSees) {
    EXPECT_EQ(plainText(QStringLiteral("# **Tučně** [kapra -> kapr] i [losos]")),
              QStringLiteral("Tučně kapra i losos"));
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
