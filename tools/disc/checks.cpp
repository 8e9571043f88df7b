#include "checks.h"

#include <algorithm>
#include <cmath>

#include "courses.h"
#include "markup.h"
#include "readsponsors.h"

namespace sarne::disc {
namespace {

/// How far the two unit systems may be apart.
constexpr double kTolerance = 0.15;
constexpr int kFewestIngredients = 6;
constexpr int kMostIngredients = 16;
/// How long the text of a keyword is.
constexpr int kFewestWords = 60;
constexpr int kMostWords = 200;
constexpr int kQuickMinutes = 30;
constexpr int kSwitches = 5;

/// Grams of one \a unit of what a line names: its own weight with the refinement, without it, any fish's.
double unitWeight(const Cookbook& book, const IngredientLine& line, int unit) {
    const Ingredient* ingredient = book.ingredient(line.ingredient);
    if (!ingredient) return 0;
    QStringList keys;
    if (line.refinement > 0)
        keys << ingredient->name + QStringLiteral(", ") + book.refinements.names[line.refinement - 1];
    keys << ingredient->name;
    if (ingredient->isFish) keys << QStringLiteral("ryba");
    for (const QString& key : keys)
        if (const double grams = book.unitWeights.value(key.toLower()).value(unit)) return grams;
    return 0;
}

double inGrams(const Cookbook& book, const IngredientLine& line, double amount, int unitId) {
    const Unit* unit = book.unit(unitId);
    if (!unit) return 0;
    if (unit->kind == UnitKind::weight || unit->kind == UnitKind::volume) return amount * unit->size;
    const Unit* first = book.unit(line.unit);
    if (unit->kind == UnitKind::spoon && first && first->kind == UnitKind::volume) return amount * unit->size;
    return amount * unitWeight(book, line, unitId);
}

void checkAmounts(const Cookbook& book, const IngredientLine& line, Problems& problems) {
    if (line.unit == 0 || line.spoonUnit == 0 || line.ingredient == 0) return;
    if (line.unit == line.spoonUnit) {
        if (line.amount != line.spoonAmount)
            problems.error(line.place, QStringLiteral("one unit, two amounts"));
        return;
    }
    const double weight = inGrams(book, line, line.amount, line.unit);
    const double spoons = inGrams(book, line, line.spoonAmount, line.spoonUnit);
    if (weight <= 0 || spoons <= 0) {
        problems.error(line.place, QStringLiteral("lzice.txt has no weight for a %1 of \"%2\"")
                                       .arg(book.unit(weight <= 0 ? line.unit : line.spoonUnit)->name,
                                            book.ingredient(line.ingredient)->name));
    } else if (std::abs(weight - spoons) > kTolerance * weight) {
        problems.error(line.place,
                       QStringLiteral("weights and spoons differ: %1 g and %2 g").arg(weight).arg(spoons));
    }
}

bool isBlank(const Lines& text) {
    return std::all_of(text.cbegin(), text.cend(), [](const Line& line) { return line.isBlank(); });
}

bool hasFish(const Cookbook& book, const Recipe& recipe) {
    return std::any_of(recipe.ingredients.cbegin(), recipe.ingredients.cend(),
                       [&](const IngredientLine& line) {
                           const Ingredient* ingredient = book.ingredient(line.ingredient);
                           return ingredient && ingredient->isFish;
                       });
}

void checkCourses(const Recipe& recipe, Problems& problems) {
    QStringList given = recipe.courses;
    QStringList wanted = gridCourses(recipe.id);
    given.sort();
    wanted.sort();
    if (given != wanted)
        problems.error(recipe.place, QStringLiteral("the photo grid shows recipe %1 as: %2")
                                         .arg(recipe.id)
                                         .arg(gridCourses(recipe.id).join(QStringLiteral(", "))));
}

void checkNames(const Cookbook& book, const Recipe& recipe, Problems& problems) {
    for (const QString& tool : recipe.tools)
        if (!book.tools.id(tool))
            problems.error(recipe.place, QStringLiteral("unknown tool \"%1\"").arg(tool));
    for (const QString& wine : recipe.wines)
        if (!book.wineId(wine)) problems.error(recipe.place, QStringLiteral("unknown wine \"%1\"").arg(wine));
    for (const QString& name : recipe.auxiliary)
        if (!book.auxiliaryId(name))
            problems.error(recipe.place, QStringLiteral("unknown auxiliary recipe \"%1\"").arg(name));
}

void checkRecipe(const Cookbook& book, const Recipe& recipe, Problems& problems) {
    const auto wrong = [&](const QString& why) { problems.error(recipe.place, why); };
    if (recipe.name.isEmpty() || recipe.longName.isEmpty()) wrong(QStringLiteral("a name is missing"));
    if (recipe.portions < 1 || recipe.portions > 255)
        wrong(QStringLiteral("the number of portions is missing"));
    if (recipe.minutes < 1) wrong(QStringLiteral("the time in minutes is missing"));
    if (!hasFish(book, recipe)) wrong(QStringLiteral("a recipe without a fish"));
    if (recipe.tools.isEmpty()) wrong(QStringLiteral("a recipe without tools"));
    if (recipe.wines.isEmpty()) wrong(QStringLiteral("a recipe without a wine"));
    for (const Lines* text :
         {&recipe.method, &recipe.introduction, &recipe.serving, &recipe.note, &recipe.wineText})
        if (isBlank(*text)) wrong(QStringLiteral("one of the five texts is missing"));
    const qsizetype count = recipe.ingredients.size();
    if (count < kFewestIngredients || count > kMostIngredients)
        wrong(QStringLiteral("%1 ingredients; from %2 to %3 are wanted")
                  .arg(count)
                  .arg(kFewestIngredients)
                  .arg(kMostIngredients));
    for (const IngredientLine& line : recipe.ingredients) checkAmounts(book, line, problems);
    checkCourses(recipe, problems);
    checkNames(book, recipe, problems);
}

void checkArticle(const Article& article, Problems& problems) {
    if (isBlank(article.text) || article.name.isEmpty())
        problems.error(article.place, QStringLiteral("a name or a text is missing"));
}

void checkKeyword(const Article& keyword, Problems& problems) {
    qsizetype words = 0;
    for (const Line& line : keyword.text)
        words += plainText(line.text).split(u' ', Qt::SkipEmptyParts).size();
    if (words < kFewestWords || words > kMostWords)
        problems.error(keyword.place, QStringLiteral("%1 words; from %2 to %3 are wanted")
                                          .arg(words)
                                          .arg(kFewestWords)
                                          .arg(kMostWords));
}

void checkQuick(const Cookbook& book, Problems& problems) {
    for (const QuickRecipe& quick : book.quick) {
        const Recipe recipe = book.recipes.value(quick.recipe);
        if (recipe.id == 0)
            problems.error(quick.place, QStringLiteral("recipe %1 does not exist").arg(quick.recipe));
        else if (recipe.minutes > kQuickMinutes)
            problems.error(quick.place,
                           QStringLiteral("\"%1\" takes %2 minutes").arg(recipe.name).arg(recipe.minutes));
    }
}

void checkUse(const Cookbook& book, Problems& problems) {
    QSet<int> ingredients;
    QSet<int> refinements;
    QSet<QString> names;
    for (const Recipe& recipe : book.recipes) {
        for (const IngredientLine& line : recipe.ingredients) {
            ingredients << line.ingredient << line.alternative;
            refinements << line.refinement;
        }
        for (const QString& name : recipe.tools + recipe.wines + recipe.auxiliary) names << name;
    }
    for (const Ingredient& ingredient : book.ingredients)
        if (!ingredients.contains(ingredient.id))
            problems.error(ingredient.place, QStringLiteral("no recipe uses \"%1\"").arg(ingredient.name));
    for (qsizetype i = 0; i < book.refinements.names.size(); ++i)
        if (!refinements.contains(static_cast<int>(i) + 1))
            problems.error(book.refinements.places[i], QStringLiteral("no recipe uses it"));
    for (qsizetype i = 0; i < book.tools.names.size(); ++i)
        if (!names.contains(book.tools.names[i]))
            problems.error(book.tools.places[i], QStringLiteral("no recipe uses it"));
    for (const Wine& wine : book.wines)
        if (!names.contains(wine.name))
            problems.error(wine.place, QStringLiteral("no recipe names \"%1\"").arg(wine.name));
    for (const Article& article : book.auxiliary)
        if (!names.contains(article.name))
            problems.error(article.place, QStringLiteral("no recipe refers to \"%1\"").arg(article.name));
}

void checkPages(const Cookbook& book, Problems& problems) {
    QSet<int> pages;
    for (const Page& page : book.pages) {
        if (pages.contains(page.id)) problems.error(page.place, QStringLiteral("the page stands twice"));
        pages << page.id;
    }
    for (const int wanted : {10, 300})
        if (!pages.contains(wanted))
            problems.error({QStringLiteral("stranky"), 0}, QStringLiteral("page %1 is missing").arg(wanted));
    for (const HelpTopic& topic : book.help)
        if (!pages.contains(topic.page))
            problems.error(topic.place, QStringLiteral("page %1 does not exist").arg(topic.page));
}

}  // namespace

LinkBook linkBook(const Cookbook& book, Problems& problems) {
    LinkBook links;
    for (const Article& keyword : book.keywords)
        for (const QString& name : keyword.otherNames + QStringList{keyword.name})
            if (!links.addKeyword(name, keyword.id))
                problems.error(keyword.place,
                               QStringLiteral("another keyword has the name \"%1\"").arg(name));
    for (const Article& article : book.auxiliary) {
        links.addKeyword(Cookbook::keywordName(article), kAuxiliaryKeywords + article.id);
        links.addKeyword(article.name, kAuxiliaryKeywords + article.id);  // unless a keyword has the name
    }
    for (const Video& video : book.videos) links.addVideo(video.number);
    return links;
}

void checkCookbook(const Cookbook& book, Problems& problems) {
    for (const Recipe& recipe : book.recipes) checkRecipe(book, recipe, problems);
    for (const Article& article : book.auxiliary + book.keywords) checkArticle(article, problems);
    for (const Article& keyword : book.keywords) checkKeyword(keyword, problems);
    checkQuick(book, problems);
    checkUse(book, problems);
    checkPages(book, problems);
    Problems known;  // names that stand twice are reported when the database is written
    checkSponsors(book, linkBook(book, known), problems);
    if (book.settings.size() != kSwitches)
        problems.error({QStringLiteral("nastav.txt"), 0}, QStringLiteral("the program has five switches"));
}

}  // namespace sarne::disc
