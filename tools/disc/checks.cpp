#include "checks.h"

#include <algorithm>

#include "checkmethod.h"
#include "checkrecipe.h"
#include "checktags.h"
#include "keywordsamples.h"
#include "markup.h"
#include "nearword.h"
#include "readsponsors.h"
#include "weights.h"

namespace sarne::disc {
namespace {

constexpr int kQuickMinutes = 30;
constexpr int kSwitches = 5;

bool isBlank(const Lines& text) {
    return std::all_of(text.cbegin(), text.cend(), [](const Line& line) { return line.isBlank(); });
}

void checkArticle(const Article& article, Problems& problems) {
    if (isBlank(article.text) || article.name.isEmpty())
        problems.error(article.place, QStringLiteral("chybí název nebo text"));
    checkSteps(article.text, problems);
}

void checkKeyword(const BookFacts& facts, const Article& keyword, Problems& problems) {
    qsizetype words = 0;
    for (const Line& line : keyword.text)
        words += plainText(line.text).split(u' ', Qt::SkipEmptyParts).size();
    if (words < facts.fewestKeywordWords || words > facts.mostKeywordWords)
        problems.finding(keyword.place, QStringLiteral("%1 slov, má jich být %2 až %3")
                                            .arg(words)
                                            .arg(facts.fewestKeywordWords)
                                            .arg(facts.mostKeywordWords));
}

void checkQuick(const Cookbook& book, Problems& problems) {
    for (const QuickRecipe& quick : book.quick) {
        const Recipe recipe = book.recipes.value(quick.recipe);
        if (recipe.id == 0)
            problems.error(quick.place, QStringLiteral("recept %1 neexistuje").arg(quick.recipe));
        else if (recipe.minutes > kQuickMinutes)
            problems.error(quick.place, QStringLiteral("„%1“ trvá %2 minut, v rychlých receptech smí jen %3")
                                            .arg(recipe.name)
                                            .arg(recipe.minutes)
                                            .arg(kQuickMinutes));
    }
}

/// Reports things of a list that nothing uses.
template <typename List, typename IsUsed>
void checkList(const List& things, const IsUsed& isUsed, Problems& problems) {
    for (const auto& thing : things)
        if (!isUsed(thing))
            problems.finding(thing.place, QStringLiteral("„%1“ žádný recept nepoužívá").arg(thing.name));
}

void checkNames(const NamedList& list, const QSet<QString>& used, Problems& problems) {
    for (qsizetype i = 0; i < list.names.size(); ++i)
        if (!used.contains(list.names[i]))
            problems.finding(list.places[i],
                             QStringLiteral("„%1“ žádný recept nepoužívá").arg(list.names[i]));
}

void checkUse(const Cookbook& book, Problems& problems) {
    QSet<int> ingredients;
    QSet<QString> names;
    for (const Recipe& recipe : book.recipes) {
        for (const IngredientLine& line : recipe.ingredients) {
            ingredients << line.ingredient << line.alternative;
            names << book.refinements.names.value(line.refinement - 1);
        }
        for (const QString& name : recipe.tools + recipe.wines + recipe.auxiliary) names << name;
    }
    checkNames(book.refinements, names, problems);
    checkNames(book.tools, names, problems);
    checkList(
        book.ingredients, [&](const Ingredient& one) { return ingredients.contains(one.id); }, problems);
    checkList(
        book.wines, [&](const Wine& one) { return names.contains(one.name); }, problems);
    checkList(
        book.auxiliary, [&](const Article& one) { return names.contains(one.name); }, problems);
}

/// Reports names in tvary.txt that are no tools.
void checkStems(const Cookbook& book, const Stems& stems, Problems& problems) {
    for (const StemEntry& entry : stems.tools)
        for (const QString& name : entry.names)
            if (!book.tools.id(name))
                problems.finding(entry.place, QStringLiteral("neznámá pomůcka „%1“").arg(name) +
                                                  didYouMean(name, book.tools.names));
}

void checkPages(const Cookbook& book, Problems& problems) {
    QSet<int> pages;
    for (const Page& page : book.pages) pages << page.id;
    for (const int wanted : {10, 300})
        if (!pages.contains(wanted))
            problems.error({QStringLiteral("stranky"), 0}, QStringLiteral("chybí stránka %1").arg(wanted));
    for (const HelpTopic& topic : book.help)
        if (!pages.contains(topic.page))
            problems.error(topic.place, QStringLiteral("stránka %1 neexistuje").arg(topic.page));
}

}  // namespace

LinkBook linkBook(const Cookbook& book, Problems& problems) {
    LinkBook links;
    for (const Article& keyword : book.keywords)
        for (const QString& name : keyword.otherNames + QStringList{keyword.name})
            if (!links.addKeyword(name, keyword.id))
                problems.error(keyword.place, QStringLiteral("jméno „%1“ má už jiné heslo").arg(name));
    for (const Article& article : book.auxiliary) {
        links.addKeyword(Cookbook::keywordName(article), kAuxiliaryKeywords + article.id);
        links.addKeyword(article.name, kAuxiliaryKeywords + article.id);  // unless a keyword has the name
    }
    for (const Video& video : book.videos) links.addVideo(video.number);
    return links;
}

void checkCookbook(const Cookbook& book, const Stems& stems, Problems& problems) {
    for (const Recipe& recipe : book.recipes) {
        checkRecipe(book, stems, recipe, problems);
        nutrition(book, recipe, problems);
    }
    checkStems(book, stems, problems);
    checkTags(book, problems);
    checkSearch(book, problems);
    for (const Article& article : book.auxiliary + book.keywords) checkArticle(article, problems);
    for (const Article& keyword : book.keywords) checkKeyword(book.facts, keyword, problems);
    checkQuick(book, problems);
    // What a mistyped line means is used, too.
    if (!problems.hasMistakes()) checkUse(book, problems);
    checkPages(book, problems);
    Problems known;  // names that stand twice are reported when the database is written
    const LinkBook links = linkBook(book, known);
    checkSponsors(book, links, problems);
    keywordSamples(book, links, problems);
    if (book.settings.size() != kSwitches)
        problems.error({QStringLiteral("nastav.txt"), 0}, QStringLiteral("program má pět přepínačů"));
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
