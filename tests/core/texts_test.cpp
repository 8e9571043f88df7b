#include <gtest/gtest.h>

#include <QLocale>
#include <QStringList>

#include "core/czech.h"
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

TEST(CzechWords, FoldedForSearchesAndCounted) {
    test::expectCases(u"slova"_s, [](const QString& text) {
        return QStringList{folded(text), foldedWords(text), fileWords(text)}.join(u'|');
    });
    test::expectCases(u"pocty"_s, [](const QString& number) {
        const QLocale czech(QLocale::Czech);
        return counted(number.toDouble(), portionNoun(), czech) + u", "_s +
               counted(number.toDouble(), recipeNoun(), czech);
    });
}

TEST(PaintedText, HoldsTogetherWhatBelongsTogether) {
    test::expectCases(u"pohromade"_s, [](const QString& text) {
        return unbroken(text).replace(u"\u200d"_s, u"|"_s) +
               (holdsTogether(text, text.size() - 1) ? u"!"_s : QString());
    });
}

TEST(SpokenText, UnitsRangesAndLineEndsAreReadAsWords) {
    test::expectCases(u"nahlas"_s, [](const QString& text) { return spokenText(text); });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
