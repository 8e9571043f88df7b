#include "print/pagecomposer.h"
#include "recipe/recipefixture.h"
#include "richtext/qttextmetrics.h"

namespace sarne {
namespace {

// What is read on the screen, what is taken along as text and what goes on paper, string for string: the
// texts look alike and differ on purpose.

/// The lines of one printed recipe.
QStringList printedLines(basSarne& run, int id, const PrintOptions& options) {
    SilentProgress silent;
    QtTextMetrics metrics;
    PageScale a4;
    a4.width = 11400;
    a4.height = 16400;
    PageComposer composer({run.Db(), [](const QString&) { return QString(); }, run.Locale, {}}, a4, metrics);
    QStringList lines;
    int baseline = -1;
    for (const PrintedPage& page : composer.recipe(id, options, silent)) {
        for (const PageText& text : page.texts) {
            if (std::exchange(baseline, text.baseline) == text.baseline)
                lines.last() += u' ' + text.text;
            else
                lines << text.text;
        }
    }
    for (QString& line : lines) line = line.simplified();
    return lines;
}

TEST_F(RecipeTest, ScreenGolden) {
    click("imgBtn(5)");
    click("imgPrepocet(6)");
    EXPECT_EQ(shown(), QStringLiteral("kapr - filety bez kůže (g): 380\n"
                                      "máslo (g): 75\n"
                                      "      - nebo olej\n"
                                      "máslo (g): 19\n"
                                      "sůl"));
    click("imgKgLzice");
    EXPECT_EQ(shown(), QStringLiteral("kapr - filety bez kůže (kus): 0,8\n"
                                      "máslo (lžíce): 3\n"
                                      "      - nebo olej\n"
                                      "máslo (lžíce): 0,08\n"
                                      "sůl"));
}

TEST_F(RecipeTest, CollectedGolden) {
    run.database.Execute(
        QStringLiteral("UPDATE Recepty SET Vlastni = 'Méně soli.\nVíc kmínu.' WHERE ID = 5"));
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
    EXPECT_EQ(form->collectedText(), QStringLiteral("Porce: 4\r\n"
                                                    "kapr - filety bez kůže (g): 250\r\n"
                                                    "máslo (g): 50\r\n"
                                                    "      - nebo olej\r\n"
                                                    "máslo (g): 12\r\n"
                                                    "sůl\r\n") +
                                         texts);
    click("imgBtn(5)");
    customPortions = 2.5;
    click("imgPrepocet(10)");
    click("imgKgLzice");
    EXPECT_EQ(form->collectedText(), QStringLiteral("Porce: 2,5\r\n"
                                                    "kapr - filety bez kůže (kus): 0,3\r\n"
                                                    "máslo (lžíce): 1,2\r\n"
                                                    "      - nebo olej\r\n"
                                                    "máslo (lžíce): 0,03\r\n"
                                                    "sůl\r\n") +
                                         texts);
    form->Skryj();
    open(6);
    EXPECT_EQ(form->collectedText(), QStringLiteral("Prázdný recept\r\n\r\n")) << "no tools line, no links";
}

TEST_F(RecipeTest, PrintedGolden) {
    run.database.Execute(QStringLiteral(
        "UPDATE Recepty SET Vlastni = 'Méně soli.', DlouhyNazev = 'Kapr s máslem' WHERE ID = 5"));
    PrintOptions options;
    options.portions = 6;
    EXPECT_EQ(printedLines(run, 5, options).join(u'\n'),
              QStringLiteral("CD Tobrela - Velisa sarn\n"
                             "Kapr\n"
                             "Kapr s máslem\n"
                             "Porce: 6\n"
                             "kapr - filety bez kůže (g): 380 (kus): 0,8\n"
                             "máslo (g): 75 (lžíce): 3\n"
                             "- nebo olej\n"
                             "máslo (g): 19 (lžíce): 0,08\n"
                             "sůl\n"
                             "Úvod k receptu.\n"
                             "Kapra osolíme a pečeme podle videa.\n"
                             "Podáváme ihned.\n"
                             "Poznámka kuchaře.\n"
                             "Na talíři.\n"
                             "Ryzlink\n"
                             "Vlastní poznámka:\n"
                             "Méně soli.\n"
                             "Pomůcky: číška, chňapka, pánev, vařečka\n"
                             "Odkaz: Chlebové kostky\n"
                             "Chléb nakrájíme.\n"
                             "Odkaz: Rybí vývar\n"
                             "Vývar vaříme pomalu."));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
