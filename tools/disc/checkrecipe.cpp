#include "checkrecipe.h"

#include <algorithm>
#include <cmath>

#include "checkmethod.h"
#include "core/gridtable.h"
#include "courses.h"
#include "nearword.h"
#include "weights.h"

namespace sarne::disc {
namespace {

/// How far the two unit systems may be apart.
constexpr double kTolerance = 0.10;
/// More spoons than that are measured in cups.
constexpr double kMostSpoons = 12;
constexpr double kCup = 250;
constexpr double kHalf = 0.5;
const QString kIngredients = QStringLiteral("Suroviny");

/// As a writer writes it: "0,6 hrnky".
QString czechText(double amount, const QString& unit) {
    return QString::number(amount).replace(u'.', u',') + u' ' + unit;
}

void checkMeasure(const Cookbook& book, const Recipe& recipe, const IngredientLine& line,
                  Problems& problems) {
    for (const auto& [amount, id] :
         {std::pair(line.amount, line.unit), std::pair(line.spoonAmount, line.spoonUnit)}) {
        const Unit* unit = book.unit(id);
        if (!unit) continue;
        if (unit->name == QStringLiteral("porce") && amount != recipe.portions)
            problems.finding(line.place,
                             QStringLiteral("%1 porcí v receptu pro %2").arg(amount).arg(recipe.portions));
        if (unit->kind == UnitKind::spoon && unit->size < kCup && amount > kMostSpoons)
            problems.finding(line.place, QStringLiteral("%1 lžic nikdo neodměří; nejvýš %2, potom hrnky")
                                             .arg(amount)
                                             .arg(kMostSpoons));
        if (unit->kind == UnitKind::spoon && std::fmod(amount, kHalf) != 0)
            problems.finding(
                line.place,
                QStringLiteral("%1: lžíce a hrnky se měří po polovinách").arg(czechText(amount, unit->name)));
    }
}

void checkAmounts(const Cookbook& book, const IngredientLine& line, Problems& problems) {
    if (line.unit == 0 || line.spoonUnit == 0 || line.ingredient == 0) return;
    if (line.unit == line.spoonUnit) {
        if (line.amount != line.spoonAmount)
            problems.error(line.place, QStringLiteral("jedna jednotka a dvě různá množství"));
        return;
    }
    const double weight = inGrams(book, line, line.amount, line.unit);
    const double spoons = inGrams(book, line, line.spoonAmount, line.spoonUnit);
    if (weight <= 0 || spoons <= 0) {
        if (!line.isUnclear)
            problems.finding(line.place, QStringLiteral("lzice.txt neříká, kolik váží „%1“ suroviny „%2“")
                                             .arg(book.unit(weight <= 0 ? line.unit : line.spoonUnit)->name,
                                                  book.ingredient(line.ingredient)->name));
    } else if (std::abs(weight - spoons) > kTolerance * weight) {
        problems.error(line.place,
                       QStringLiteral("váha a lžíce se liší: %1 g a %2 g").arg(weight).arg(spoons));
    }
}

bool isBlank(const Lines& text) {
    return std::all_of(text.cbegin(), text.cend(), [](const Line& line) { return line.isBlank(); });
}

bool hasMain(const Cookbook& book, const Recipe& recipe) {
    return std::any_of(recipe.ingredients.cbegin(), recipe.ingredients.cend(),
                       [&](const IngredientLine& line) {
                           const Ingredient* ingredient = book.ingredient(line.ingredient);
                           return ingredient && ingredient->isMain;
                       });
}

/// Numbers that are free for a recipe of these courses, as a writer is told of them.
QString freeNumbers(const Cookbook& book, QStringList courses) {
    courses.sort();
    QStringList free;
    for (int id = 1; id <= kGridCells && free.size() < 5; ++id) {
        QStringList shown = gridCourses(book.facts, id);
        shown.sort();
        if (shown == courses && !book.recipes.contains(id)) free << QString::number(id);
    }
    return free.isEmpty() ? QStringLiteral("%1 a dál").arg(kGridCells + 1) : free.join(QStringLiteral(", "));
}

void checkCourses(const Cookbook& book, const Recipe& recipe, Problems& problems) {
    const Place place = recipe.placeOf(QStringLiteral("chod"));
    if (book.facts.courses.isEmpty()) return;
    bool isKnown = true;
    for (const QString& course : recipe.courses) {
        if (book.facts.courses.contains(course)) continue;
        isKnown = false;
        problems.error(place, QStringLiteral("chod „%1“ kniha nemá").arg(course) +
                                  didYouMean(course, book.facts.courses));
    }
    if (recipe.id > kGridCells || !isKnown) return;
    QStringList given = recipe.courses;
    QStringList wanted = gridCourses(book.facts, recipe.id);
    given.sort();
    wanted.sort();
    if (given != wanted)
        problems.error(place,
                       QStringLiteral("mřížka fotografií ukazuje recept %1 jako: %2; chod se řídí číslem "
                                      "receptu, volná čísla pro %3: %4")
                           .arg(recipe.id)
                           .arg(gridCourses(book.facts, recipe.id).join(QStringLiteral(", ")),
                                given.join(QStringLiteral(", ")), freeNumbers(book, given)));
}

/// Reports those of \a names that are none of \a known.
void checkNames(const Recipe& recipe, const char* key, const QStringList& names, const QStringList& known,
                Problems& problems) {
    for (const QString& name : names)
        if (!known.contains(name))
            problems.error(recipe.placeOf(QString::fromUtf8(key)),
                           QStringLiteral("%1: „%2“ není v seznamu").arg(QString::fromUtf8(key), name) +
                               didYouMean(name, known));
}

template <typename List>
QStringList namesOf(const List& things) {
    QStringList names;
    for (const auto& thing : things) names << thing.name;
    return names;
}

void checkHead(const Cookbook& book, const Recipe& recipe, Problems& problems) {
    // One that is given badly has been told of.
    const auto required = [&](const char* key) {
        if (!recipe.headPlaces.contains(QString::fromUtf8(key)))
            problems.error(recipe.placeOf(QString::fromUtf8(key)),
                           QStringLiteral("v hlavičce chybí „%1“").arg(QString::fromUtf8(key)));
    };
    for (const char* key : {"název", "dlouhý název", "porce", "minut"}) required(key);
    for (const char* key : {"pomůcky", "vína"})
        if (book.facts.needs(key)) required(key);
    for (const char* key : {"příprava", "vaření", "obtížnost", "kosti", "mrazit", "vydrží", "sezona"})
        if (!recipe.headPlaces.contains(QString::fromUtf8(key)) && book.facts.needs(key))
            problems.finding(recipe.place,
                             QStringLiteral("v hlavičce chybí „%1“").arg(QString::fromUtf8(key)));
    checkNames(recipe, "pomůcky", recipe.tools, book.tools.names, problems);
    checkNames(recipe, "vína", recipe.wines, namesOf(book.wines), problems);
    checkNames(recipe, "odkazy", recipe.auxiliary, namesOf(book.auxiliary), problems);
    checkCourses(book, recipe, problems);
}

void checkTimes(const Recipe& recipe, Problems& problems) {
    const int parts = recipe.preparation + recipe.cooking;
    if (parts == 0 || recipe.minutes == 0) return;
    if (recipe.minutes > parts || recipe.minutes < std::max(recipe.preparation, recipe.cooking))
        problems.finding(recipe.placeOf(QStringLiteral("minut")),
                         QStringLiteral("%1 minut nesouhlasí s přípravou (%2) a vařením (%3)")
                             .arg(recipe.minutes)
                             .arg(recipe.preparation)
                             .arg(recipe.cooking));
}

void checkSections(const BookFacts& facts, const Recipe& recipe, Problems& problems) {
    const std::pair<const char*, const Lines*> texts[] = {{"Postup", &recipe.method},
                                                          {"Úvod", &recipe.introduction},
                                                          {"Jak podávat", &recipe.serving},
                                                          {"Poznámka", &recipe.note},
                                                          {"Víno", &recipe.wineText}};
    // A section of another name has been told of.
    const bool isClear = std::ranges::all_of(recipe.sectionPlaces.keys(), [&](const QString& title) {
        return title == kIngredients || std::ranges::any_of(texts, [&](const auto& one) {
                   return title == QString::fromUtf8(one.first);
               });
    });
    for (const auto& [title, text] : texts)
        if (isClear && isBlank(*text) && facts.required.contains(QString::fromUtf8(title)))
            problems.error(recipe.sectionPlaces.value(QString::fromUtf8(title), recipe.place),
                           QStringLiteral("chybí text části „%1“").arg(QString::fromUtf8(title)));
    const qsizetype count = recipe.ingredients.size();
    if (!isClear) return;
    if (count < facts.fewestIngredients || count > facts.mostIngredients)
        problems.error(recipe.sectionPlaces.value(kIngredients, recipe.place),
                       QStringLiteral("surovin je %1, má jich být %2 až %3")
                           .arg(count)
                           .arg(facts.fewestIngredients)
                           .arg(facts.mostIngredients));
}

}  // namespace

void checkRecipe(const Cookbook& book, const Stems& stems, const Recipe& recipe, Problems& problems) {
    checkHead(book, recipe, problems);
    checkTimes(recipe, problems);
    checkSections(book.facts, recipe, problems);
    if (const QString& mark = book.facts.mainMark;
        !mark.isEmpty() && !recipe.ingredients.isEmpty() && !hasMain(book, recipe))
        problems.finding(recipe.sectionPlaces.value(kIngredients, recipe.place),
                         QStringLiteral("mezi surovinami není %1").arg(mark));
    for (const IngredientLine& line : recipe.ingredients) {
        checkAmounts(book, line, problems);
        checkMeasure(book, recipe, line, problems);
    }
    checkMethod(book, stems, recipe, problems);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
