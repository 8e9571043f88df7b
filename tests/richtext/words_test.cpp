#include <gtest/gtest.h>

#include "richtext/plaintext.h"
#include "richtext/wordwrap.h"

namespace sarne {
namespace {

/// Every character is 100 twips wide.
int fixedWidth(QStringView text) {
    return static_cast<int>(text.size()) * 100;
}

QStringList wrap(const char* text, int characters, const char* indent = "") {
    return wrapAtBlanks(QString::fromUtf8(text), characters * 100, fixedWidth, QString::fromUtf8(indent));
}

TEST(WordWrapTest, WrapsAtBlanksAndNeverInsideAWord) {
    EXPECT_EQ(wrap("Kapr na kmíně", 13), QStringList{QStringLiteral("Kapr na kmíně")});
    EXPECT_EQ(wrap("Kapr na kmíně", 12), (QStringList{QStringLiteral("Kapr na"), QStringLiteral("kmíně")}));
    EXPECT_EQ(
        wrap("Kapr nejnejnejkmínovitější je", 10),
        (QStringList{QStringLiteral("Kapr"), QStringLiteral("nejnejnejkmínovitější"), QStringLiteral("je")}));
    EXPECT_EQ(wrap("", 5), QStringList{QString()});
    EXPECT_EQ(wrap("          ", 5), QStringList{QStringLiteral("          ")});
    EXPECT_EQ(wrap("jedna   dvě ", 8), (QStringList{QStringLiteral("jedna"), QStringLiteral("dvě ")}));
    EXPECT_EQ(wrap("      - nebo olej olivový", 17, "         "),
              (QStringList{QStringLiteral("      - nebo olej"), QStringLiteral("         olivový")}));
    EXPECT_EQ(wrap("Polévka s bramborem a majoránkou", 21),
              (QStringList{QStringLiteral("Polévka s bramborem"), QStringLiteral("a majoránkou")}));
    EXPECT_EQ(wrap("vaříme 20 minut", 10),
              (QStringList{QStringLiteral("vaříme"), QStringLiteral("20 minut")}));
    EXPECT_EQ(wrap("a v o", 3), (QStringList{QStringLiteral("a v"), QStringLiteral("o")}))
        << "nothing else is left";
    EXPECT_EQ(wrap("   olej", 2, "    "), (QStringList{QStringLiteral("   olej")})) << "an indent of no room";
    const QString longText = QStringLiteral("slovo ").repeated(2000);
    EXPECT_EQ(wrapAtBlanks(longText, 1100, fixedWidth).size(), 1000);
}

TEST(PlainTextTest, KeepsWordsAndParagraphsOnly) {
    EXPECT_EQ(
        plainText(QStringLiteral("{\\rtf1{\\fonttbl{\\f0\\fcharset238 Arial;}}\\pard\\plain\\b Var\\b0  "
                                 "*12v\\'edno* a @7video@\\par\\tab x\\~y\\par\\par}")),
        QStringLiteral("Var víno a video\n\tx\u00a0y"));
    EXPECT_EQ(plainText(QStringLiteral("5*2 a #1")), QStringLiteral("5*2 a #1")) << "no rich text, no links";
    EXPECT_EQ(plainText(QString()), QString());
    EXPECT_EQ(plainText(QStringLiteral("   ")), QString());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
