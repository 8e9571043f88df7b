#include <gtest/gtest.h>

#include <QStringList>
#include <QTextBoundaryFinder>

#include "core/lettersearch.h"
#include "core/spokentext.h"
#include "core/unbreakable.h"

namespace sarne {
namespace {

TEST(LetterJump, FindsTheNextNameRoundTheEnd) {
    const QStringList names{u"Candát"_s, u"Kapr na kmíně"_s, u"Kapr v aspiku"_s, u"Krém"_s,
                            u"Štika"_s,  u"Sumec"_s,         QString()};
    const auto nameAt = [&](int at) { return names[at]; };
    const struct {
        int current;
        const char* letters;
        int found;
    } cases[] = {{-1, "k", 1}, {1, "k", 2}, {3, "K", 1},     {1, "ka", 1}, {3, "ka", 1},
                 {0, "kr", 3}, {0, "s", 4}, {4, "s", 5},     {0, "š", 4},  {4, "š", 4},
                 {0, "z", -1}, {0, "", -1}, {2, "kapr v", 2}};
    for (const auto& c : cases)
        EXPECT_EQ(findByLetters(int(names.size()), nameAt, c.current, QString::fromUtf8(c.letters)), c.found)
            << c.current << " " << c.letters;
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
    const struct {
        const char* written;
        const char* spoken;
    } kCases[] = {
        {"200 g másla", "200 gramů másla"},
        {"1 kg kapra", "1 kilogram kapra"},
        {"2,5\u00a0kg kapra", "2,5\u00a0kilogramu kapra"},
        {"3 l vody", "3 litry vody"},
        {"3 listy", "3 listy"},
        {"2 lžíce", "2 lžíce"},
        {"pečeme 8–10 minut", "pečeme 8 až 10 minut"},
        {"sůl\r\npepř\n", "sůl.\npepř"},
        {"vaření 30 min · 4 porce", "vaření 30 minut, 4 porce"},
        {"kapr - podkovy (g): 1200\ncitron (ks): 1", "kapr - podkovy: 1200 gramů.\ncitron: 1 kus"},
        {"Kapr, ★★★☆☆", "Kapr, 3\u00a0hvězdičky"},
        {" – \n ▲", ""},
        {"", ""},
    };
    for (const auto& one : kCases)
        EXPECT_EQ(spokenText(QString::fromUtf8(one.written)).toStdString(), one.spoken);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
