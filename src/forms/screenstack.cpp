#include "forms/screenstack.h"

#include <algorithm>

namespace sarne {

Form* ScreenStack::top() const {
    return screens_.empty() ? nullptr : screens_.back().data();
}

bool ScreenStack::contains(const Form& screen) const {
    return std::ranges::any_of(screens_, [&](const auto& entry) { return entry == &screen; });
}

void ScreenStack::add(Form& screen) {
    screens_.emplace_back(&screen);
}

void ScreenStack::remove(const Form& screen) {
    std::erase_if(screens_, [&](const auto& entry) { return !entry || entry == &screen; });
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
