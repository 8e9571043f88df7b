#include "recipe/recipefixture.h"

namespace sarne {
namespace {

// What is taken along as text, string for string.
TEST_F(RecipeTest, CollectedGolden) {
    run.database.Execute(u"UPDATE Recepty SET Vlastni = 'Méně soli.\nVíc kmínu.' WHERE ID = 5"_s);
    form->Skryj();
    open(5);
    const QString texts = QStringLiteral(
        "\r\n"
        "Kapr na kmíně s máslem, jak se dělá v neděli u rybníka, když přijede celá rodina a nikdo nespěchá "
        "domů\r\n\r\n"
        "Úvod k receptu.\r\n\r\n"
        "Kapra osolíme a pečeme podle videa.\r\nPodáváme ihned.\r\n\r\n"
        "Poznámka kuchaře.\r\n\r\n"
        "Na talíři.\r\n\r\n"
        "Ryzlink\r\n\r\n"
        "Vlastní poznámka: Méně soli.\r\nVíc kmínu.\r\n\r\n"
        "\r\n"
        "Pomůcky číška, chňapka, pánev, vařečka\r\n"
        "Pomocný recept: Chlebové kostkyChléb nakrájíme.\r\n"
        "Pomocný recept: Rybí vývarVývar vaříme pomalu.");
    EXPECT_EQ(form->collectedText(),
              u"Porce: 4\r\n"
              "kapr - filety bez kůže (g): 250\r\n"
              "máslo (g): 50\r\n"
              "      - nebo olej\r\n"
              "máslo (g): 12\r\n"
              "sůl\r\n"_s +
                  texts);
    click("imgBtn(5)");
    customPortions = 2.5;
    click("imgPrepocet(10)");
    click("imgKgLzice");
    EXPECT_EQ(form->collectedText(),
              u"Porce: 2,5\r\n"
              "kapr - filety bez kůže (kus): 0,3\r\n"
              "máslo (lžíce): 1,2\r\n"
              "      - nebo olej\r\n"
              "máslo (lžíce): 0,03\r\n"
              "sůl\r\n"_s +
                  texts);
    form->Skryj();
    open(6);
    EXPECT_EQ(form->collectedText(), u"Prázdný recept\r\n\r\n"_s) << "no tools line, no links";
    form->Skryj();
    open(-7);
    EXPECT_EQ(form->collectedText(), QString()) << "no such recipe";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
