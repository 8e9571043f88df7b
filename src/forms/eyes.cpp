#include "forms/eyes.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "forms/colors.h"

namespace sarne {

QColor Eyes::selected() const {
    return contrast_ ? colors::kSelected.darker(170) : colors::kSelected;
}

QColor Eyes::linkInk() const {
    return colors::kSelected.darker(contrast_ ? 170 : 125);
}

void Eyes::setTextPercent(int percent) {
    const int nearest =
        *std::ranges::min_element(kSizes, {}, [percent](int size) { return std::abs(size - percent); });
    if (nearest == percent_) return;
    percent_ = nearest;
    Q_EMIT changed();
}

bool Eyes::stepText(int direction) {
    const auto at = std::ranges::find(kSizes, percent_) - std::begin(kSizes);
    const auto wanted = std::clamp<std::ptrdiff_t>(at + direction, 0, std::ssize(kSizes) - 1);
    if (wanted == at) return false;
    setTextPercent(kSizes[wanted]);
    return true;
}

void Eyes::setCalm(bool calm) {
    if (calm_ == calm) return;
    calm_ = calm;
    Q_EMIT changed();
}

void Eyes::setContrast(bool contrast) {
    if (contrast_ == contrast) return;
    contrast_ = contrast;
    Q_EMIT changed();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
