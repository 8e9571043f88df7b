// Texts that no editor saves: broken off, unbalanced, out of all bounds. Nothing may crash, hang or get lost.
#include <gtest/gtest.h>

#include "richtext/layoutdump.h"
#include "support/files.h"
#include "support/kept.h"

namespace sarne {
namespace {

RtfLayout layOutSoundly(QStringView text, LinkMarkers markers = LinkMarkers::Honour) {
    test::FixedMetrics metrics;
    const RtfLayout layout = RtfLayout::of(text, {0, 3000, 0}, metrics, markers);
    EXPECT_EQ(test::faultOf(layout) + test::lossOf(text, layout, markers), QString())
        << text.left(200).toString().toStdString();
    return layout;
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
    test::expectCases(u"vadne"_s, [](const QString& text) { return test::wordsOf(layOutSoundly(text)); });
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
