#include "cooklang.h"

#include <QRegularExpression>

#include "ingredientline.h"

namespace sarne::disc {
namespace {

const QString kIngredients = QStringLiteral("Suroviny");
/// A brace of this book's shares would begin a quantity there.
const QString kShareBegin = QStringLiteral("⦃");
const QString kShareEnd = QStringLiteral("⦄");

QString ingredientMark(const SharedIngredient& one) {
    QString text = u'@' + one.name;
    const QStringList halves = one.amount.split(QStringLiteral(" = "));
    const QString number = halves[0].section(u' ', 0, 0);
    text += halves[0].isEmpty() || !halves[0].front().isDigit()
                ? QStringLiteral("{%1}").arg(halves[0])
                : QStringLiteral("{%1%%2}").arg(number, halves[0].section(u' ', 1));
    QStringList notes;
    if (halves.size() > 1) notes << QStringLiteral("= ") + halves[1];
    if (!one.alternative.isEmpty()) notes << QStringLiteral("nebo ") + one.alternative;
    return notes.isEmpty() ? text : text + u'(' + notes.join(QStringLiteral("; ")) + u')';
}

SharedIngredient ingredientOf(const QRegularExpressionMatch& match, const QStringList& units) {
    // Another recipe is taken by its path, and an amount that does not grow with the portions begins with
    // "=".
    const QString name =
        (match.captured(1).isEmpty() ? match.captured(4) : match.captured(1)).section(u'/', -1).trimmed();
    QString quantity = match.captured(2).trimmed();
    if (quantity.startsWith(u'=')) quantity = quantity.mid(1).trimmed();
    SharedIngredient read = readIngredientText(QString(quantity).replace(u'%', u' ') + u' ' + name, units);
    read.name = name;
    if (!quantity.isEmpty() && read.amount.isEmpty()) read.amount = quantity;
    QStringList refinements;
    for (const QString& note : match.captured(3).split(QStringLiteral("; "), Qt::SkipEmptyParts)) {
        if (note.startsWith(QLatin1String("= ")))
            read.amount += u' ' + note;
        else if (note.startsWith(QLatin1String("nebo ")))
            read.alternative = note.mid(5);
        else
            refinements << note;
    }
    if (!refinements.isEmpty()) read.name += QStringLiteral(", ") + refinements.join(u' ');
    return read;
}

/// Replaces every match by what \a words makes of it.
template <typename Words>
QString replaced(const QString& text, const QRegularExpression& pattern, const Words& words) {
    QString made;
    qsizetype from = 0;
    for (auto all = pattern.globalMatch(text); all.hasNext();) {
        const auto match = all.next();
        made += text.mid(from, match.capturedStart() - from) + words(match);
        from = match.capturedEnd();
    }
    return made + text.mid(from);
}

/// Reads a text line by line into a recipe.
class Reader {
  public:
    explicit Reader(const QStringList& units) : units_(units) {}

