#include "pastedtext.h"

#include <QRegularExpression>

#include "ingredientline.h"

namespace sarne::disc {
namespace {

enum class Part { head, ingredients, steps, note };

/// Longer lines are sentences, not ingredients.
constexpr qsizetype kLongestIngredient = 60;
/// A line that was not broken where the paper ended.
constexpr qsizetype kWrapped = 100;

/// The part that a heading begins; empty for no heading.
std::optional<Part> headingOf(const QString& line) {
    static const QRegularExpression ingredients(
        QStringLiteral(
            "^#*\\s*(suroviny|ingredience|přísady|potřebujeme|co potřebujeme|budeme potřebovat)\\b"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression steps(
        QStringLiteral("^#*\\s*(postup|pracovní postup|příprava|návod|jak na to|provedení)\\s*:?\\s*$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression note(
        QStringLiteral("^#*\\s*(poznámka|poznámky|tip|tipy|rada)\\s*:?\\s*$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    if (line.size() < kLongestIngredient && ingredients.match(line).hasMatch()) return Part::ingredients;
    if (steps.match(line).hasMatch()) return Part::steps;
    if (note.match(line).hasMatch()) return Part::note;
    return std::nullopt;
}

bool looksLikeIngredient(const QString& line) {
    static const QRegularExpression begin(QStringLiteral("^([-–•*]\\s*|\\d|[½¼¾⅓⅔])"));
    static const QRegularExpression step(QStringLiteral("^\\d+[.)]\\s"));
    return line.size() < kLongestIngredient && begin.match(line).hasMatch() && !step.match(line).hasMatch() &&
           !line.endsWith(u'.');
}

/// Takes over what a line says of portions and time; false when it says nothing of it.
bool readFact(const QString& line, SharedRecipe& recipe) {
    static const QRegularExpression portions(
        QStringLiteral("(\\d+)\\s*(?:porc|osob|lid)|(?:porc\\w*|osob\\w*)\\s*:?\\s*(\\d+)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression minutes(
        QStringLiteral(
            "^(?:doba|čas|příprava|celkem)[^\\d]{0,30}(?:(\\d+)\\s*h\\w*)?\\s*(?:(\\d+)\\s*min\\w*)?\\.?$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    if (line.size() > kLongestIngredient) return false;
    if (const auto match = portions.match(line); match.hasMatch()) {
        recipe.portions = match.captured(match.captured(1).isEmpty() ? 2 : 1).toInt();
        return true;
    }
    const auto match = minutes.match(line);
    const int sum = match.captured(1).toInt() * 60 + match.captured(2).toInt();
    if (sum > 0) recipe.minutes = sum;
    return sum > 0;
}

}  // namespace

SharedRecipe fromPastedText(const QString& text, const QStringList& units) {
    static const QRegularExpression bullet(QStringLiteral("^[-–•*]\\s*"));
    static const QRegularExpression number(QStringLiteral("^\\d+[.)]\\s+"));
    SharedRecipe recipe;
    Part part = Part::head;
    bool hasHeading = false;
    bool isNewStep = true;
    qsizetype lastLine = 0;
    for (const QString& raw : text.split(u'\n')) {
        QString line = raw.simplified();
        if (line.isEmpty()) {
            isNewStep = true;
        } else if (recipe.name.isEmpty()) {
            recipe.name = line.remove(QRegularExpression(QStringLiteral("^#+\\s*")));
        } else if (const auto begun = headingOf(line)) {
            part = *begun;
            hasHeading = isNewStep = true;
            readFact(line, recipe);
        } else if (part != Part::steps && readFact(line, recipe)) {
            continue;
        } else if (part == Part::ingredients || (!hasHeading && looksLikeIngredient(line))) {
            recipe.ingredients << readIngredientText(line.remove(bullet), units);
        } else if (part == Part::note) {
            if (recipe.texts.isEmpty()) recipe.texts << SharedText{QStringLiteral("Poznámka"), {}};
            recipe.texts.last().text = (recipe.texts.last().text + u' ' + line).trimmed();
        } else {
            const bool isNumbered = number.match(line).hasMatch();
            line.remove(number);
            // A line that follows a whole sentence is a step of its own; a wrapped one goes on.
            const bool isWhole = !recipe.steps.isEmpty() && recipe.steps.last().endsWith(u'.') &&
                                 line.front().isUpper() && lastLine < kWrapped;
            lastLine = line.size();
            if (isNumbered || isNewStep || isWhole || recipe.steps.isEmpty())
                recipe.steps << line;
            else
                recipe.steps.last() += u' ' + line;
            isNewStep = false;
        }
    }
    return recipe;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
