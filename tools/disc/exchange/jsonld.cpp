#include "jsonld.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <utility>

#include "ingredientline.h"

namespace sarne::disc {
namespace {

const QString kMarkup = QStringLiteral("sarne:text");
const QString kHead = QStringLiteral("sarne:head");
const QString kSections = QStringLiteral("sarne:sections");

QJsonValue duration(int minutes) {
    return minutes > 0 ? QJsonValue(QStringLiteral("PT%1M").arg(minutes)) : QJsonValue(QJsonValue::Undefined);
}

/// Of "PT1H30M", "P0DT5400S", and of a number of minutes in words.
int minutesOf(const QJsonValue& value) {
    static const QRegularExpression pattern(
        QStringLiteral("^P(?:(\\d+)D)?(?:T(?:([\\d.]+)H)?(?:([\\d.]+)M)?(?:(\\d+)(?:\\.\\d+)?S)?)?"));
    static const QRegularExpression number(QStringLiteral("^\\s*(\\d+)"));
    const QString text = value.isDouble() ? QString::number(value.toInt()) : value.toString();
    const auto match = pattern.match(text);
    if (!match.hasMatch()) return number.match(text).captured(1).toInt();
    return match.captured(1).toInt() * 24 * 60 + qRound(match.captured(2).toDouble() * 60) +
           qRound(match.captured(3).toDouble()) + match.captured(4).toInt() / 60;
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

/// A value that may be a text, a number, an object with either, or the first of several.
QString textOf(const QJsonValue& value) {
    if (value.isArray()) return textOf(value.toArray().at(0));
    if (value.isDouble()) return QString::number(value.toDouble());
    for (const char* key : {"text", "name", "value"})
        if (const QJsonValue inner = value[QLatin1String(key)]; !inner.isUndefined()) return textOf(inner);
    return plain(value.toString());
}

bool isRecipe(const QJsonObject& object) {
    const QJsonValue type = object.value(QStringLiteral("@type"));
    const QJsonArray types = type.isArray() ? type.toArray() : QJsonArray{type};
    return std::any_of(types.begin(), types.end(), [](const QJsonValue& one) {
        return one.toString().section(u'/', -1).section(u':', -1) == u"Recipe";
    });
}

/// The first recipe within \a value, however deep: in a graph, as what a page is about …
QJsonObject findRecipe(const QJsonValue& value) {
    QJsonObject object = value.toObject();
    if (isRecipe(object)) return object;
    for (const auto& one : std::as_const(object))
        if (QJsonObject found = findRecipe(one); !found.isEmpty()) return found;
    for (const auto& one : value.toArray())
        if (QJsonObject found = findRecipe(one); !found.isEmpty()) return found;
    return {};
}

QJsonObject recipeOn(const QString& page) {
    static const QRegularExpression script(
        QStringLiteral("<script[^>]*application/ld\\+json[^>]*>(.*?)</script>"),
        QRegularExpression::DotMatchesEverythingOption | QRegularExpression::CaseInsensitiveOption);
    QStringList texts{page};
    for (auto all = script.globalMatch(page); all.hasNext();) texts << all.next().captured(1);
    // Pages are not strict about what stands around the text and about line breaks within it.
    static const QRegularExpression around(
        QStringLiteral("^\\s*(<!--|//<!\\[CDATA\\[)|(//\\]\\]>|-->)\\s*$"));
    static const QRegularExpression breaks(QStringLiteral("[\\x00-\\x1f]"));
    for (QString& text : texts) {
        text.remove(around).replace(breaks, QStringLiteral(" "));
        const QJsonDocument document = QJsonDocument::fromJson(text.trimmed().toUtf8());
        const QJsonValue value =
            document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
        if (QJsonObject found = findRecipe(value); !found.isEmpty()) return found;
    }
    return {};
}

/// The lines of a text that may be HTML, without numbers or bullets in front.
QStringList linesOf(const QString& text) {
    static const QRegularExpression ends(QStringLiteral("\\s*(?:\\r?\\n|</p>|<br\\s*/?>|</li>)\\s*"));
    static const QRegularExpression number(QStringLiteral("^(\\d+[.)]|[-•*])\\s+"));
    QStringList lines;
    for (const QString& part : text.split(ends))
        if (QString line = plain(part); !line.isEmpty()) lines << line.remove(number);
    return lines;
}

void addSteps(const QJsonValue& value, QStringList& steps);

/// A step, or a section or list of steps, whose name, if it has one, begins its first step.
void addStepsOf(const QJsonObject& object, QStringList& steps) {
    const QJsonValue inner = object.value(QStringLiteral("itemListElement"));
    const QString own = object.value(kMarkup).toString();
    if (inner.isUndefined()) {
        own.isEmpty() ? steps << linesOf(textOf(object)) : steps << own;
        return;
    }
    const qsizetype first = steps.size();
    addSteps(inner, steps);
    const QString name = plain(object.value(QStringLiteral("name")).toString());
    if (!name.isEmpty() && first < steps.size())
        steps[first] =
            name + (name.endsWith(u':') ? QStringLiteral(" ") : QStringLiteral(": ")) + steps[first];
}

/// Steps as one text, as texts, as steps, or as sections of steps.
void addSteps(const QJsonValue& value, QStringList& steps) {
    if (value.isObject()) return addStepsOf(value.toObject(), steps);
    if (value.isString()) steps << linesOf(value.toString());
    for (const auto& one : value.toArray()) addSteps(one, steps);
}

/// Ingredients as texts, or as one text of several lines.
QStringList ingredientsOf(const QJsonObject& recipe) {
    QJsonValue value = recipe.value(QStringLiteral("recipeIngredient"));
    if (value.isUndefined()) value = recipe.value(QStringLiteral("ingredients"));
    if (value.isString()) return linesOf(value.toString());
    QStringList texts;
    for (const auto& one : value.toArray()) texts << textOf(one);
    texts.removeAll(QString());
    return texts;
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
    for (const QString& one : ingredientsOf(object)) recipe.ingredients << readIngredientText(one, units);
    addSteps(object.value(QStringLiteral("recipeInstructions")), recipe.steps);
    for (const auto& line : object.value(kHead).toArray()) recipe.head << line.toString();
    for (const auto& one : object.value(kSections).toArray())
        recipe.texts << SharedText{one[QStringLiteral("title")].toString(),
                                   one[QStringLiteral("text")].toString()};
    if (recipe.texts.isEmpty() && !text("description").isEmpty())
        recipe.texts << SharedText{QStringLiteral("Úvod"), text("description")};
    return recipe;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
