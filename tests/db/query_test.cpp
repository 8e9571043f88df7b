#include <gtest/gtest.h>

#include "db/dialect.h"
#include "db/likepattern.h"
#include "support/kept.h"

namespace sarne {
namespace {

bool like(std::string_view pattern, std::string_view text) {
    const auto compiled = LikePattern::compile(pattern);
    return compiled && compiled->matches(text);
}

TEST(LikePattern, MatchesItsOwnSignsAndNoOthers) {
    test::expectCases(u"vzory"_s, [](const QString& text) {
        const QStringList parts = text.split(u" ~ "_s);
        return like(parts.value(0).toStdString(), parts.value(1).toStdString()) ? u"fits"_s : u"no"_s;
    });
}

TEST(LikePattern, AnOpenBracketIsNoPattern) {
    EXPECT_FALSE(LikePattern::compile("[abc*"));
    EXPECT_FALSE(LikePattern::compile("kap["));
}

TEST(LikePattern, BytesThatAreNoTextDoNotLeadAstray) {
    EXPECT_TRUE(like("a*", "a\xC4"));
    EXPECT_TRUE(like("\xFF*", "\xFFz"));
    EXPECT_FALSE(like("\xE2\x82", "x"));
}

TEST(LikePattern, ManyRunsStayQuick) {
    // A matcher that tries every split would need longer than the world lasts.
    EXPECT_FALSE(like("*a*a*a*a*a*a*a*a*a*a*a*a*b", std::string(20000, 'a')));
}

TEST(Dialect, OnlyTheStarOfDeleteChangesAndOneStatementRuns) {
    test::expectCases(u"prikazy"_s,
                      [](const QString& text) { return adaptStatement(text).value_or(u"refused"_s); });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
