#include "screens/recipe/portions.h"

#include "core/czech.h"
#include "core/texts.h"
#include "core/value.h"

namespace sarne {
namespace {

constexpr int kStep = 2;  // from one picture's number to the next
constexpr int kMostPortions = 255;

}  // namespace

Portions::Portions(int base) : base_(base > 0 && base <= kMostPortions ? base : 0) {
    const bool hasPicture = base_ == 2 || base_ == 4 || base_ == 6 || base_ == 8;
    choice_ = hasPicture ? base_ : kAnyNumber;
    if (!hasPicture) setCustom(base_);
}

void Portions::setCustom(double number) {
    custom_ = QString::number(number, 'g', QLocale::FloatingPointShortest);
}

double Portions::number() const {
    return choice_ == kAnyNumber ? leadingNumber(custom_) : choice_;
}

int PanelPosition::step(int direction) {
    value_ += direction * kStep;
    if (value_ > kToggle) value_ = kStep;
    if (value_ < kStep) value_ = kToggle;
    return value_;
}

QString PanelPosition::hint(int position, UnitSystem units) {
    if (position == kToggle)
        return units == UnitSystem::Weights ? Texts::tr("Přepočti na lžíce") : Texts::tr("Přepočti na gramy");
    if (position == Portions::kAnyNumber) return Texts::tr("Přepočet na libovolný počet porcí");
    return QString::number(position) + u' ' + portionNoun().behind(position);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
