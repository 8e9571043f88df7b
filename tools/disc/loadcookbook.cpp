#include "loadcookbook.h"

#include "checks.h"
#include "keywordsamples.h"
#include "markup.h"
#include "menu.h"
#include "readgoods.h"
#include "readrecipes.h"
#include "readtables.h"
#include "spelling.h"
#include "steps.h"
#include "typography.h"

namespace sarne::disc {
namespace {

/// Hands every text with its place to the two checks.
class Proofreader {
  public:
    Proofreader(const QStringList& known, Problems& problems) : spelling_(known), problems_(problems) {}

    void text(const QString& text, const Place& place) {
        const QString plain = plainText(text);
        checkTypography(plain.trimmed(), place, problems_);
        spelling_.add(plain, place);
    }

    void lines(const Lines& lines) {
        for (const Line& line : lines) text(line.text, line.place);
    }

    void finish() { spelling_.report(problems_); }

  private:
    SpellCheck spelling_;
    Problems& problems_;
};

void readRecipeTexts(const Cookbook& book, Proofreader& reader) {
    for (const Recipe& recipe : book.recipes) {
        reader.text(recipe.name, recipe.placeOf(QStringLiteral("název")));
        reader.text(recipe.longName, recipe.placeOf(QStringLiteral("dlouhý název")));
        reader.text(recipe.ahead, recipe.placeOf(QStringLiteral("předem")));
        reader.text(recipe.freezing, recipe.placeOf(QStringLiteral("mrazit")));
        reader.text(recipe.keeping, recipe.placeOf(QStringLiteral("vydrží")));
        reader.text(recipe.season, recipe.placeOf(QStringLiteral("sezona")));
        for (const Lines* text :
             {&recipe.method, &recipe.introduction, &recipe.serving, &recipe.note, &recipe.wineText})
            reader.lines(*text);
    }
}

void readNames(const Cookbook& book, Proofreader& reader) {
    for (const Ingredient& ingredient : book.ingredients) reader.text(ingredient.name, ingredient.place);
    for (qsizetype i = 0; i < book.refinements.names.size(); ++i)
        reader.text(book.refinements.names[i], book.refinements.places[i]);
    for (qsizetype i = 0; i < book.tools.names.size(); ++i)
        reader.text(book.tools.names[i], book.tools.places[i]);
    for (const Wine& wine : book.wines) reader.text(wine.name, wine.place);
    for (const QuickRecipe& quick : book.quick) reader.text(quick.name, quick.place);
    for (const HelpTopic& topic : book.help) reader.text(topic.name, topic.place);
    for (const Setting& setting : book.settings)
        reader.text(setting.name, {QStringLiteral("nastav.txt"), setting.id});
    for (const Video& video : book.videos)
        reader.text(video.title, {QStringLiteral("videa.txt"), video.number});
}

void readMenuTexts(const QList<MenuNode>& nodes, Proofreader& reader) {
    for (const MenuNode& node : nodes) {
        reader.text(node.label, node.place);
        readMenuTexts(node.children, reader);
    }
}

void readLookupTables(const Cookbook& book, Proofreader& reader) {
    for (const LookupTable& table : book.tables) {
        reader.text(table.name, table.place);
        reader.text(table.note, table.place);
        for (const QStringList& row : QList<QStringList>{table.columns} + table.rows)
            for (const QString& cell : row) reader.text(cell, table.place);
    }
}

void readGallery(const Cookbook& book, Proofreader& reader) {
    for (const GalleryPicture& picture : book.gallery) {
        reader.text(picture.name, picture.place);
        reader.lines(picture.text);
        for (const GalleryArea& area : picture.areas) {
            reader.text(area.name, area.where);
            reader.lines(area.text);
        }
    }
}

}  // namespace

Cookbook loadCookbook(const ContentFolder& folder, Problems& problems) {
    Cookbook book;
    readTables(folder, book, problems);
    readArticles(folder, book, problems);
    readRecipes(folder, book, problems);
    readKeywordPictures(folder, book, problems);
    readMenu(folder, book, problems);
    readGoods(folder, book, problems);
    const Stems stems = readStems(folder, problems);
    for (Recipe& recipe : book.recipes) recipe.steps = cookingSteps(book, stems, recipe, problems);
    checkCookbook(book, stems, problems);
    return book;
}

void proofread(const ContentFolder& folder, const Cookbook& book, Problems& problems) {
    QStringList known;
    for (const Row& row : tableRows(folder.readIfThere(QStringLiteral("slovnik.txt")))) known << row.at(0);
    Proofreader reader(known, problems);
    readRecipeTexts(book, reader);
    readNames(book, reader);
    for (const Article& article : book.auxiliary + book.keywords) {
        reader.text(article.name, article.place);
        reader.lines(article.text);
    }
    for (const Page& page : book.pages) {
        reader.text(page.name, page.place);
        reader.lines(page.text);
    }
    for (const MenuTopic& topic : book.menuTopics) {
        reader.text(topic.heading, topic.place);
        readMenuTexts(topic.items, reader);
    }
    for (const KeywordPicture& picture : book.keywordPictures) reader.text(picture.caption, picture.place);
    readLookupTables(book, reader);
    readGallery(book, reader);
    reader.finish();
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
