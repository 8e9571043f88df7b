#include "keywordsamples.h"

#include <QRegularExpression>

#include "nearword.h"
#include "stems.h"

namespace sarne::disc {
namespace {

/// The keywords, by number, that link phrases of \a text lead to.
QSet<int> linkedKeywords(const Lines& text, const LinkBook& links) {
    static const QRegularExpression phrase(QStringLiteral("\\[(?:[^\\]]*? -> )?([^\\]]*)\\]"));
    QString all;  // a phrase may run over the end of a line
    for (const Line& line : text) all += line.text + u' ';
    QSet<int> found;
    for (auto each = phrase.globalMatch(all); each.hasNext();) {
        const auto target = links.find(each.next().captured(1));
        if (target && target->kind == LinkKind::keyword) found << target->number;
    }
    return found;
}

/// The keyword that explains what a list calls \a name: by all of it, or by its first word.
int keywordOf(const QString& name, const LinkBook& links) {
    for (const QString& words : {name, name.section(u' ', 0, 0)})
        if (const auto target = links.find(words); target && target->kind == LinkKind::keyword)
            return target->number;
    return 0;
}

/// The keywords of which a recipe's title says a name.
QSet<int> keywordsInTitle(const Cookbook& book, const Recipe& recipe) {
    const QString title = wordsOf(recipe.name + u' ' + recipe.longName);
    QSet<int> found;
    for (const Article& keyword : book.keywords)
        for (const QString& name : keyword.otherNames + QStringList{keyword.name})
            if (title.contains(wordsOf(name))) found << keyword.id;
    return found;
}

QSet<int> keywordsOf(const Cookbook& book, const Recipe& recipe, const LinkBook& links) {
    QSet<int> found = keywordsInTitle(book, recipe);
    for (const Lines* text :
         {&recipe.method, &recipe.introduction, &recipe.serving, &recipe.note, &recipe.wineText})
        found.unite(linkedKeywords(*text, links));
    for (const IngredientLine& line : recipe.ingredients) {
        const Ingredient* ingredient = book.ingredient(line.ingredient);
        if (ingredient) found << keywordOf(ingredient->name, links);
        if (line.refinement > 0) found << keywordOf(book.refinements.names[line.refinement - 1], links);
    }
    for (auto tag = recipe.tagKeys.cbegin(); tag != recipe.tagKeys.cend(); ++tag)
        if (*tag == QStringLiteral("úprava")) found << keywordOf(tag.key(), links);
    for (const QString& name : recipe.auxiliary) found << kAuxiliaryKeywords + book.auxiliaryId(name);
    found.remove(0);
    return found;
}

int filmOf(const Article& article) {
    static const QRegularExpression film(QStringLiteral("-> video\\s+(\\d+)\\]"));
    QString all;
    for (const Line& line : article.text) all += line.text + u' ';
    return film.match(all).captured(1).toInt();
}

QString dishFile(int recipe) {
    return QStringLiteral("foto\\Velke\\r%1.bmp").arg(recipe);
}

/// Puts the pictures of obrazky.txt to their keywords.
void addPictures(const Cookbook& book, const LinkBook& links, QMap<int, KeywordSample>& samples,
                 Problems& problems) {
    for (const KeywordPicture& picture : book.keywordPictures) {
        const auto target = links.find(picture.keyword);
        if (!target || target->kind != LinkKind::keyword) {
            problems.error(picture.place, QStringLiteral("heslo „%1“ neexistuje").arg(picture.keyword) +
                                              didYouMean(picture.keyword, links.names()));
            continue;
        }
        KeywordSample& sample = samples[target->number];
        if (!sample.picture.isEmpty())
            problems.error(picture.place, QStringLiteral("heslo „%1“ tu stojí podruhé").arg(picture.keyword));
        if (picture.recipe > 0 && !sample.recipes.contains(picture.recipe))
            problems.error(picture.place, QStringLiteral("recept %1 s heslem „%2“ nemá nic společného")
                                              .arg(picture.recipe)
                                              .arg(picture.keyword));
        sample.picture = picture.recipe > 0 ? dishFile(picture.recipe)
                                            : QStringLiteral("foto\\hesla\\%1.webp").arg(picture.thing);
        sample.caption = picture.recipe > 0 ? book.recipes[picture.recipe].name : picture.caption;
    }
}

}  // namespace

void readKeywordPictures(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    static const QRegularExpression dish(QStringLiteral("^jídlo (\\d+)$"));
    for (const Line& line : folder.readIfThere(QStringLiteral("obrazky.txt"))) {
        if (line.isBlank()) continue;
        const KeyValue entry = keyValue(line);
        KeywordPicture picture{line.place, entry.key, entry.value.section(u'|', 0, 0).trimmed(),
                               entry.value.section(u'|', 1).trimmed(), 0};
        if (const auto match = dish.match(picture.thing); match.hasMatch()) {
            picture.recipe = match.captured(1).toInt();
            if (!book.recipes.contains(picture.recipe)) {
                problems.error(line.place, QStringLiteral("recept %1 neexistuje").arg(picture.recipe));
                continue;
            }
        }
        book.keywordPictures << picture;
    }
}

QList<KeywordSample> keywordSamples(const Cookbook& book, const LinkBook& links, Problems& problems) {
    QMap<int, KeywordSample> samples;
    for (const Article& keyword : book.keywords) samples[keyword.id].film = filmOf(keyword);
    for (const Article& article : book.auxiliary)
        samples[kAuxiliaryKeywords + article.id].film = filmOf(article);
    for (const Recipe& recipe : book.recipes)
        for (const int keyword : keywordsOf(book, recipe, links)) samples[keyword].recipes << recipe.id;
    addPictures(book, links, samples, problems);
    QList<KeywordSample> all;
    for (auto sample = samples.begin(); sample != samples.end(); ++sample) {
        sample->keyword = sample.key();
        if (!sample->picture.isEmpty() || sample->film > 0 || !sample->recipes.isEmpty()) all << *sample;
    }
    return all;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
