#include "recipehead.h"

#include <functional>

#include "nearword.h"

namespace sarne::disc {
namespace {

constexpr int kMostPortions = 255, kMostMinutes = 100'000;

/// A key of the head.
struct Field {
    /// Takes a value over; false when it is none that the key may have.
    std::function<bool(Recipe&, const QString&)> read;
    /// What the key may have, for the writer.
    QString right;
};

Field text(QString Recipe::*member) {
    return {[member](Recipe& recipe, const QString& value) {
                recipe.*member = value;
                return !value.isEmpty();
            },
            QStringLiteral("text")};
}

Field names(QStringList Recipe::*member) {
    return {[member](Recipe& recipe, const QString& value) {
                recipe.*member = trimmedParts(value, u',');
                return !(recipe.*member).isEmpty();
            },
            QStringLiteral("jména oddělená čárkami")};
}

Field number(int Recipe::*member, int least, int most) {
    return {[=](Recipe& recipe, const QString& value) {
                bool isNumber = false;
                recipe.*member = value.toInt(&isNumber);
                return isNumber && recipe.*member >= least && recipe.*member <= most;
            },
            QStringLiteral("číslo od %1 do %2").arg(least).arg(most)};
}

/// One of \a words, which further words may follow behind a comma.
Field choice(QString Recipe::*member, const QStringList& words) {
    return {[member, words](Recipe& recipe, const QString& value) {
                recipe.*member = value;
                return words.contains(value.section(u',', 0, 0).trimmed());
            },
            words.join(QStringLiteral(", "))};
}

/// "30 60": a point of the photo, in hundredths of its width and height.
bool readFocus(Recipe& recipe, const QString& value) {
    QString plain = value;
    const QStringList parts = plain.remove(u'%').simplified().split(u' ');
    bool isAcross = false, isDown = false;
    recipe.photoFocus = QPointF(parts.value(0).toInt(&isAcross), parts.value(1).toInt(&isDown)) / 100;
    return parts.size() == 2 && isAcross && isDown && QRectF(0, 0, 1, 1).contains(recipe.photoFocus);
}

/// Tags, which the menu picks by.
void readTags(const KeyValue& entry, Recipe& recipe) {
    for (const QString& tag : trimmedParts(entry.value, u',')) {
        recipe.tags.insert(tag);
        recipe.tagKeys.insert(tag, entry.key);
    }
}

const QHash<QString, Field>& fields() {
    static const QHash<QString, Field> all{
        {QStringLiteral("název"), text(&Recipe::name)},
        {QStringLiteral("dlouhý název"), text(&Recipe::longName)},
        {QStringLiteral("porce"), number(&Recipe::portions, 1, kMostPortions)},
        {QStringLiteral("příprava"), number(&Recipe::preparation, 0, kMostMinutes)},
        {QStringLiteral("vaření"), number(&Recipe::cooking, 0, kMostMinutes)},
        {QStringLiteral("minut"), number(&Recipe::minutes, 1, kMostMinutes)},
        {QStringLiteral("předem"), text(&Recipe::ahead)},
        {QStringLiteral("obtížnost"),
         choice(&Recipe::difficulty,
                {QStringLiteral("snadné"), QStringLiteral("střední"), QStringLiteral("náročné")})},
        {QStringLiteral("kosti"),
         choice(&Recipe::bones, {QStringLiteral("ano"), QStringLiteral("málo"), QStringLiteral("ne")})},
        {QStringLiteral("mrazit"), choice(&Recipe::freezing, {QStringLiteral("ano"), QStringLiteral("ne")})},
        {QStringLiteral("vydrží"), text(&Recipe::keeping)},
        {QStringLiteral("sezona"), text(&Recipe::season)},
        {QStringLiteral("chod"), names(&Recipe::courses)},
        {QStringLiteral("výřez"), {readFocus, QStringLiteral("dvě čísla od 0 do 100, třeba 30 60")}},
        {QStringLiteral("pomůcky"), names(&Recipe::tools)},
        {QStringLiteral("vína"), names(&Recipe::wines)},
        {QStringLiteral("odkazy"), names(&Recipe::auxiliary)}};
    return all;
}

void readEntry(const KeyValue& entry, const QStringList& tagKeys, Recipe& recipe, Problems& problems) {
    const auto field = fields().constFind(entry.key);
    const bool isTag = tagKeys.contains(entry.key);
    if (field == fields().cend() && !isTag) {
        problems.error(entry.place, QStringLiteral("neznámý klíč „%1“").arg(entry.key) +
                                        didYouMean(entry.key, fields().keys() + tagKeys));
    } else if (recipe.headPlaces.contains(entry.key)) {
        problems.error(entry.place, QStringLiteral("klíč „%1“ tu stojí podruhé").arg(entry.key));
    } else {
        recipe.headPlaces.insert(entry.key, entry.place);
        if (isTag)
            readTags(entry, recipe);
        else if (!field->read(recipe, entry.value))
            problems.error(entry.place, QStringLiteral("„%1“ nemůže být „%2“, patří sem %3")
                                            .arg(entry.key, entry.value, field->right));
    }
}

}  // namespace

void readRecipeHead(const Lines& lines, const BookFacts& facts, Recipe& recipe, Problems& problems) {
    for (const Line& line : lines)
        if (!line.isBlank()) readEntry(keyValue(line), facts.tagKeys, recipe, problems);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
