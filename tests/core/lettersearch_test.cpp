#include "core/lettersearch.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace sarne {
namespace {

TEST(LetterJump, FindsTheNextNameRoundTheEnd) {
    const QStringList names{QStringLiteral("Candát"),
                            QStringLiteral("Kapr na kmíně"),
                            QStringLiteral("Kapr v aspiku"),
                            QStringLiteral("Krém"),
                            QStringLiteral("Štika"),
                            QStringLiteral("Sumec"),
                            QString()};
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
    EXPECT_EQ(findByLetters(0, nameAt, -1, QStringLiteral("k")), -1);
}

TEST(LetterJump, LettersAddUpUntilAPause) {
    LetterSearch search;
    EXPECT_EQ(search.add(u'k', 5000), QStringLiteral("k"));
    EXPECT_EQ(search.add(u'r', 5900), QStringLiteral("kr"));
    EXPECT_EQ(search.add(u's', 7000), QStringLiteral("s"));
    EXPECT_EQ(search.add(u'u', 7100), QStringLiteral("su"));
    EXPECT_EQ(search.restart(), QStringLiteral("u"));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
