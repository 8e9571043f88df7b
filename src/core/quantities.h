#pragma once

#include <QLocale>
#include <QString>

namespace sarne {

/// Each amount is stored twice: as people weigh, and as people spoon.
enum class UnitSystem { Weights, Spoons };

/// How a recipe is looked at. 0 portions: none was looked at yet.
struct Serving {
    double portions = 0;
    UnitSystem units = UnitSystem::Weights;
};

/// The amounts of a recipe recalculated for a number of portions, and written as people read them: 254 g is
/// 250, half a spoon stays 0,5. A value; the amounts are in whatever unit the recipe gives them.
class Quantities {
  public:
    /// Amounts given for \a basePortions (1 to 255) as they are for \a portions. With any other base, and
    /// for no portions or fewer, there are no amounts.
    Quantities(double portions, int basePortions, const QLocale& locale);

    /// What every amount is multiplied by; 0 where there are none.
    float factor() const { return factor_; }
    /// The \a stored amount recalculated, to two decimals, a half to the even neighbour.
    float amount(double stored) const;
    /// amount() as it is shown; empty when there is nothing to show, which is 0 and less.
    QString text(double stored) const;
    /// The number of portions that the factor stands for, as it was given: multiplying it back would show
    /// traces of its 32 bits.
    QString portionsText() const;

    /// \a amount without more precision than a kitchen has: hundredths below 0.1, tenths below 10, whole
    /// numbers below 100, tens from there on, halves to the even neighbour.
    static float forDisplay(float amount);

  private:
    double portions_ = 0;
    float factor_ = 0;
    QLocale locale_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
