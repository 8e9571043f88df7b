#include "disc/menu.h"

#include <gtest/gtest.h>

namespace sarne::disc {
namespace {

struct Row3 {
    const char* code;
    const char* label;
    const char* target;
};

class MenuSchemeTest : public testing::Test {
  protected:
    MenuSchemeTest() {
        book_.recipes.insert(6, Recipe{});
        book_.quick << QuickRecipe{1, {}, QStringLiteral("Rychle"), 6};
    }

    std::string complaints(const QList<Row3>& given) {
        QList<MenuRow> rows;
        int line = 0;
        for (const Row3& row : given)
            rows << MenuRow{{QStringLiteral("menu.txt"), ++line},
                            QString::fromUtf8(row.code),
                            QString::fromUtf8(row.label),
                            QString::fromUtf8(row.target)};
        Problems problems;
        checkMenu(rows, book_, problems);
        return problems.errors().join(u'\n').toStdString();
    }

    Cookbook book_;
};

TEST_F(MenuSchemeTest, AcceptsTheScheme) {
    EXPECT_EQ(complaints({{"11", "O", "1"},
                          {"20", "@Ryby", ""},
                          {"21", "Kapr", ""},
                          {"210", "@Kapr", ""},
                          {"211", "Recepty", "6,"},
                          {"212", "Rychlé", "1,"},
                          {"60", "@Rychle", ""},
                          {"31", "Omáčky", ""},
                          {"311", "Majonéza", "H805"},
                          {"61", "Teplá", "6,"},
                          {"120", "@Hledání", ""},
                          {"121", "Napište", "F"},
                          {"141", "Svátky", "D"},
                          {"1411", "Vánoce", ""},
                          {"14111", "Recepty", "6,"},
                          {"14112", "Rychlé", "1,"},
                          {"1412", "Silvestr", ""},
                          {"14121", "Recepty", "6,"}}),
              "");
}

struct Breach {
    const char* name;
    QList<Row3> rows;
    const char* message;
};

void PrintTo(const Breach& breach, std::ostream* out) {
    *out << breach.name;
}

class MenuBreachTest : public MenuSchemeTest, public testing::WithParamInterface<Breach> {};

TEST_P(MenuBreachTest, IsReported) {
    const std::string reported = complaints(GetParam().rows);
    EXPECT_NE(reported.find(GetParam().message), std::string::npos) << reported;
}

INSTANTIATE_TEST_SUITE_P(
    Scheme, MenuBreachTest,
    testing::Values(
        Breach{"topicsOwnCode", {{"12", "Hledání", "F"}}, "nabídky 12: je to kód samotného tématu"},
        Breach{"resultsTopic", {{"001", "Kapr", "1"}}, "nabídky 001: jeho téma nemá nabídku"},
        Breach{"gap", {{"61", "A", "6,"}, {"63", "B", "6,"}}, "nabídky 63: v úrovni je mezera"},
        Breach{"itemEndsInZero", {{"60", "A", "6,"}}, "nabídky 60: nulou končí nadpis"},
        Breach{"headingElsewhere", {{"61", "@A", ""}}, "nabídky 61: nulou končí nadpis"},
        Breach{"noLabel", {{"61", "", "6,"}}, "nabídky 61: chybí text"},
        Breach{"headingAlone", {{"60", "@A", ""}}, "úroveň nabídky 6 nemá položky"},
        Breach{"childless", {{"21", "Kapr", ""}}, "nabídky 21 (Kapr): podnabídka bez položek"},
        Breach{"listBesideSubmenu",
               {{"21", "K", ""}, {"211", "R", "6,"}, {"212", "S", ""}},
               "úroveň nabídky 21: v poslední úrovni jsou recepty"},
        Breach{"thirdList",
               {{"21", "K", ""}, {"211", "R", "6,"}, {"212", "Q", "1,"}, {"213", "R", "6,"}},
               "úroveň nabídky 21: v poslední úrovni jsou recepty"},
        Breach{"noComma", {{"61", "A", "6"}}, "seznam čísel nekončí čárkou"},
        Breach{"unknownRecipe", {{"61", "A", "6,7,"}}, "číslo 7 neexistuje"},
        Breach{"unknownQuick",
               {{"21", "K", ""}, {"211", "R", "6,"}, {"212", "Q", "6,"}},
               "212 (Q): číslo 6 neexistuje"},
        Breach{
            "flatWithSubmenu", {{"41", "A", "10"}, {"411", "B", "10"}}, "411 (B): toto téma nemá podnabídky"},
        Breach{"tooDeep", {{"1411111", "A", "6,"}}, "1411111: úroveň je příliš hluboko"},
        Breach{"levelOf16Bits", {{"411111", "A", "6,"}}, "411111: úroveň je příliš hluboko"}));

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
