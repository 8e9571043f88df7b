#include "readfoods.h"

#include <QRegularExpression>

#include "readtables.h"

namespace sarne::disc {
namespace {

constexpr int kAllergens = 14;

bool readAllergens(const QString& list, Food& food) {
    for (const QString& part : trimmedParts(list, u',')) {
        food.allergens << part.toInt();
        if (food.allergens.last() < 1 || food.allergens.last() > kAllergens) return false;
    }
    return !food.allergens.isEmpty();
}

/// One part of a line; false when it is none.
bool readPart(const QString& part, Food& food) {
    static const QRegularExpression energy(QStringLiteral("^([\\d,]+) kcal$"));
    static const QRegularExpression protein(QStringLiteral("^([\\d,]+) g bílkovin$"));
    if (const auto match = energy.match(part); match.hasMatch())
        return (food.energy = czechNumber(match.captured(1))) >= 0;
    if (const auto match = protein.match(part); match.hasMatch())
        return (food.protein = czechNumber(match.captured(1))) >= 0;
    const QString allergens = QStringLiteral("alergeny ");
    return part.startsWith(allergens) && readAllergens(part.mid(allergens.size()), food);
}

bool isIngredient(const QString& key, const Cookbook& book) {
    const QString refinement = key.section(u',', 1).trimmed();
    return book.ingredientId(key.section(u',', 0, 0).trimmed()) > 0 &&
           (refinement.isEmpty() || book.refinements.id(refinement) > 0);
}

}  // namespace

void readFoods(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    for (const Line& line : folder.readIfThere(QStringLiteral("potraviny.txt"))) {
        if (line.isBlank()) continue;
        const KeyValue entry = keyValue(line);
        Food food{line.place, 0, 0, {}};
        for (const QString& part : trimmedParts(entry.value, u';'))
            if (!readPart(part, food))
                problems.error(line.place, QStringLiteral("nečitelný údaj o potravině: „%1“").arg(part));
        if (!isIngredient(entry.key, book))
            problems.finding(line.place, QStringLiteral("neznámá surovina „%1“").arg(entry.key));
        if (book.foods.contains(entry.key))
            problems.error(line.place, QStringLiteral("„%1“ tu stojí podruhé").arg(entry.key));
        book.foods.insert(entry.key, food);
    }
}

void readSearchWords(const ContentFolder& folder, Cookbook& book) {
    for (const Line& line : folder.readIfThere(QStringLiteral("hledani.txt")))
        if (!line.isBlank()) book.searchWords << SearchWord{line.place, line.text.trimmed()};
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
