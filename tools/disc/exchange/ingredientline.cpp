#include "ingredientline.h"

#include <QRegularExpression>
#include <cmath>

namespace sarne::disc {
namespace {

/// A unit as it is met elsewhere, and as this book writes it, with what one of it is.
struct ForeignUnit {
    const char* name;
    const char* ours;
    double factor = 1;
};

constexpr ForeignUnit kForeign[] = {{"dkg", "g", 10},
                                    {"dag", "g", 10},
                                    {"deka", "g", 10},
                                    {"kg", "g", 1000},
                                    {"dl", "ml", 100},
                                    {"cl", "ml", 10},
                                    {"l", "ml", 1000},
                                    {"litr", "ml", 1000},
                                    {"litru", "ml", 1000},
                                    {"litry", "ml", 1000},
                                    {"gram", "g"},
                                    {"gramů", "g"},
                                    {"gramy", "g"},
                                    {"pl", "lžíce"},
                                    {"PL", "lžíce"},
                                    {"polévková lžíce", "lžíce"},
                                    {"polévkové lžíce", "lžíce"},
                                    {"ČL", "lžičky"},
                                    {"čl", "lžičky"},
                                    {"čajová lžička", "lžičky"},
                                    {"tbsp", "lžíce"},
                                    {"tablespoon", "lžíce"},
                                    {"tablespoons", "lžíce"},
                                    {"tsp", "lžičky"},
                                    {"teaspoon", "lžičky"},
                                    {"teaspoons", "lžičky"},
                                    {"cup", "hrnky"},
                                    {"cups", "hrnky"},
                                    {"oz", "g", 28},
                                    {"ounce", "g", 28},
                                    {"ounces", "g", 28},
                                    {"lb", "g", 450},
                                    {"pound", "g", 450},
                                    {"pounds", "g", 450},
                                    {"kus", "ks"},
                                    {"kusy", "ks"},
                                    {"kusů", "ks"},
                                    {"clove", "stroužky"},
                                    {"cloves", "stroužky"}};

/// "1½", "1/2", "0,5", "2.5" as a number; of "2–3" the first.
const QString kNumber =
    QStringLiteral("(\\d+\\s+\\d+/\\d+|\\d+/\\d+|\\d+(?:[.,]\\d+)?)(?:\\s*[-–]\\s*\\d+(?:[.,]\\d+)?)?");

QString withoutSigns(QString text) {
    static const std::pair<const char*, const char*> signs[] = {{"½", "1/2"}, {"¼", "1/4"}, {"¾", "3/4"},
                                                                {"⅓", "1/3"}, {"⅔", "2/3"}, {"⅛", "1/8"}};
    static const QRegularExpression between(QStringLiteral("(\\d)(?=[½¼¾⅓⅔⅛])"));
    text.replace(between, QStringLiteral("\\1 "));
    for (const auto& [sign, words] : signs) text.replace(QString::fromUtf8(sign), QString::fromUtf8(words));
    return text.replace(QChar(QChar::Nbsp), u' ').simplified();
}

double numberOf(const QString& text) {
    double sum = 0;
    for (const QString& part : text.split(u' ', Qt::SkipEmptyParts)) {
        const QStringList halves = part.split(u'/');
        const double over = QString(halves[0]).replace(u',', u'.').toDouble();
        sum += halves.size() == 2 && halves[1].toDouble() > 0 ? over / halves[1].toDouble() : over;
    }
    return sum;
}

QString czech(double number) {
    return QString::number(std::round(number * 100) / 100).replace(u'.', u',');
}

/// The longest of the words that \a text begins with, followed by a blank or the end.
QString unitAt(const QString& text, const QStringList& units) {
    QString best;
    for (const QString& unit : units)
        if (unit.size() > best.size() && text.startsWith(unit, Qt::CaseInsensitive) &&
            (text.size() == unit.size() || text[unit.size()] == u' ' || text[unit.size()] == u'.'))
            best = unit;
    return best;
}

QString amountText(const QString& number, const QString& unit) {
    for (const ForeignUnit& one : kForeign)
        if (unit == QString::fromUtf8(one.name))
            return czech(numberOf(number) * one.factor) + u' ' + QString::fromUtf8(one.ours);
    return czech(numberOf(number)) + u' ' + (unit.isEmpty() ? QStringLiteral("ks") : unit);
}

/// Takes "60 g" off the front of \a text; empty when there is no number.
QString takeAmount(QString& text, const QStringList& units) {
    static const QRegularExpression number(u'^' + kNumber + QStringLiteral("\\s*"));
    const auto match = number.match(text);
    if (!match.hasMatch()) return {};
    QString rest = text.mid(match.capturedLength());
    const QString unit = unitAt(rest, units);
    rest = rest.mid(unit.size());
    if (rest.startsWith(u'.')) rest.remove(0, 1);
    text = rest.trimmed();
    return amountText(match.captured(1), unit);
}

/// "mouka (hladká)" and "mouka - hladká" as "mouka, hladká".
QString withRefinement(QString name) {
    static const QRegularExpression bracket(QStringLiteral("\\s*\\(([^)]*)\\)"));
    static const QRegularExpression dash(QStringLiteral("\\s+[-–]\\s+"));
    name.replace(bracket, QStringLiteral(", \\1")).replace(dash, QStringLiteral(", "));
    name.remove(u':');
    const qsizetype comma = name.indexOf(u',');
    const QString first = name.first(comma < 0 ? name.size() : comma).trimmed();
    QString rest = comma < 0 ? QString() : name.mid(comma + 1).trimmed();
    while (rest.startsWith(u',')) rest = rest.mid(1).trimmed();
    return rest.isEmpty() ? first : first + QStringLiteral(", ") + rest;
}

}  // namespace

SharedIngredient readIngredientText(const QString& text, const QStringList& units) {
    static const QString kTaste = QStringLiteral("podle chuti");
    QStringList known = units;
    for (const ForeignUnit& one : kForeign) known << QString::fromUtf8(one.name);
    SharedIngredient read;
    QString rest = withoutSigns(text);
    if (const qsizetype other = rest.indexOf(QStringLiteral(", nebo ")); other >= 0) {
        read.alternative = rest.mid(other + 7).trimmed();
        rest = rest.first(other);
    }
    read.amount = takeAmount(rest, known);
    if (rest.startsWith(u'=')) {
        QString second = rest.mid(1).trimmed();
        if (const QString spoons = takeAmount(second, known); !spoons.isEmpty()) {
            read.amount += QStringLiteral(" = ") + spoons;
            rest = second;
        }
    }
    static const QRegularExpression pinch(
        QStringLiteral("^(špetk[auy]|trochu|trocha|podle chuti)\\s+(?=\\S)"),
        QRegularExpression::CaseInsensitiveOption);
    if (const auto match = pinch.match(rest); match.hasMatch()) {
        read.amount = kTaste;
        rest = rest.mid(match.capturedLength());
    }
    if (read.amount.isEmpty() && rest.contains(kTaste)) {
        read.amount = kTaste;
        rest.remove(kTaste);
    }
    read.name = withRefinement(rest.simplified());
    return read;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
