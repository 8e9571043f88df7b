#include <gtest/gtest.h>

#include "smallcookbook.h"

namespace sarne::disc {
namespace {

TEST(SmallCookbookTest, FaultlessContentHasNoErrors) {
    EXPECT_EQ(SmallCookbook().errors().join(u'\n').toStdString(), "");
}

struct Fault {
    const char* name;
    const char* file;
    const char* from;
    const char* to;
    /// How the message begins: the file, the line, and enough of the text to tell the rule.
    const char* message;
};

void PrintTo(const Fault& fault, std::ostream* out) {
    *out << fault.name;
}

class FaultTest : public testing::TestWithParam<Fault> {};

TEST_P(FaultTest, IsReportedWithFileAndLine) {
    const Fault& fault = GetParam();
    SmallCookbook book;
    ASSERT_TRUE(book.replace(QString::fromUtf8(fault.file), QString::fromUtf8(fault.from),
                             QString::fromUtf8(fault.to)));
    const QStringList errors = book.errors();
    EXPECT_TRUE(errors.join(u'\n').contains(QString::fromUtf8(fault.message)))
        << "wanted: " << fault.message << "\nreported:\n"
        << errors.join(u'\n').toStdString();
}

constexpr const char* kRecipe = "recepty/06-pstruh.txt";
constexpr const char* kKeyword = "hesla/ryby.txt";

INSTANTIATE_TEST_SUITE_P(Ingredients, FaultTest,
                         testing::Values(Fault{"unknownIngredient", kRecipe, "mouka: 20", "krupice: 20",
                                               "06-pstruh.txt:14: unknown ingredient \"krupice\""},
                                         Fault{"unknownAlternative", kRecipe, "nebo sádlo", "nebo lůj",
                                               "06-pstruh.txt:13: unknown ingredient \"lůj\""},
                                         Fault{"unknownRefinement", kRecipe, "pstruh, celý", "pstruh, půlený",
                                               "06-pstruh.txt:12: unknown refinement"},
                                         Fault{"missingUnit", kRecipe, "20 g = 2 lžíce", "20 = 2 lžíce",
                                               "06-pstruh.txt:14: a unit is missing"},
                                         Fault{"unknownUnit", kRecipe, "20 g", "20 deka",
                                               "06-pstruh.txt:14: unknown unit \"deka\""},
                                         Fault{"missingNumber", kRecipe, "citron: 1 ks", "citron: ks",
                                               "06-pstruh.txt:15: a number is missing"},
                                         Fault{"noSpoons", kRecipe, "20 g = 2 lžíce", "20 g",
                                               "06-pstruh.txt:14: the amount in spoons is missing"},
                                         Fault{"noAmount", kRecipe, "citron: 1 ks", "citron",
                                               "06-pstruh.txt:15: an ingredient without an amount"},
                                         Fault{"systemsDiffer", kRecipe, "20 g = 2", "20 g = 3",
                                               "06-pstruh.txt:14: weights and spoons differ"},
                                         Fault{"volumesDiffer", kRecipe, "30 ml = 2", "30 ml = 1",
                                               "06-pstruh.txt:16: weights and spoons differ"},
                                         Fault{"noSpoonWeight", "lzice.txt", "mouka: lžíce 10 g\n", "",
                                               "06-pstruh.txt:14: lzice.txt has no weight"},
                                         Fault{"badSpoonWeight", "lzice.txt", "lžíce 10 g", "lžíce 10",
                                               "lzice.txt:3: not a weight per unit"},
                                         Fault{"weightOfNothing", "lzice.txt", "mouka", "krupice",
                                               "lzice.txt:3: unknown ingredient \"krupice\""},
                                         Fault{"unusedIngredient", "suroviny.txt", "mouka", "rýže\nmouka",
                                               "suroviny.txt:5: no recipe uses \"rýže\""},
                                         Fault{"twice", "suroviny.txt", "mouka", "sádlo\nmouka",
                                               "suroviny.txt:5: the ingredient \"sádlo\" stands twice"},
                                         Fault{"unitTwice", "jednotky.txt", "ml | |", "ml | gramů |",
                                               "jednotky.txt:2: the unit \"gramů\" stands twice"}));

INSTANTIATE_TEST_SUITE_P(
    Recipes, FaultTest,
    testing::Values(
        Fault{"noFish", "suroviny.txt", "pstruh | ryba", "pstruh",
              "06-pstruh.txt:1: a recipe without a fish"},
        Fault{"fewIngredients", kRecipe, "sůl: podle chuti\n", "", "06-pstruh.txt:1: 5 ingredients"},
        Fault{"otherCourse", kRecipe, "chod: teplé", "chod: studené",
              "06-pstruh.txt:1: the photo grid shows recipe 6 as: teplé"},
        Fault{"unknownTool", kRecipe, "pomůcky: pánev", "pomůcky: wok",
              "06-pstruh.txt:1: unknown tool \"wok\""},
        Fault{"unknownWine", kRecipe, "vína: Ryzlink", "vína: Tokaj",
              "06-pstruh.txt:1: unknown wine \"Tokaj\""},
        Fault{"unknownAuxiliary", kRecipe, "odkazy: Bylinkové", "odkazy: Husté",
              "unknown auxiliary recipe \"Husté máslo\""},
        Fault{"unknownKey", kRecipe, "porce: 2", "osob: 2", "06-pstruh.txt:3: neznámý klíč „osob“"},
        Fault{"keyTwice", kRecipe, "porce: 2", "minut: 2", "06-pstruh.txt:4: klíč „minut“ tu stojí podruhé"},
        Fault{"noNumber", kRecipe, "minut: 25", "minut: půlhodina",
              "06-pstruh.txt:4: „minut“ nemůže být „půlhodina“"},
        Fault{"noChoice", kRecipe, "minut: 25", "minut: 25\nmrazit: možná",
              "06-pstruh.txt:5: „mrazit“ nemůže být „možná“"},
        Fault{"sectionTwice", kRecipe, "== Poznámka", "== Postup",
              "06-pstruh.txt:30: část „Postup“ tu stojí podruhé"},
        Fault{"unknownSection", kRecipe, "== Poznámka", "== Rada",
              "06-pstruh.txt:30: unknown section \"Rada\""},
        Fault{"noText", kRecipe, "Ihned na stůl.", "", "06-pstruh.txt:1: one of the five texts is missing"},
        Fault{"slowQuickRecipe", kRecipe, "minut: 25", "minut: 45",
              "rychle.txt:1: \"Pstruh na másle\" takes 45 minutes"},
        Fault{"quickToNowhere", "rychle.txt", "| 6", "| 7", "rychle.txt:1: recipe 7 does not exist"},
        Fault{"missingPage", "stranky/stranky.txt", "== 300", "== 301", "stranky:0: page 300 is missing"},
        Fault{"helpToNowhere", "help.txt", "| 10", "| 11", "help.txt:1: page 11 does not exist"},
        Fault{"fewSwitches", "nastav.txt", "5 | Vína | vypnuto\n", "",
              "nastav.txt:0: the program has five switches"},
        Fault{"raggedTable", "tabulky/3-ryby.txt", "Pstruh |", "Pstruh | řeka |",
              "tabulky/3-ryby.txt:3: 3 cells under 2 headings"},
        Fault{"keywordNumber", kKeyword, "== 12", "== 1200",
              "hesla/ryby.txt:1: the number must be from 1 to 800"},
        Fault{"shortKeyword", kKeyword,
              "Prodává se celý rok a nejlepší je čerstvý, dokud má červené žábry a jasné oči. Peče se, smaží "
              "i vaří, vždy jen\nkrátce, aby se maso nevysušilo. ",
              "", "hesla/ryby.txt:1: "}));

INSTANTIATE_TEST_SUITE_P(
    Texts, FaultTest,
    testing::Values(
        Fault{"linkToNowhere", kRecipe, "[pstruh]", "[kapr]",
              "06-pstruh.txt:20: a link to nowhere: \"kapr\""},
        Fault{"videoToNowhere", kKeyword, "video 1", "video 7",
              "hesla/ryby.txt:2: a link to nowhere: \"video 7\""},
        Fault{"charset", kRecipe, "5 minutách", "½ hodině",
              "a character that the texts' charset lacks: ½ (U+00bd)"},
        Fault{"digitBehindLink", kRecipe, "[pstruh] ", "[pstruh]2 ",
              "06-pstruh.txt:20: a digit right behind a link phrase"},
        Fault{"digitBeginsLink", kRecipe, "[pstruh]", "[2 ryby -> pstruh]",
              "a link phrase begins with a digit"},
        Fault{"openBold", kRecipe, "Ihned na", "**Ihned na",
              "06-pstruh.txt:31: bold or italic is not closed"},
        Fault{"openLink", kRecipe, "[pstruh]", "[pstruh", "06-pstruh.txt:20: a link phrase is not closed"},
        Fault{"spelling", kRecipe, "Ihned", "Yhned",
              "06-pstruh.txt:31: a word that the dictionary does not know: Yhned"},
        Fault{"quotes", kRecipe, "Ihned", "\"Ihned\"",
              "06-pstruh.txt:31: straight or foreign quotation marks"},
        Fault{"unpairedQuotes", kRecipe, "Ihned", "„Ihned",
              "06-pstruh.txt:31: quotation marks that do not pair"},
        Fault{"decimalPoint", kRecipe, "5 minutách", "5.5 minutách", "06-pstruh.txt:25: a decimal point"},
        Fault{"hyphen", kRecipe, "po 5 minutách", "po 5-6 minutách",
              "06-pstruh.txt:25: a hyphen between numbers"},
        Fault{"degree", kRecipe, "170 °C", "170°C", "06-pstruh.txt:25: no blank in front of the degree sign"},
        Fault{"ellipsis", kRecipe, "na stůl.", "na stůl...", "06-pstruh.txt:31: three full stops"},
        Fault{"blankBeforeComma", kRecipe, "osušíme, osolíme", "osušíme ,osolíme",
              "06-pstruh.txt:23: a blank in front of"}));

INSTANTIATE_TEST_SUITE_P(
    Menus, FaultTest,
    testing::Values(
        Fault{"emptyList", "menu.txt", "=> teplé", "=> polévka",
              "menu.txt:4: menu row \"61\" (Teplá): it leads to no recipe"},
        Fault{"reservedTopic", "menu.txt", "téma 6", "téma 7", "menu.txt:3: topic 7 ships no menu"},
        Fault{"noTopic", "menu.txt", "téma 6", "tema 6", "menu.txt:3: not a topic"},
        Fault{"indent", "menu.txt", "  Teplá", "     Teplá", "menu.txt:4: indented by other than two blanks"},
        Fault{"flatSubmenu", "menu.txt", "  Teplá => teplé", "  Teplá\n    Teplá => teplé",
              "menu.txt:5: menu row \"611\" (Teplá): a submenu of this topic leads to keywords only"},
        Fault{"unknownKeyword", "menu.txt", "=> teplé", "=> heslo Kečup", "menu.txt:4: unknown keyword \"Kečup\""},
        Fault{"actionToNowhere", "menu.txt", "=> nikam", "",
              "menu.txt:6: menu row \"121\" (Napište název): it leads nowhere"},
        Fault{"unreachableRecipe", kRecipe, "ryba: pstruh\n", "",
              "menu row \"211\" (Recepty): a submenu without items"},
        Fault{"unreachableQuick", "menu.txt", "téma 2: Ryby\n  Pstruh => pstruh\n", "",
              "rychle.txt:1: the menu does not lead to"}));

INSTANTIATE_TEST_SUITE_P(Galleries, FaultTest,
                         testing::Values(Fault{"outside", "sponzor.txt", "20 300 300 180", "20 300 300 780",
                                               "sponzor.txt:4: the area must lie within"},
                                         Fault{"areaToNowhere", "sponzor.txt", "| pstruh", "| kapr",
                                               "sponzor.txt:3: there is no \"kapr\""},
                                         Fault{"namelessArea", "sponzor.txt", "| Talíř |", "| |",
                                               "sponzor.txt:4: an area without a name"},
                                         Fault{"emptyArea", "sponzor.txt", "Na talíř se vejde celý pstruh.",
                                               "", "sponzor.txt:4: an area with neither"},
                                         Fault{"missingTopic", "sponzor.txt", "== 13 | 13", "== 13 | 12",
                                               "sponzor.txt:0: topic 13 has no picture"},
                                         Fault{"gallerySpelling", "sponzor.txt", "talíř se", "tlaíř se",
                                               "sponzor.txt:5: a word that the dictionary"}));

}  // namespace
}  // namespace sarne::disc
