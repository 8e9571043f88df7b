#include "disc/menu.h"

#include <gtest/gtest.h>

namespace sarne::disc {
namespace {

/// What is wrong with a menu of the rows "code|label|target", parted by blanks, where recipe 6 and quick
/// recipe 1 exist.
std::string complaints(const char* menu) {
    Cookbook book;
    book.recipes.insert(6, Recipe{});
    book.quick << QuickRecipe{1, {}, QStringLiteral("Rychle"), 6};
    QList<MenuRow> rows;
    int line = 0;
    for (const QString& row : QString::fromUtf8(menu).split(u' ')) {
        const QStringList parts = row.split(u'|');
        rows << MenuRow{{QStringLiteral("menu.txt"), ++line}, parts.value(0), parts.value(1), parts.value(2)};
    }
    Problems problems;
    checkMenu(rows, book, problems);
    return problems.errors().join(u'\n').toStdString();
}

TEST(MenuScheme, IsAccepted) {
    EXPECT_EQ(
        complaints("11|O|1 20|@Ryby 21|Kapr 210|@Kapr 211|Recepty|6, 212|Rychlé|1, 60|@Rychle 31|Omáčky "
                   "311|Majonéza|H805 61|Teplá|6, 120|@Hledání 121|Napište|F 141|Svátky|D 1411|Vánoce "
                   "14111|Recepty|6, 14112|Rychlé|1, 1412|Silvestr 14121|Recepty|6,"),
        "");
}

TEST(MenuScheme, BreachesAreReported) {
    const struct {
        const char *menu, *message;
    } breaches[] = {
        {"12|Hledání|F", "nabídky 12: je to kód samotného tématu"},
        {"001|Kapr|1", "nabídky 001: jeho téma nemá nabídku"},
        {"61|A|6, 63|B|6,", "nabídky 63: v úrovni je mezera"},
        {"60|A|6,", "nabídky 60: nulou končí nadpis"},
        {"61|@A", "nabídky 61: nulou končí nadpis"},
        {"61||6,", "nabídky 61: chybí text"},
        {"60|@A", "úroveň nabídky 6 nemá položky"},
        {"21|Kapr", "nabídky 21 (Kapr): podnabídka bez položek"},
        {"21|K 211|R|6, 212|S", "úroveň nabídky 21: v poslední úrovni jsou recepty"},
        {"21|K 211|R|6, 212|Q|1, 213|R|6,", "úroveň nabídky 21: v poslední úrovni jsou recepty"},
        {"61|A|6", "seznam čísel nekončí čárkou"},
        {"61|A|6,7,", "číslo 7 neexistuje"},
        {"21|K 211|R|6, 212|Q|6,", "212 (Q): číslo 6 neexistuje"},
        {"41|A|10 411|B|10", "411 (B): toto téma nemá podnabídky"},
        {"1411111|A|6,", "1411111: úroveň je příliš hluboko"},
        {"411111|A|6,", "411111: úroveň je příliš hluboko"},
    };
    for (const auto& [menu, message] : breaches)
        EXPECT_NE(complaints(menu).find(message), std::string::npos) << menu << "\n" << complaints(menu);
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
