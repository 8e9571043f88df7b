#include "checktags.h"

#include <algorithm>

#include "nearword.h"

namespace sarne::disc {
namespace {

bool isTagList(const QString& target) {
    static const QStringList others{QStringLiteral("přímo "), QStringLiteral("video "),
                                    QStringLiteral("heslo ")};
    return target != QStringLiteral("nikam") &&
           std::none_of(others.cbegin(), others.cend(),
                        [&](const QString& word) { return target.startsWith(word); });
}

/// The tags that the menu asks for, with the place of one item that does.
void collectTags(const QList<MenuNode>& nodes, QHash<QString, Place>& tags) {
    for (const MenuNode& node : nodes) {
        if (isTagList(node.target))
            for (const QString& choice : trimmedParts(node.target, u','))
                for (const QString& tag : trimmedParts(choice, u'+')) tags.insert(tag, node.place);
        collectTags(node.children, tags);
    }
}

}  // namespace

void checkTags(const Cookbook& book, Problems& problems) {
    QHash<QString, Place> asked;
    for (const MenuTopic& topic : book.menuTopics) collectTags(topic.items, asked);
    QSet<QString> given;
    for (const Recipe& recipe : book.recipes) given.unite(recipe.tags);
    const QStringList askedNames = asked.keys();
    const QStringList givenNames(given.cbegin(), given.cend());
    for (const Recipe& recipe : book.recipes)
        for (auto tag = recipe.tagKeys.cbegin(); tag != recipe.tagKeys.cend(); ++tag)
            if (!asked.contains(tag.key()))
                problems.finding(recipe.placeOf(*tag),
                                 QStringLiteral("menu.txt nezná štítek „%1“").arg(tag.key()) +
                                     didYouMean(tag.key(), askedNames));
    // A recipe that could not be read may have the tag.
    if (problems.hasMistakes()) return;
    for (auto tag = asked.cbegin(); tag != asked.cend(); ++tag)
        if (!given.contains(tag.key()))
            problems.finding(*tag, QStringLiteral("štítek „%1“ nemá žádný recept").arg(tag.key()) +
                                       didYouMean(tag.key(), givenNames));
}

void checkSearch(const Cookbook& book, Problems& problems) {
    QStringList names;
    QStringList nouns;
    for (const Ingredient& ingredient : book.ingredients) {
        names << ingredient.name;
        nouns << ingredient.name.section(u' ', 0, 0);
    }
    for (const SearchWord& typed : book.searchWords)
        if (std::none_of(names.cbegin(), names.cend(), [&](const QString& name) {
                return name.startsWith(typed.word, Qt::CaseInsensitive);
            }))
            problems.finding(typed.place, QStringLiteral("„%1“ nenajde žádnou surovinu").arg(typed.word) +
                                              didYouMean(typed.word, nouns));
    if (book.searchWords.size() < book.facts.searchWords)
        problems.finding({QStringLiteral("hledani.txt"), 0},
                         QStringLiteral("slov je %1, má jich být aspoň %2")
                             .arg(book.searchWords.size())
                             .arg(book.facts.searchWords));
    QSet<int> own;
    QSet<int> alternatives;
    for (const Recipe& recipe : book.recipes)
        for (const IngredientLine& line : recipe.ingredients) {
            own << line.ingredient;
            alternatives << line.alternative;
        }
    for (const Ingredient& ingredient : book.ingredients)
        if (alternatives.contains(ingredient.id) && !own.contains(ingredient.id))
            problems.finding(ingredient.place,
                             QStringLiteral("„%1“ stojí jen jako náhrada, hledání nenajde žádný recept")
                                 .arg(ingredient.name));
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
