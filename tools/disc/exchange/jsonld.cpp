#include "jsonld.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTextDocumentFragment>

#include "ingredientline.h"

namespace sarne::disc {
namespace {

const QString kMarkup = QStringLiteral("sarne:text");
const QString kHead = QStringLiteral("sarne:head");
const QString kSections = QStringLiteral("sarne:sections");

QJsonValue duration(int minutes) {
    return minutes > 0 ? QJsonValue(QStringLiteral("PT%1M").arg(minutes)) : QJsonValue(QJsonValue::Undefined);
}

int minutesOf(const QJsonValue& value) {
    static const QRegularExpression pattern(QStringLiteral("^P(?:(\\d+)D)?(?:T(?:(\\d+)H)?(?:(\\d+)M)?)?"));
    const auto match = pattern.match(value.toString());
    return match.captured(1).toInt() * 24 * 60 + match.captured(2).toInt() * 60 + match.captured(3).toInt();
}

QJsonObject stepObject(const QString& text) {
    QJsonObject step{{QStringLiteral("@type"), QStringLiteral("HowToStep")},
                     {QStringLiteral("text"), readableText(text)}};
    if (readableText(text) != text) step.insert(kMarkup, text);
    return step;
}

/// Text of a page: without tags and entities.
QString plain(const QString& text) {
    return text.contains(u'<') || text.contains(u'&')
               ? QTextDocumentFragment::fromHtml(text).toPlainText().simplified()
               : text.simplified();
}

/// A value that may be a text, a number or the first of several.
QString textOf(const QJsonValue& value) {
    if (value.isArray()) return textOf(value.toArray().first());
    if (value.isDouble()) return QString::number(value.toDouble());
    if (value.isObject()) return textOf(value.toObject().value(QStringLiteral("text")));
    return plain(value.toString());
}

bool isRecipe(const QJsonObject& object) {
    const QJsonValue type = object.value(QStringLiteral("@type"));
    return type.toString() == u"Recipe" || type.toArray().contains(QStringLiteral("Recipe"));
}

QJsonObject findRecipe(const QJsonValue& value) {
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        if (isRecipe(object)) return object;
        for (const char* key : {"@graph", "mainEntity", "mainEntityOfPage"})
            if (const QJsonObject found = findRecipe(object.value(QLatin1String(key))); !found.isEmpty())
                return found;
    }
    for (const QJsonValue& one : value.toArray())
        if (const QJsonObject found = findRecipe(one); !found.isEmpty()) return found;
    return {};
}

QJsonObject recipeOn(const QString& page) {
    static const QRegularExpression script(
        QStringLiteral("<script[^>]*application/ld\\+json[^>]*>(.*?)</script>"),
        QRegularExpression::DotMatchesEverythingOption | QRegularExpression::CaseInsensitiveOption);
    QStringList texts{page};
    for (auto all = script.globalMatch(page); all.hasNext();) texts << all.next().captured(1);
    for (const QString& text : texts) {
        const QJsonDocument document = QJsonDocument::fromJson(text.trimmed().toUtf8());
        const QJsonValue value =
            document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
        if (const QJsonObject found = findRecipe(value); !found.isEmpty()) return found;
    }
    return {};
}

/// Steps as one text, as texts, as steps, or as sections of steps.
void addSteps(const QJsonValue& value, QStringList& steps) {
    static const QRegularExpression number(QStringLiteral("^\\d+[.)]\\s+"));
    if (value.isArray()) {
        for (const QJsonValue& one : value.toArray()) addSteps(one, steps);
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        const QJsonValue inner = object.value(QStringLiteral("itemListElement"));
        if (inner.isArray()) return addSteps(inner, steps);
        const QString own = object.value(kMarkup).toString();
        const QString text = textOf(object.value(QStringLiteral("text")));
        steps << (own.isEmpty() ? text : own);
    } else {
        static const QRegularExpression ends(QStringLiteral("\\s*(?:\\r?\\n|</p>|<br\\s*/?>|</li>)\\s*"));
        for (const QString& part : value.toString().split(ends))
            if (QString text = plain(part); !text.isEmpty()) steps << text.remove(number);
    }
}

int firstNumber(const QString& text) {
    static const QRegularExpression number(QStringLiteral("\\d+"));
    return number.match(text).captured().toInt();
}

}  // namespace

QByteArray toJsonLd(const SharedRecipe& recipe) {
    QJsonArray ingredients, steps, texts;
    for (const SharedIngredient& one : recipe.ingredients) ingredients << one.line();
    for (const QString& step : recipe.steps) steps << stepObject(step);
    QString description;
    for (const SharedText& one : recipe.texts) {
        texts << QJsonObject{{QStringLiteral("title"), one.title}, {QStringLiteral("text"), one.text}};
        if (one.title == u"Úvod") description = readableText(one.text);
    }
    const QJsonObject object{{QStringLiteral("@context"), QStringLiteral("https://schema.org")},
                             {QStringLiteral("@type"), QStringLiteral("Recipe")},
                             {QStringLiteral("inLanguage"), QStringLiteral("cs")},
                             {QStringLiteral("name"), recipe.name},
                             {QStringLiteral("alternateName"), recipe.longName},
                             {QStringLiteral("description"), description},
                             {QStringLiteral("recipeYield"), recipe.portions},
                             {QStringLiteral("prepTime"), duration(recipe.preparation)},
                             {QStringLiteral("cookTime"), duration(recipe.cooking)},
                             {QStringLiteral("totalTime"), duration(recipe.minutes)},
                             {QStringLiteral("recipeIngredient"), ingredients},
                             {QStringLiteral("recipeInstructions"), steps},
                             {kHead, QJsonArray::fromStringList(recipe.head)},
                             {kSections, texts}};
    return QJsonDocument(object).toJson();
}

std::optional<SharedRecipe> fromJsonLd(const QString& page, const QStringList& units) {
    const QJsonObject object = recipeOn(page);
    if (object.isEmpty()) return std::nullopt;
    const auto text = [&](const char* key) { return textOf(object.value(QLatin1String(key))); };
    SharedRecipe recipe;
    recipe.name = text("name");
    recipe.longName = text("alternateName");
    recipe.portions = firstNumber(text("recipeYield"));
    recipe.preparation = minutesOf(object.value(QStringLiteral("prepTime")));
    recipe.cooking = minutesOf(object.value(QStringLiteral("cookTime")));
    recipe.minutes = minutesOf(object.value(QStringLiteral("totalTime")));
    recipe.source = text("url");
    for (const QJsonValue& one : object.value(QStringLiteral("recipeIngredient")).toArray())
        recipe.ingredients << readIngredientText(textOf(one), units);
    addSteps(object.value(QStringLiteral("recipeInstructions")), recipe.steps);
    for (const QJsonValue& line : object.value(kHead).toArray()) recipe.head << line.toString();
    for (const QJsonValue& one : object.value(kSections).toArray())
        recipe.texts << SharedText{one[QStringLiteral("title")].toString(),
                                   one[QStringLiteral("text")].toString()};
    if (recipe.texts.isEmpty() && !text("description").isEmpty())
        recipe.texts << SharedText{QStringLiteral("Úvod"), text("description")};
    return recipe;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
