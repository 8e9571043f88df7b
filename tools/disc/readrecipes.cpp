#include "readrecipes.h"

#include <QRegularExpression>

#include "courses.h"
#include "nearword.h"
#include "readtables.h"
#include "recipehead.h"
#include "steps.h"

namespace sarne::disc {
namespace {

const QString kIngredients = QStringLiteral("Suroviny");

/// What the recipe table's key holds.
constexpr int kHighestRecipe = 9999;

struct Amount {
    double number = 0;
    int unit = 0;
};

Amount amount(const QString& text, const Line& line, const Cookbook& book, Problems& problems) {
    static const QRegularExpression pattern(QStringLiteral("^([\\d,]*)\\s*(\\S.*)?$"));
    const auto match = pattern.match(text.trimmed());
    Amount found{qMax(0.0, czechNumber(match.captured(1))),
                 book.unitForms.value(match.captured(2).trimmed())};
    static const QRegularExpression range(QStringLiteral("^\\d+(,\\d+)?\\s*[-–]\\s*\\d"));
    static const QRegularExpression point(QStringLiteral("^\\d+\\.\\d"));
    if (range.match(text.trimmed()).hasMatch())
        problems.error(line.place,
                       QStringLiteral("místo rozsahu napište jedno číslo: „%1“").arg(text.trimmed()));
    else if (point.match(text.trimmed()).hasMatch())
        problems.error(line.place,
                       QStringLiteral("desetinné číslo se píše s čárkou: „%1“").arg(text.trimmed()));
    else if (match.captured(2).trimmed().isEmpty())
        problems.error(line.place, QStringLiteral("chybí jednotka: „%1“").arg(text.trimmed()));
    else if (found.unit == 0)
        problems.error(line.place, QStringLiteral("neznámá jednotka „%1“").arg(match.captured(2).trimmed()) +
                                       didYouMean(match.captured(2).trimmed(), book.unitForms.keys()));
    else if (found.number <= 0 && book.unit(found.unit)->kind != UnitKind::free)
        problems.error(line.place, QStringLiteral("chybí číslo: „%1“").arg(text.trimmed()));
    return found;
}

int ingredientId(const QString& name, const Line& line, const Cookbook& book, Problems& problems) {
    const int id = book.ingredientId(name);
    if (id > 0) return id;
    QStringList known;
    for (const Ingredient& one : book.ingredients) known << one.name;
    const QString near = didYouMean(name, known);
    problems.error(line.place, QStringLiteral("neznámá surovina „%1“").arg(name) +
                                   (near.isEmpty() ? QStringLiteral("; nová patří do suroviny.txt") : near));
    return id;
}

void readAmounts(const QString& text, const Line& line, const Cookbook& book, Problems& problems,
                 IngredientLine& read) {
    const QStringList both = text.split(u'=');
    const Amount first = amount(both.first(), line, book, problems);
    const Amount second = both.size() > 1 ? amount(both[1], line, book, problems) : first;
    read.amount = first.number;
    read.unit = first.unit;
    read.spoonAmount = second.number;
    read.spoonUnit = second.unit;
    const Unit* unit = book.unit(first.unit);
    if (both.size() == 1 && unit && book.facts.needs("lžíce") &&
        (unit->kind == UnitKind::weight || unit->kind == UnitKind::volume))
        problems.finding(line.place, QStringLiteral("chybí množství na lžíce"));
}

void readSection(const Section& section, const Cookbook& book, Recipe& recipe, Problems& problems) {
    static const QHash<QString, Lines Recipe::*> texts{{QStringLiteral("Postup"), &Recipe::method},
                                                       {QStringLiteral("Úvod"), &Recipe::introduction},
                                                       {QStringLiteral("Jak podávat"), &Recipe::serving},
                                                       {QStringLiteral("Poznámka"), &Recipe::note},
                                                       {QStringLiteral("Víno"), &Recipe::wineText}};
    if (recipe.sectionPlaces.contains(section.title))
        problems.error(section.place, QStringLiteral("část „%1“ tu stojí podruhé").arg(section.title));
    recipe.sectionPlaces.insert(section.title, section.place);
    if (section.title == kIngredients) {
        for (const Line& line : section.lines)
            if (!line.isBlank()) recipe.ingredients << readIngredientLine(line, book, problems);
    } else if (texts.contains(section.title)) {
        Lines& text = recipe.*texts.value(section.title) = section.lines;
        if (&text == &recipe.method) recipe.shareMarks << takeShareMarks(text, StepText::method, problems);
        if (&text == &recipe.serving) recipe.shareMarks << takeShareMarks(text, StepText::serving, problems);
    } else {
        problems.error(section.place,
                       QStringLiteral("neznámá část „%1“").arg(section.title) +
                           didYouMean(section.title, texts.keys() + QStringList{kIngredients}));
    }
}

void addDerivedTags(const Cookbook& book, Recipe& recipe) {
    for (const QString& tag : recipe.courses + recipe.auxiliary) recipe.tags.insert(tag);
    for (const QString& wine : recipe.wines)
        if (const int id = book.wineId(wine)) recipe.tags.insert(book.wines[id - 1].kind);
    if (recipe.minutes > 0 && recipe.minutes <= 30) recipe.tags.insert(QStringLiteral("do 30 minut"));
}

}  // namespace

IngredientLine readIngredientLine(const Line& line, const Cookbook& book, Problems& problems) {
    IngredientLine read;
    read.place = line.place;
    const KeyValue parts = keyValue(line);
    const QString name = line.text.section(u':', 0, 0).trimmed();
    if (parts.key.isEmpty()) {
        problems.error(line.place, QStringLiteral("surovina bez množství"));
        return read;
    }
    read.ingredient = ingredientId(name.section(u',', 0, 0).trimmed(), line, book, problems);
    const QString refinement = name.section(u',', 1).trimmed();
    read.refinement = book.refinements.id(refinement);
    if (!refinement.isEmpty() && read.refinement == 0)
        problems.error(line.place, QStringLiteral("neznámé upřesnění „%1“").arg(refinement) +
                                       didYouMean(refinement, book.refinements.names));
    read.isUnclear = read.ingredient == 0 || (!refinement.isEmpty() && read.refinement == 0);
    const QStringList halves = parts.value.split(QStringLiteral(", nebo "));
    readAmounts(halves.first(), line, book, problems, read);
    if (halves.size() > 1) read.alternative = ingredientId(halves[1].trimmed(), line, book, problems);
    return read;
}

void readRecipes(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    for (const QString& file : folder.files(QStringLiteral("recepty"))) {
        Recipe recipe;
        recipe.place = {file, 1};
        recipe.id = file.section(u'/', -1).section(u'-', 0, 0).toInt();
        const QList<Section> parts = sections(folder.read(file));
        readRecipeHead(parts.first().lines, book.facts, recipe, problems);
        if (recipe.courses.isEmpty()) recipe.courses = gridCourses(book.facts, recipe.id);
        for (const Section& section : parts.mid(1)) readSection(section, book, recipe, problems);
        addDerivedTags(book, recipe);
        if (recipe.id < 1 || recipe.id > kHighestRecipe || book.recipes.contains(recipe.id))
            problems.error(
                recipe.place,
                QStringLiteral("soubor začíná číslem od 1 do %1, každým jednou").arg(kHighestRecipe));
        book.recipes.insert(recipe.id, recipe);
    }
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
