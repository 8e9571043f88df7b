#include "screens/navigation/sweep.h"

#include <algorithm>

namespace sarne {

void Sweep::start(std::vector<int> order) {
    order_ = std::move(order);
    step_ = 0;
}

void Sweep::step() {
    if (++step_ >= int(order_.size()) * kRise + kFade) stop();
}

double Sweep::glow(int thing) const {
    const auto at = std::ranges::find(order_, thing);
    if (at == order_.end()) return 0;
    const int since = step_ - int(at - order_.begin()) * kRise;  // steps since its turn came
    if (since < 0) return 0;
    if (since < kRise) return (since + 1) / double(kRise);
    return std::max(0., 1 - (since - kRise + 1) / double(kFade));
}

std::vector<int> Sweep::lit() const {
    std::vector<int> things;
    for (const int thing : order_)
        if (glow(thing) > 0) things.push_back(thing);
    return things;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
