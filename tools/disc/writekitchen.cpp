#include "writekitchen.h"

#include "season.h"

namespace sarne::disc {
namespace {

int bitsOf(const QList<int>& numbers) {
    int bits = 0;
    for (const int number : numbers) bits |= 1 << (number - 1);
    return bits;
}

/// The allergens of an ingredient in any of its refinements.
int allergensOf(const Cookbook& book, const QString& ingredient) {
    int bits = 0;
    const QString name = ingredient.toLower();
    for (auto food = book.foods.cbegin(); food != book.foods.cend(); ++food)
        if (food.key() == name || food.key().startsWith(name + u',')) bits |= bitsOf(food->allergens);
    return bits;
}

void writeSteps(const Recipe& recipe, int& last, const AddRow& add) {
    for (const RecipeStep& step : recipe.steps) {
        add(QStringLiteral("Kroky"), {++last, recipe.id, step.title, step.text});
        for (auto share = step.shares.cbegin(); share != step.shares.cend(); ++share)
            add(QStringLiteral("KrokySur"), {last, share.key(), *share});
    }
}

/// The line of the fish that a cook buys whole; none in a book about something else.
qsizetype mainFish(const Cookbook& book, const Recipe& recipe) {
    if (book.facts.mainMark != BookFacts().mainMark) return -1;
    for (qsizetype i = 0; i < recipe.ingredients.size(); ++i)
        if (const Ingredient* one = book.ingredient(recipe.ingredients[i].ingredient); one && one->isMain)
            return i;
    return -1;
}

QString feasts(const Recipe& recipe) {
    QStringList all;
    for (auto tag = recipe.tagKeys.cbegin(); tag != recipe.tagKeys.cend(); ++tag)
        if (*tag == QStringLiteral("období")) all << tag.key();
    all.sort();
    return all.join(u',');
}

/// The courses of the photo grid, and what a menu wants to know beyond them.
QString coursesOf(const Recipe& recipe) {
    QStringList all = recipe.courses;
    for (const QString& tag : {QStringLiteral("předkrm"), QStringLiteral("hlavní za studena")})
        if (recipe.tags.contains(tag)) all << tag;
    return all.join(u',');
}

void writeFacts(const Cookbook& book, const Recipe& recipe, const AddRow& add, Problems& problems) {
    const std::optional<int> months = monthsOf(recipe.season);
    if (!months && !recipe.season.isEmpty())
        problems.error(recipe.placeOf(QStringLiteral("sezona")),
                       QStringLiteral("sezona je „celoročně“ nebo „říjen–březen“: „%1“").arg(recipe.season));
    int allergens = 0;
    for (const IngredientLine& line : recipe.ingredients)
        if (const Ingredient* one = book.ingredient(line.ingredient))
            allergens |= allergensOf(book, one->name);
    add(QStringLiteral("Fakta"),
        {recipe.id, recipe.preparation, recipe.cooking, recipe.minutes, recipe.ahead, months.value_or(0),
         allergens, mainFish(book, recipe), coursesOf(recipe), feasts(recipe)});
}

void writeGoods(const Cookbook& book, const AddRow& add) {
    for (const Ingredient& one : book.ingredients)
        add(QStringLiteral("Zbozi"),
            {one.id, book.goods.departments.value(one.name, -1), book.goods.atHome.contains(one.name) ? 1 : 0,
             allergensOf(book, one.name)});
    for (const QString& name : book.goods.madeAtHome)
        add(QStringLiteral("Uprava"), {book.refinements.id(name)});
    for (auto yield = book.goods.yields.cbegin(); yield != book.goods.yields.cend(); ++yield)
        add(QStringLiteral("Vyteznost"), {yield.key(), *yield});
}

}  // namespace

void writeKitchen(const Cookbook& book, const AddRow& add, Problems& problems) {
    int lastStep = 0;
    for (const Recipe& recipe : book.recipes) {
        writeSteps(recipe, lastStep, add);
        writeFacts(book, recipe, add, problems);
    }
    if (book.goods.isGiven) writeGoods(book, add);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
