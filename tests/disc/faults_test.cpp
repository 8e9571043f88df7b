#include <gtest/gtest.h>

#include "smallcookbook.h"

namespace sarne::disc {
namespace {

TEST(SmallCookbookTest, FaultlessContentHasNoFaultsButItsSize) {
    EXPECT_EQ(SmallCookbook().complaints().join(u'\n').toStdString(),
              "hledani.txt:0: slov je 2, má jich být aspoň 150\n"
              "suroviny.txt:3: „sádlo“ stojí jen jako náhrada, hledání nenajde žádný recept");
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
    const QStringList errors = book.complaints();
    EXPECT_TRUE(errors.join(u'\n').contains(QString::fromUtf8(fault.message)))
        << "wanted: " << fault.message << "\nreported:\n"
        << errors.join(u'\n').toStdString();
}

constexpr const char* kRecipe = "recepty/06-pstruh.txt";
constexpr const char* kKeyword = "hesla/ryby.txt";

const Fault kFaults[] = {
    {"unknownIngredient", kRecipe, "mouka: 20", "krupice: 20",
     "06-pstruh.txt:21: neznámá surovina „krupice“"},
    {"unknownAlternative", kRecipe, "nebo sádlo", "nebo lůj", "06-pstruh.txt:20: neznámá surovina „lůj“"},
    {"unknownRefinement", kRecipe, "pstruh, celý", "pstruh, půlený",
     "06-pstruh.txt:19: neznámé upřesnění „půlený“"},
    {"missingUnit", kRecipe, "20 g = 2 lžíce", "20 = 2 lžíce", "06-pstruh.txt:21: chybí jednotka"},
    {"unknownUnit", kRecipe, "20 g", "20 deka", "06-pstruh.txt:21: neznámá jednotka „deka“"},
    {"missingNumber", kRecipe, "citron: 1 ks", "citron: ks", "06-pstruh.txt:22: chybí číslo"},
    {"noSpoons", kRecipe, "20 g = 2 lžíce", "20 g", "06-pstruh.txt:21: chybí množství na lžíce"},
    {"noAmount", kRecipe, "citron: 1 ks", "citron", "06-pstruh.txt:22: surovina bez množství"},
    {"systemsDiffer", kRecipe, "20 g = 2", "20 g = 3", "06-pstruh.txt:21: váha a lžíce se liší"},
    {"volumesDiffer", kRecipe, "30 ml = 2", "30 ml = 1", "06-pstruh.txt:23: váha a lžíce se liší"},
    {"noSpoonWeight", "lzice.txt", "mouka: lžíce 10 g\n", "",
     "06-pstruh.txt:21: lzice.txt neříká, kolik váží „lžíce“ suroviny „mouka“"},
    {"badSpoonWeight", "lzice.txt", "lžíce 10 g", "lžíce 10", "lzice.txt:3: tohle není váha jednotky"},
    {"weightOfNothing", "lzice.txt", "mouka", "krupice", "lzice.txt:3: neznámá surovina „krupice“"},
    {"unusedIngredient", "suroviny.txt", "mouka", "rýže\nmouka",
     "suroviny.txt:5: „rýže“ žádný recept nepoužívá"},
    {"twice", "suroviny.txt", "mouka", "sádlo\nmouka", "suroviny.txt:5: surovina „sádlo“ tu stojí podruhé"},
    {"unitTwice", "jednotky.txt", "ml | |", "ml | gramů |",
     "jednotky.txt:2: jednotka „gramů“ tu stojí podruhé"},
    {"noFish", "suroviny.txt", "pstruh | ryba", "pstruh", "06-pstruh.txt:1: mezi surovinami není ryba"},
    {"fewIngredients", kRecipe, "sůl: podle chuti\n", "", "06-pstruh.txt:18: surovin je 5"},
    {"otherCourse", kRecipe, "chod: teplé", "chod: studené",
     "06-pstruh.txt:5: mřížka fotografií ukazuje recept 6 jako: teplé"},
    {"unknownTool", kRecipe, "pomůcky: pánev", "pomůcky: wok",
     "06-pstruh.txt:7: pomůcky: „wok“ není v seznamu"},
    {"unknownWine", kRecipe, "vína: Ryzlink", "vína: Tokaj", "06-pstruh.txt:8: vína: „Tokaj“ není v seznamu"},
    {"unknownAuxiliary", kRecipe, "odkazy: Bylinkové", "odkazy: Husté",
     "06-pstruh.txt:9: odkazy: „Husté máslo“ není v seznamu"},
    {"unknownKey", kRecipe, "porce: 2", "osob: 2", "06-pstruh.txt:3: neznámý klíč „osob“"},
    {"keyTwice", kRecipe, "porce: 2", "minut: 2", "06-pstruh.txt:4: klíč „minut“ tu stojí podruhé"},
    {"noNumber", kRecipe, "minut: 25", "minut: půlhodina", "06-pstruh.txt:4: „minut“ nemůže být „půlhodina“"},
    {"noChoice", kRecipe, "minut: 25", "minut: 25\nmrazit: možná",
     "06-pstruh.txt:5: „mrazit“ nemůže být „možná“"},
    {"sectionTwice", kRecipe, "== Poznámka", "== Postup", "06-pstruh.txt:37: část „Postup“ tu stojí podruhé"},
    {"unknownSection", kRecipe, "== Poznámka", "== Rada", "06-pstruh.txt:37: neznámá část „Rada“"},
    {"noText", kRecipe, "Ihned na stůl.", "", "06-pstruh.txt:37: chybí text části „Poznámka“"},
    {"slowQuickRecipe", kRecipe, "minut: 25", "minut: 45", "rychle.txt:1: „Pstruh na másle“ trvá 45 minut"},
    {"quickToNowhere", "rychle.txt", "| 6", "| 7", "rychle.txt:1: recept 7 neexistuje"},
    {"missingPage", "stranky/stranky.txt", "== 300", "== 301", "stranky:0: chybí stránka 300"},
    {"helpToNowhere", "help.txt", "| 10", "| 11", "help.txt:1: stránka 11 neexistuje"},
    {"fewSwitches", "nastav.txt", "5 | Vína | vypnuto\n", "", "nastav.txt:0: program má pět přepínačů"},
    {"raggedTable", "tabulky/3-ryby.txt", "Pstruh |", "Pstruh | řeka |",
     "tabulky/3-ryby.txt:3: 3 buněk pod 2 nadpisy"},
    {"keywordNumber", kKeyword, "== 12", "== 1200", "hesla/ryby.txt:1: číslo musí být od 1 do 800"},
    {"shortKeyword", kKeyword,
     "Prodává se celý rok a nejlepší je čerstvý, dokud má červené žábry a jasné oči. Peče se, smaží "
     "i vaří, vždy jen\nkrátce, aby se maso nevysušilo. ",
     "", "hesla/ryby.txt:1: "},
    {"linkToNowhere", kRecipe, "[pstruh]", "[kapr]", "06-pstruh.txt:27: odkaz nikam: „kapr“"},
    {"videoToNowhere", kKeyword, "video 1", "video 7", "hesla/ryby.txt:2: odkaz nikam: „video 7“"},
    {"charset", kRecipe, "5 minutách", "½ hodině", "znak, který texty neumějí: ½ (U+00bd)"},
    {"digitBehindLink", kRecipe, "[pstruh] ", "[pstruh]2 ", "06-pstruh.txt:27: hned za odkazem je číslice"},
    {"digitBeginsLink", kRecipe, "[pstruh]", "[2 ryby -> pstruh]", "odkaz začíná číslicí"},
    {"openBold", kRecipe, "Ihned na", "**Ihned na", "06-pstruh.txt:38: tučné písmo nebo kurziva nekončí"},
    {"openLink", kRecipe, "[pstruh]", "[pstruh", "06-pstruh.txt:27: odkaz nemá konec"},
    {"spelling", kRecipe, "Ihned", "Yhned", "06-pstruh.txt:38: slovo, které slovník nezná: Yhned"},
    {"quotes", kRecipe, "Ihned", "\"Ihned\"", "06-pstruh.txt:38: rovné nebo cizí uvozovky"},
    {"unpairedQuotes", kRecipe, "Ihned", "„Ihned", "06-pstruh.txt:38: uvozovky, které k sobě nepatří"},
    {"decimalPoint", kRecipe, "5 minutách", "5.5 minutách", "06-pstruh.txt:32: desetinná tečka"},
    {"hyphen", kRecipe, "po 5 minutách", "po 5-6 minutách", "06-pstruh.txt:32: spojovník mezi čísly"},
    {"degree", kRecipe, "170 °C", "170°C", "06-pstruh.txt:32: před značkou stupně chybí mezera"},
    {"ellipsis", kRecipe, "na stůl.", "na stůl...", "06-pstruh.txt:38: tři tečky"},
    {"blankBeforeComma", kRecipe, "osušíme, osolíme", "osušíme ,osolíme",
     "06-pstruh.txt:30: mezera před interpunkcí"},
    {"emptyList", "menu.txt", "=> teplé", "=> polévka",
     "menu.txt:4: řádek nabídky 61 (Teplá): nevede k žádnému receptu"},
    {"reservedTopic", "menu.txt", "téma 6", "téma 7", "menu.txt:3: téma 7 nemá v knize nabídku"},
    {"noTopic", "menu.txt", "téma 6", "tema 6", "menu.txt:3: tohle není téma"},
    {"indent", "menu.txt", "  Teplá", "     Teplá", "menu.txt:4: odsazení má být o dvě mezery"},
    {"flatSubmenu", "menu.txt", "  Teplá => teplé", "  Teplá\n    Teplá => teplé",
     "menu.txt:5: řádek nabídky 611 (Teplá): podnabídka tohoto tématu vede jen k heslům"},
    {"unknownKeyword", "menu.txt", "=> teplé", "=> heslo Kečup", "menu.txt:4: heslo „Kečup“ neexistuje"},
    {"actionToNowhere", "menu.txt", "=> nikam", "",
     "menu.txt:6: řádek nabídky 121 (Napište název): nevede nikam"},
    {"unreachableRecipe", kRecipe, "ryba: pstruh\n", "",
     "řádek nabídky 21 (Pstruh): nevede k žádnému receptu"},
    {"unreachableQuick", "menu.txt", "téma 2: Ryby\n  Pstruh => pstruh\n", "",
     "rychle.txt:1: k rychlému receptu „Pstruh za chvíli“ nevede žádná nabídka"},
    {"outside", "sponzor.txt", "20 300 300 180", "20 300 300 780", "sponzor.txt:4: plocha musí ležet"},
    {"areaToNowhere", "sponzor.txt", "| pstruh", "| kapr", "sponzor.txt:3: „kapr“ neexistuje"},
    {"namelessArea", "sponzor.txt", "| Talíř |", "| |", "sponzor.txt:4: plocha nemá název"},
    {"emptyArea", "sponzor.txt", "Na talíř se vejde celý pstruh.", "",
     "sponzor.txt:4: plocha nemá text ani cíl"},
    {"missingTopic", "sponzor.txt", "== 13 | 13", "== 13 | 12", "sponzor.txt:0: téma 13 nemá obraz"},
    {"gallerySpelling", "sponzor.txt", "talíř se", "tlaíř se",
     "sponzor.txt:5: slovo, které slovník nezná: tlaíř"},
    {"pictureOfNoKeyword", "obrazky.txt",
     "Pstruh:", "Pstru:", "obrazky.txt:1: heslo „pstru“ neexistuje – mysleli jste „pstruh“?"},
    {"pictureOfNoDish", "obrazky.txt", "jídlo 6", "jídlo 7", "obrazky.txt:1: recept 7 neexistuje"},
    {"pictureTwice", "obrazky.txt", "Bylinkové máslo – recept", "Pstruhy",
     "obrazky.txt:2: heslo „pstruhy“ tu stojí podruhé"},
    {"pictureOfAnotherDish", kRecipe, "odkazy: Bylinkové máslo\n", "",
     "obrazky.txt:2: recept 6 s heslem „bylinkové máslo – recept“ nemá nic společného"},
    {"misspeltTag", kRecipe, "ryba: pstruh", "ryba: pstuh",
     "06-pstruh.txt:6: menu.txt nezná štítek „pstuh“ – mysleli jste „pstruh“?"},
    {"tagOfNoRecipe", "menu.txt", "=> teplé", "=> teplé, teple",
     "menu.txt:4: štítek „teple“ nemá žádný recept – mysleli jste „teplé“?"},
    {"misspeltIngredient", kRecipe, "mouka: 20", "muoka: 20",
     "06-pstruh.txt:21: neznámá surovina „muoka“ – mysleli jste „mouka“?"},
    {"stepLeftOut", kRecipe, "2. Smažíme", "3. Smažíme", "06-pstruh.txt:32: za krokem 1 stojí krok 3"},
    {"ingredientNotNamed", kRecipe, " a podlijeme vínem", "",
     "06-pstruh.txt:23: postup nejmenuje surovinu „víno“"},
    {"toolNotListed", kRecipe, "pomůcky: pánev", "pomůcky: rošt",
     "06-pstruh.txt:32: postup potřebuje pomůcku „pánev“, hlavička ji nemá"},
    {"timeAboveTotal", kRecipe, "po 5 minutách", "po 50 minutách",
     "06-pstruh.txt:32: 50 minut v postupu, celkem jich má být 25"},
    {"totalAboveParts", kRecipe, "příprava: 10", "příprava: 5",
     "06-pstruh.txt:4: 25 minut nesouhlasí s přípravou (5) a vařením (15)"},
    {"temperatureWithoutUnit", kRecipe, "Smažíme", "Troubu rozpálíme na 170. Smažíme",
     "06-pstruh.txt:32: teplota bez °C: 170"},
    {"degreesAlone", kRecipe, "170 °C", "170 ° C", "06-pstruh.txt:32: za značkou stupně chybí C"},
    {"portionsOfFish", kRecipe, "pstruh, celý: 600 g = 2 ks", "pstruh, celý: 600 g = 3 porce",
     "06-pstruh.txt:19: 3 porcí v receptu pro 2"},
    {"manySpoons", kRecipe, "30 ml = 2 lžíce", "195 ml = 13 lžíce",
     "06-pstruh.txt:23: 13 lžic nikdo neodměří"},
    {"oddCup", kRecipe, "30 ml = 2 lžíce", "30 ml = 2,1 lžíce",
     "06-pstruh.txt:23: 2,1 lžíce: lžíce a hrnky se měří po polovinách"},
    {"tenthOff", kRecipe, "20 g = 2 lžíce", "23 g = 2 lžíce",
     "06-pstruh.txt:21: váha a lžíce se liší: 23 g a 20 g"},
    {"rangeAsAmount", kRecipe, "citron: 1 ks", "citron: 1–2 ks",
     "06-pstruh.txt:22: místo rozsahu napište jedno číslo"},
    {"pointInAmount", kRecipe, "20 g = 2 lžíce", "20 g = 2.0 lžíce",
     "06-pstruh.txt:21: desetinné číslo se píše s čárkou"},
    {"wordFindsNothing", "hledani.txt", "mouka", "krupice",
     "hledani.txt:2: „krupice“ nenajde žádnou surovinu"},
    {"misspeltWord", "hledani.txt", "mouka", "muoka", "nenajde žádnou surovinu – mysleli jste „mouka“?"},
    {"missingFact", kRecipe, "sezona: celoročně\n", "", "06-pstruh.txt:1: v hlavičce chybí „sezona“"},
    {"unknownFood", "potraviny.txt", "víno:", "ovín:", "potraviny.txt:5: neznámá surovina „ovín“"},
    {"foodMissing", "potraviny.txt", "víno: 80 kcal; 0 g bílkovin; alergeny 12\n", "",
     "06-pstruh.txt:23: potraviny.txt neříká, co obsahuje „víno“"},
    {"noAllergen", "potraviny.txt", "alergeny 12", "alergeny 15",
     "potraviny.txt:5: nečitelný údaj o potravině: „alergeny 15“"},
    {"pieceWithoutWeight", "lzice.txt", "citron: ks 100 g", "",
     "06-pstruh.txt:22: lzice.txt neříká, kolik váží „ks“ suroviny „citron“"},
    {"toolOfStems", "tvary.txt", "pánev: pánv", "panec: pánv",
     "tvary.txt:3: neznámá pomůcka „panec“ – mysleli jste „pánev“?"},
};

INSTANTIATE_TEST_SUITE_P(Small, FaultTest, testing::ValuesIn(kFaults));

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