    SharedRecipe read(QString text) {
        static const QRegularExpression comments(
            QStringLiteral("[ \\t]*\\[-.*?-\\]|(?<=[ \\t])--(?!-).*?$|^--(?!-).*?$"),
            QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
        text.remove(comments);
        bool isFront = false;
        for (const QString& line : text.split(u'\n')) {
            const QString plain = line.trimmed();
            if (plain == u"---")
                isFront = !isFront && recipe_.steps.isEmpty();
            else if (isFront)
                metadata(plain);
            else if (plain.startsWith(QLatin1String(">>")))
                metadata(plain.mid(2));
            else
                bodyLine(plain);
        }
        endParagraph();
        return recipe_;
    }

  private:
    void metadata(const QString& line) {
        const QString key = line.section(u':', 0, 0).trimmed();
        QString value = line.section(u':', 1).trimmed();
        if (value.size() > 1 && value.front() == value.back() &&
            QStringLiteral("\"'").contains(value.front()))
            value = value.mid(1, value.size() - 2);
        const QString low = key.toLower();
        if (low == u"title" || low == u"název")
            recipe_.name = value;
        else if (low == u"dlouhý název")
            recipe_.longName = value;
        else if (low == u"servings" || low == u"serves" || low == u"yield")
            recipe_.portions = numberIn(value);
        else if (low == u"prep time" || low == u"prep")
            recipe_.preparation = minutesIn(value);
        else if (low == u"cook time" || low == u"cook")
            recipe_.cooking = minutesIn(value);
        else if (low == u"time" || low == u"total time" || low == u"time required" || low == u"duration")
            recipe_.minutes = minutesIn(value);
        else if (low == u"source" || low == u"source url")
            recipe_.source = value;
        else if (low.startsWith(QLatin1String("sarne ")))
            recipe_.head << key.mid(6) + QStringLiteral(": ") + value;
    }

    static int numberIn(const QString& text) {
        static const QRegularExpression number(QStringLiteral("\\d+"));
        return number.match(text).captured().toInt();
    }

    static int minutesIn(const QString& text) {
        static const QRegularExpression hours(QStringLiteral("(\\d+)\\s*h"));
        static const QRegularExpression minutes(QStringLiteral("(\\d+)\\s*m"));
        const int sum = hours.match(text).captured(1).toInt() * 60 + minutes.match(text).captured(1).toInt();
        return sum > 0 ? sum : numberIn(text);
    }

    void bodyLine(const QString& line) {
        static const QRegularExpression section(QStringLiteral("^=+\\s*(.*?)\\s*=*$"));
        if (const auto match = section.match(line); match.hasMatch()) {
            endParagraph();
            section_ = match.captured(1);
        } else if (line.isEmpty()) {
            endParagraph();
        } else {
            paragraph_ += (paragraph_.isEmpty() ? QString() : QStringLiteral(" ")) + line;
        }
    }

    void endParagraph() {
        static const QStringList texts{QStringLiteral("Úvod"), QStringLiteral("Jak podávat"),
                                       QStringLiteral("Poznámka"), QStringLiteral("Víno")};
        QString text = paragraph_;
        paragraph_.clear();
        if (text.isEmpty()) return;
        const bool isNote = text.startsWith(QLatin1String("> "));
        if (isNote) text = text.mid(2);
        text = taken(text);
        if (section_ == kIngredients) return;
        if (texts.contains(section_) || isNote)
            addText(texts.contains(section_) ? section_ : QStringLiteral("Poznámka"), text);
        else
            recipe_.steps << text;
    }

    void addText(const QString& title, const QString& text) {
        for (SharedText& one : recipe_.texts)
            if (one.title == title) {
                one.text += QStringLiteral("\n\n") + text;
                return;
            }
        recipe_.texts << SharedText{title, text};
    }

    /// The words of a step; its ingredients and tools are written down.
    QString taken(const QString& text) {
        static const QRegularExpression ingredient(
            QStringLiteral("@[&?+-]*(?:([^@#~{}]+?)\\{([^}]*)\\}(?:\\(([^)]*)\\))?|([\\p{L}\\p{N}_-]+))"));
        static const QRegularExpression tool(
            QStringLiteral("#(?:([^@#~{}]+?)\\{[^}]*\\}|([\\p{L}\\p{N}_-]+))"));
        static const QRegularExpression timer(QStringLiteral("~[^{}@#]*\\{([^}]*)\\}"));
        QString words = replaced(text, ingredient, [&](const QRegularExpressionMatch& match) {
            const SharedIngredient read = ingredientOf(match, units_);
            recipe_.ingredients << read;
            return read.name.section(u',', 0, 0);
        });
        words = replaced(words, tool, [](const QRegularExpressionMatch& match) {
            return match.captured(1).isEmpty() ? match.captured(2) : match.captured(1);
        });
        words = replaced(words, timer, [](const QRegularExpressionMatch& match) {
            return match.captured(1).replace(u'%', u' ');
        });
        return words.replace(kShareBegin, QStringLiteral("{")).replace(kShareEnd, QStringLiteral("}"));
    }

    const QStringList& units_;
    SharedRecipe recipe_;
    QString section_;
    QString paragraph_;
};

QString escaped(QString text) {
    return text.replace(u'{', kShareBegin).replace(u'}', kShareEnd);
}

}  // namespace

QString toCooklang(const SharedRecipe& recipe) {
    QString text = QStringLiteral(
                       ">> title: %1\n>> dlouhý název: %2\n>> servings: %3\n>> prep time: %4 min\n"
                       ">> cook time: %5 min\n>> time: %6 min\n")
                       .arg(recipe.name, recipe.longName)
                       .arg(recipe.portions)
                       .arg(recipe.preparation)
                       .arg(recipe.cooking)
                       .arg(recipe.minutes);
    for (const QString& line : recipe.head) text += QStringLiteral(">> sarne %1\n").arg(line);
    text += QStringLiteral("\n== %1 ==\n").arg(kIngredients);
    for (const SharedIngredient& one : recipe.ingredients)
        text += ingredientMark(one) + QStringLiteral("\n\n");
    text += QStringLiteral("== Postup ==\n");
    for (const QString& step : recipe.steps) text += escaped(step) + QStringLiteral("\n\n");
    for (const SharedText& one : recipe.texts)
        text += QStringLiteral("== %1 ==\n%2\n\n").arg(one.title, escaped(one.text));
    return text;
}

SharedRecipe fromCooklang(const QString& text, const QStringList& units) {
    return Reader(units).read(text);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
