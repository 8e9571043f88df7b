#include "db/likepattern.h"

#include <gtest/gtest.h>

namespace sarne {
namespace {

bool like(std::string_view pattern, std::string_view text) {
    const auto compiled = LikePattern::compile(pattern);
    return compiled && compiled->matches(text);
}

TEST(LikePattern, MatchesItsOwnSignsAndNoOthers) {
    const struct {
        const char *pattern, *text;
        bool fits;
    } cases[] = {
        {"kap*", "Kapr", true},     {"KAP*", "kapary", true},
        {"kap*", "okap", false},    {"*kap*", "okap", true},
        {"č*", "ČESNEK", true},     {"c*", "česnek", false},
        {"ř?ž?k", "Řízek", false},  {"ř?z?k", "Řízek", true},
        {"0?", "01", true},         {"0?", "011", false},
        {"0*", "0", true},          {"#x", "7x", true},
        {"#x", "ax", false},        {"[a-d]*", "Candát", true},
        {"[a-d]*", "Štika", false}, {"[!a-d]*", "Štika", true},
        {"[!š]*", "Štika", false},  {"50%", "50%", true},
        {"50%", "50 g", false},     {"a_b", "axb", false},
        {"a_b", "a_b", true},       {"*", "", true},
        {"?", "", false},           {"", "", true},
        {"", "a", false},           {"a*b*c", "aXbYbZc", true},
        {"a*b*c", "aXbYbZ", false}, {"[*]*", "*x", true},
        {"[*]*", "x", false},       {"[]a", "a", true},
        {"x[a-]", "x-", true},      {"**a", "bca", true},
        {"*aab", "aaaaab", true},
    };
    for (const auto& c : cases) EXPECT_EQ(like(c.pattern, c.text), c.fits) << c.pattern << " ~ " << c.text;
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

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
