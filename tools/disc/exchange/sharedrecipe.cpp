#include "sharedrecipe.h"

#include <QRegularExpression>

namespace sarne::disc {
namespace {

const QString kLook = QStringLiteral("; ??? ");
const QString kOr = QStringLiteral(", nebo ");

SharedIngredient ingredientOf(const Line& line) {
    const qsizetype colon = line.text.indexOf(u':');
    const QString amount = line.text.mid(colon + 1).trimmed();
    const qsizetype other = amount.indexOf(kOr);
    return {line.text.first(std::max<qsizetype>(0, colon)).trimmed(),
            other < 0 ? amount : amount.first(other).trimmed(),
            other < 0 ? QString() : amount.mid(other + kOr.size()).trimmed()};
}

/// The paragraphs of a text, each on one line; a numbered one begins a paragraph too.
QStringList paragraphs(const Lines& lines) {
    static const QRegularExpression step(QStringLiteral("^\\d+\\. "));
    QStringList all;
    bool isOpen = false;
    for (const Line& line : lines) {
        const QString text = line.text.trimmed();
        if (!text.isEmpty() && isOpen && !step.match(text).hasMatch())
            all.last() += u' ' + text;
        else if (!text.isEmpty())
            all << text;
        isOpen = !text.isEmpty();
    }
    return all;
}

/// The paragraphs without their numbers; one that has none belongs to the step before it.
QStringList stepsOf(const Lines& lines) {
    static const QRegularExpression step(QStringLiteral("^\\d+\\. "));
    QStringList all;
    for (QString text : paragraphs(lines)) {
        const bool isNumbered = step.match(text).hasMatch();
        if (isNumbered || all.isEmpty())
            all << text.remove(step);
        else
            all.last() += u' ' + text;
    }
    return all;
}

void readHead(const Lines& lines, SharedRecipe& recipe) {
    const QHash<QString, int SharedRecipe::*> numbers{
        {QStringLiteral("porce"), &SharedRecipe::portions},
        {QStringLiteral("příprava"), &SharedRecipe::preparation},
        {QStringLiteral("vaření"), &SharedRecipe::cooking},
        {QStringLiteral("minut"), &SharedRecipe::minutes}};
    const QHash<QString, QString SharedRecipe::*> texts{
        {QStringLiteral("název"), &SharedRecipe::name},
        {QStringLiteral("dlouhý název"), &SharedRecipe::longName}};
    for (const Line& line : lines) {
        const KeyValue entry = keyValue(line);
        if (numbers.contains(entry.key))
            recipe.*numbers[entry.key] = entry.value.toInt();
        else if (texts.contains(entry.key))
            recipe.*texts[entry.key] = entry.value;
        else if (!line.isBlank())
            recipe.head << line.text.trimmed();
    }
}

/// "key: value", and what a person has to do where there is none.
QString headLine(const char* key, const QString& value, const char* ask) {
    const QString name = QString::fromUtf8(key);
    if (!value.isEmpty() && value != u"0") return name + QStringLiteral(": ") + value + u'\n';
    return ask ? kLook + name + QStringLiteral(": ") + QString::fromUtf8(ask) + u'\n' : QString();
}

QString headText(const SharedRecipe& recipe) {
    const int total = recipe.minutes > 0 ? recipe.minutes : recipe.preparation + recipe.cooking;
    QString text;
    if (!recipe.source.isEmpty())
        text += kLook + QStringLiteral("pramen: %1; cizí text přepište vlastními slovy\n").arg(recipe.source);
    text += headLine("název", recipe.name, "jak se jídlo jmenuje");
    text += headLine("dlouhý název", recipe.longName.isEmpty() ? recipe.name : recipe.longName, nullptr);
    text += headLine("porce", QString::number(recipe.portions), "pro kolik lidí");
    text += headLine("příprava", QString::number(recipe.preparation), "minuty práce rukama");
    text += headLine("vaření", QString::number(recipe.cooking), "minuty vaření vedle ní nebo po ní");
    text += headLine("minut", QString::number(total), "celkem od začátku ke stolu");
    for (const QString& line : recipe.head) text += line + u'\n';
    return text;
}

QString ingredientText(const SharedIngredient& one) {
    const QString tail = one.alternative.isEmpty() ? QString() : kOr + one.alternative;
    if (one.isNew) {
        SharedIngredient known = one;
        known.isNew = false;
        return kLook + QStringLiteral("nová surovina: jméno patří v prvním pádě sem i do suroviny.txt\n") +
               ingredientText(known);
    }
    if (!one.amount.isEmpty()) return one.name + QStringLiteral(": ") + one.amount + tail + u'\n';
    return kLook + QStringLiteral("kolik?\n") + one.name + QStringLiteral(": podle chuti") + tail + u'\n';
}

}  // namespace

QString SharedIngredient::line() const {
    const QString tail = alternative.isEmpty() ? QString() : kOr + alternative;
    const bool isCounted = !amount.isEmpty() && amount.front().isDigit();
    return isCounted ? amount + u' ' + name + tail : (name + u' ' + amount).trimmed() + tail;
}

SharedRecipe sharedRecipe(const Lines& lines) {
    SharedRecipe recipe;
    const QList<Section> parts = sections(lines);
    readHead(parts.first().lines, recipe);
    for (const Section& part : parts.mid(1)) {
        if (part.title == u"Suroviny") {
            for (const Line& line : part.lines)
                if (!line.isBlank()) recipe.ingredients << ingredientOf(line);
        } else if (part.title == u"Postup") {
            recipe.steps = stepsOf(part.lines);
        } else {
            recipe.texts << SharedText{part.title, paragraphs(part.lines).join(QStringLiteral("\n\n"))};
        }
    }
    return recipe;
}

QString recipeFile(const SharedRecipe& recipe) {
    QString text = headText(recipe) + QStringLiteral("\n== Suroviny\n");
    if (recipe.ingredients.isEmpty()) text += kLook + QStringLiteral("jméno, upřesnění: 60 g = 4 lžíce\n");
    for (const SharedIngredient& one : recipe.ingredients) text += ingredientText(one);
    for (const SharedText& one : recipe.texts)
        if (one.title == u"Úvod") text += QStringLiteral("\n== Úvod\n") + one.text + u'\n';
    text += QStringLiteral("\n== Postup\n");
    if (recipe.steps.isEmpty()) text += kLook + QStringLiteral("1. První krok.\n");
    for (qsizetype i = 0; i < recipe.steps.size(); ++i)
        text += (i > 0 ? QStringLiteral("\n") : QString()) + QString::number(i + 1) + QStringLiteral(". ") +
                recipe.steps[i] + u'\n';
    for (const SharedText& one : recipe.texts)
        if (one.title != u"Úvod") text += QStringLiteral("\n== ") + one.title + u'\n' + one.text + u'\n';
    return text;
}

QString readableText(const QString& text) {
    static const QRegularExpression share(QStringLiteral("\\s*\\{[^}]*\\}"));
    static const QRegularExpression link(QStringLiteral("\\[([^\\]]*?)( -> [^\\]]*)?\\]"));
    QString readable = text;
    readable.remove(share).replace(link, QStringLiteral("\\1"));
    return readable.remove(QStringLiteral("**")).remove(u'_');
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
