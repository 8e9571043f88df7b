// Texts that no editor saves: broken off, unbalanced, out of all bounds. Nothing may crash, hang or get lost.
#include <gtest/gtest.h>

#include "richtext/layoutdump.h"
#include "support/files.h"

namespace sarne {
namespace {

RtfLayout layOutSoundly(QStringView text, LinkMarkers markers = LinkMarkers::Honour) {
    test::FixedMetrics metrics;
    const RtfLayout layout = RtfLayout::of(text, {0, 3000, 0}, metrics, markers);
    EXPECT_EQ(test::faultOf(layout) + test::lossOf(text, layout, markers), QString())
        << text.left(200).toString().toStdString();
    return layout;
}

QString wordsOf(const QString& text) {
    return test::wordsOf(layOutSoundly(text));
}

TEST(Faults, DocumentsBreakOffAnywhere) {
    for (const char* name : {"wordpad.rtf", "office.rtf", "writer.rtf"}) {
        const QString rtf =
            QString::fromUtf8(test::bytesOf(QStringLiteral(SARNE_FIXTURES "/") + QLatin1String(name)));
        ASSERT_FALSE(rtf.isEmpty());
        for (qsizetype length = 0; length < rtf.size(); ++length) {
            layOutSoundly(QStringView(rtf).left(length));
            layOutSoundly(QStringView(rtf).left(length), LinkMarkers::Remove);
        }
    }
}

TEST(Faults, WhatCanBeReadIsRead) {
    const QString digits(40, u'9');
    const struct {
        QString text;
        QString words;
    } cases[] = {
        {u"{\\rtf1\\plain a}}}} b {{{{ c"_s, u"a b c"_s},
        {u"{\\rtf1{\\fonttbl{\\f0 Arial;}\\pard\\plain a b"_s, u"a b"_s},
        {u"{\\rtf1{\\colortbl;\\red1;{\\stylesheet{x}}\\plain a b"_s, u"a b"_s},
        {u"{\\rtf1{\\fonttbl{{{\\f0 Arial;}}}}\\plain a b"_s, u"a b"_s},
        {u"{\\rtf1\\plain\\fs"_s + digits + u" \\tx"_s + digits + u" \\f-"_s + digits + u" \\cf"_s + digits +
             u" a\\tab b"_s,
         u"a|b"_s},
        {u"{\\rtf1\\deftab"_s + digits + u"\\plain a\\tab b"_s, u"a|b"_s},
        {u"{\\rtf1\\deftab-5{\\colortbl\\red"_s + digits + u";}\\plain a\\tab b"_s, u"a b"_s},
        {u"{\\rtf1\\plain a\rb\nc\r\rd\r\ne}"_s, u"abcde"_s},
        {u"{\\rtf1\\plain a\\'eg b\\'zz\\'} \\'e8\\'4"_s, u"ag bzz č"_s},
        {u"{\\rtf1\\plain a "_s + QChar(0) + u"b"_s + QChar(0), u"a b"_s},
        {u"{\\rtf1\\plain a *"_s, u"a *"_s},
        {u"{\\rtf1\\plain a @12"_s, u"a @12"_s},
        {u"{\\rtf1\\plain a \\"_s, u"a"_s},
        {u"{\\rtf1{\\pict\\bin99999999 }\\plain a"_s, QString()},
        {u"{"_s, u"{"_s},
        {u"{\\"_s, u"{\\"_s},
        {u"sůl {\\rtf1 a"_s, u"sůl {\\rtf1 a"_s},
        {QChar(QChar::ByteOrderMark) + u" {\\rtf1\\plain a}"_s, u"a"_s},
        {u"\\par x"_s, u"\\par x"_s},
    };
    for (const auto& c : cases) EXPECT_EQ(wordsOf(c.text), c.words) << c.text.toStdString();
}

/// Texts that are long in one respect: an effort that grows with the square would not end.
TEST(Faults, MuchOfOneThing) {
    const auto many = [](const char16_t* piece, int count) {
        return QString::fromUtf16(piece).repeated(count);
    };
    const QString head = u"{\\rtf1\\plain "_s;
    const auto boxes = [](const QString& text) { return layOutSoundly(text).boxes().size(); };
    EXPECT_EQ(boxes(head + u'*' + many(u"dlouhá ", 15000)), 15000u);
    EXPECT_EQ(boxes(head + u'*' + many(u"dlouhá ", 15000) + u'*'), 1u);
    EXPECT_EQ(boxes(head + many(u"*1a", 100000)), 50000u);
    EXPECT_EQ(boxes(head + many(u"{", 500000) + u'a'), 1u);
    EXPECT_EQ(boxes(head + many(u"{\\*", 200000) + u'a'), 0u);
    EXPECT_EQ(boxes(head + many(u"\\tx1\\tx2000\\tab ", 100000) + u'a'), 1u);
    EXPECT_EQ(boxes(head + many(u"\\fs65000\\par ", 100000) + u'a'), 1u);
    EXPECT_EQ(boxes(head + many(u"\\", 500001)), 1u);
    EXPECT_EQ(boxes(head + many(u"{\\fonttbl", 100000) + u'a'), 0u);
    EXPECT_EQ(boxes(head + many(u" ", 500000) + u'a'), 1u);
    EXPECT_EQ(boxes(head + u'\\' + many(u"a", 500000) + u" b"_s), 1u);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
