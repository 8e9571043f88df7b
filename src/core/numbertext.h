#pragma once

#include <QLocale>
#include <QString>

namespace sarne {

/// \a value rounded to \a decimals places, halves to the even neighbour (banker's rounding). A half is told
/// by the shortest decimal text of \a value, so that 0.125 gives 0.12 and 0.135 gives 0.14 although neither
/// 32-bit number lies exactly there. Infinite and undefined values come back as they are.
double roundHalfEven(double value, int decimals);
float roundHalfEven(float value, int decimals);

/// \a value as people write it: shortest form, no trailing zeros, no grouping of thousands, \a locale's
/// decimal separator.
QString numberText(double value, const QLocale& locale);
QString numberText(float value, const QLocale& locale);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
