#include <gtest/gtest.h>

#include "db/dialect.h"
#include "db/likepattern.h"

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
        {"*aab", "aaaaab", true},   {"[^]x", "^x", true},
        {"[^a]", "b", false},       {"[!]", "a", true},
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

std::string adapted(const char* text) {
    return adaptStatement(QString::fromUtf8(text)).value_or(u"refused"_s).toStdString();
}

TEST(Dialect, OnlyTheStarOfDeleteChanges) {
    EXPECT_EQ(adapted("DELETE * FROM Menu WHERE ID LIKE '0*'"), "DELETE FROM Menu WHERE ID LIKE '0*'");
    EXPECT_EQ(adapted(" delete  *  FROM Menu"), "DELETE  FROM Menu");
    EXPECT_EQ(adapted("SELECT * FROM menu WHERE Label = 'DELETE * x'"),
              "SELECT * FROM menu WHERE Label = 'DELETE * x'");
    EXPECT_EQ(adapted("SELECT Polozka FROM Vino ; "), "SELECT Polozka FROM Vino ; ");
}

TEST(Dialect, OneStatementOrNone) {
    EXPECT_EQ(adapted("SELECT * FROM Suroviny WHERE Polozka LIKE 'O''Neil*'"),
              "SELECT * FROM Suroviny WHERE Polozka LIKE 'O''Neil*'");
    for (const char* text : {"", "   ", "SELECT * FROM Suroviny WHERE Polozka LIKE ''*'",
                             "SELECT * FROM Suroviny WHERE Polozka LIKE 'x'; DELETE * FROM Menu; *'",
                             "SELECT * FROM Suroviny WHERE Polozka LIKE 'x' --*'", "SELECT /* */ 1",
                             "SELECT [ID FROM Vino", "SELECT 1; SELECT 2"})
        EXPECT_EQ(adapted(text), "refused") << text;
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
