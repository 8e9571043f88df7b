#include "kitchen/steps.h"

#include <QHash>

#include "core/numbertext.h"
#include "db/database.h"
#include "db/queries.h"
#include "kitchen/units.h"

namespace sarne {
namespace {

constexpr double kWhole = 0.999;  // a share from here on is all of it

}  // namespace

std::vector<CookingStep> readSteps(Database& db, int recipe) {
    std::vector<CookingStep> steps;
    QHash<qint64, size_t> places;
    for (Recordset rows = queries::recipeSteps(db, recipe); !rows.AtEnd(); rows.MoveNext()) {
        places.insert(rows.field(QStringLiteral("ID")).toLongLong(), steps.size());
        steps.push_back({rows.field(QStringLiteral("Nazev")).toString(),
                         rows.field(QStringLiteral("Text")).toString(),
                         {}});
    }
    for (Recordset rows = queries::stepNeeds(db, recipe); !rows.AtEnd(); rows.MoveNext()) {
        const auto place = places.constFind(rows.field(QStringLiteral("ID_Kroku")).toLongLong());
        if (place == places.cend()) continue;
        steps[*place].needs.push_back(
            {rows.field(QStringLiteral("Radek")).toInt(), rows.field(QStringLiteral("Podil")).toDouble()});
    }
    return steps;
}

QString needText(const Ingredient& ingredient, double share, UnitSystem units, const Quantities& quantities,
                 const QLocale& locale) {
    const Measure& measure = ingredient.measure(units);
    QString name = ingredient.refinement ? ingredient.name + QStringLiteral(", ") + *ingredient.refinement
                                         : ingredient.name;
    const float amount = quantities.amount(measure.amount * (share > kWhole ? 1 : share));
    if (amount <= 0) return measure.unit ? name + QStringLiteral("\u00a0–\u00a0") + *measure.unit : name;
    bool isNumber = false;
    const double shown = locale.toDouble(numberText(Quantities::forDisplay(amount), locale), &isNumber);
    return name + QStringLiteral("\u00a0–\u00a0") +
           amountText(isNumber ? shown : static_cast<double>(amount), measure.unit.value_or(QString()),
                      locale);
}

QString firstSentence(const QString& text) {
    for (qsizetype i = 0; i + 2 < text.size(); ++i) {
        if (!QStringLiteral(".!?").contains(text[i]) || !text[i + 1].isSpace()) continue;
        if (text[i + 2].isUpper()) return text.left(i + 1);
    }
    return text;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
