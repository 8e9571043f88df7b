#include "core/quantities.h"

#include <cmath>

#include "core/numbertext.h"

namespace sarne {

Quantities::Quantities(double portions, int basePortions, const QLocale& locale) : locale_(locale) {
    constexpr int kMostPortions = 255;
    const bool known = basePortions > 0 && basePortions <= kMostPortions;
    if (!known || !(portions > 0)) return;
    portions_ = portions;
    factor_ = static_cast<float>(portions / basePortions);
}

float Quantities::amount(double stored) const {
    return roundHalfEven(static_cast<float>(stored * double(factor_)), 2);
}

QString Quantities::text(double stored) const {
    const float value = amount(stored);
    return value > 0 ? numberText(forDisplay(value), locale_) : QString();
}

QString Quantities::portionsText() const {
    return numberText(portions_, locale_);
}

float Quantities::forDisplay(float amount) {
    if (amount < 0.1F) return roundHalfEven(amount, 2);
    if (amount < 10) return roundHalfEven(amount, 1);
    if (amount < 100) return roundHalfEven(amount, 0);
    return roundHalfEven(amount / 10, 0) * 10;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
