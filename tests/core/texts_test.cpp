#include <gtest/gtest.h>

#include <QStringList>
#include <QTextBoundaryFinder>

#include "core/lettersearch.h"
#include "core/spokentext.h"
#include "core/unbreakable.h"
#include "support/kept.h"

namespace sarne {
namespace {

TEST(LetterJump, FindsTheNextNameRoundTheEnd) {
    const QStringList names{u"Candát"_s, u"Kapr na kmíně"_s, u"Kapr v aspiku"_s, u"Krém"_s,
                            u"Štika"_s,  u"Sumec"_s,         QString()};
    const auto nameAt = [&](int at) { return names[at]; };
    test::expectCases(u"skok-pismenem"_s, [&](const QString& text) {
        const int from = text.section(u' ', 0, 0).toInt();
        return QString::number(findByLetters(int(names.size()), nameAt, from, text.section(u' ', 1)));
    });
    EXPECT_EQ(findByLetters(0, nameAt, -1, u"k"_s), -1);
}

TEST(LetterJump, LettersAddUpUntilAPause) {
    LetterSearch search;
    EXPECT_EQ(search.add(u'k', 5000), u"k"_s);
    EXPECT_EQ(search.add(u'r', 5900), u"kr"_s);
    EXPECT_EQ(search.add(u's', 7000), u"s"_s);
    EXPECT_EQ(search.add(u'u', 7100), u"su"_s);
    EXPECT_EQ(search.restart(), u"u"_s);
}

TEST(PaintedText, NoLineEndsInARangeOrBeforeAnAmount) {
    const QString painted = unbroken(u"táhneme při 80–85 °C – tedy ne víc, sůl\u00a0–\u00a02 g"_s);
    QTextBoundaryFinder lines(QTextBoundaryFinder::Line, painted);
    QStringList pieces;
    for (qsizetype from = 0; lines.toNextBoundary() > 0; from = lines.position())
        pieces.append(painted.sliced(from, lines.position() - from).remove(QChar(0x200d)));
    EXPECT_EQ(pieces, (QStringList{u"táhneme "_s, u"při "_s, u"80–85\u00a0°C "_s, u"– "_s, u"tedy "_s,
                                   u"ne "_s, u"víc, "_s, u"sůl\u00a0–\u00a02\u00a0g"_s}));
}

TEST(SpokenText, UnitsRangesAndLineEndsAreReadAsWords) {
    test::expectCases(u"nahlas"_s, [](const QString& text) { return spokenText(text); });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
