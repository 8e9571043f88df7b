#pragma once

#include <QLocale>
#include <QString>

namespace sarne {

/// An amount for reading, its number rounded already: "80 g", "2,5 lžíce", "5 lžic", "10 kuliček". A unit
/// that is not known stands as it is; without a number there is only the unit.
QString amountText(double number, const QString& unit, const QLocale& locale);

/// An amount as one buys it: grams and millilitres to whole tens from a hundred on, kilograms and litres from
/// a thousand on, pieces up to the next half. Nothing for 0 and less.
QString boughtAmountText(double amount, const QString& unit, const QLocale& locale);

/// An amount in the unit in which it is added up: kilograms in grams, litres in millilitres.
struct BaseAmount {
    double amount = 0;
    QString unit;
};
BaseAmount inBaseUnit(double amount, const QString& unit);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
