#include "db/dialect.h"

#include <gtest/gtest.h>

namespace sarne {
namespace {

std::string adapted(const char* text) {
    return adaptStatement(QString::fromUtf8(text)).value_or(QStringLiteral("refused")).toStdString();
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
