#pragma once

#include <QtNumeric>
#include <cmath>
#include <concepts>
#include <limits>

namespace sarne {

/// \a value as a whole number, its fraction dropped, brought into the type's range; 0 for what is no number.
/// Numbers from files and libraries may be anything, and a plain conversion of one out of range is undefined.
template <std::signed_integral Whole = int>
Whole wholeNumber(double value) {
    using Limits = std::numeric_limits<Whole>;
    if (std::isnan(value)) return 0;
    if (value <= double(Limits::min())) return Limits::min();
    if (value >= double(Limits::max())) return Limits::max();
    return static_cast<Whole>(value);
}

/// \a a times \a b, brought into the type's range.
inline qint64 boundedProduct(qint64 a, qint64 b) {
    qint64 product = 0;
    if (!qMulOverflow(a, b, &product)) return product;
    using Limits = std::numeric_limits<qint64>;
    return (a < 0) == (b < 0) ? Limits::max() : Limits::min();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
