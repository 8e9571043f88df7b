#include "kitchen/timers.h"

#include <algorithm>

namespace sarne {
namespace {

constexpr qint64 kSecond = 1000;

}  // namespace

int KitchenTimers::start(const QString& name, int seconds, qint64 now) {
    return resume(name, now + seconds * kSecond);
}

int KitchenTimers::resume(const QString& name, qint64 end) {
    timers_.push_back({++last_, name, end, false});
    sort();
    return last_;
}

void KitchenTimers::stop(int id) {
    std::erase_if(timers_, [id](const KitchenTimer& timer) { return timer.id == id; });
}

void KitchenTimers::prolong(int id, int seconds, qint64 now) {
    KitchenTimer* timer = find(id);
    if (!timer) return;
    timer->end = std::max(timer->end, now) + seconds * kSecond;
    timer->rings = false;
    sort();
}

std::vector<KitchenTimer> KitchenTimers::over(qint64 now) {
    std::vector<KitchenTimer> done;
    for (KitchenTimer& timer : timers_) {
        if (timer.rings || timer.left(now) > 0) continue;
        timer.rings = true;
        done.push_back(timer);
    }
    return done;
}

bool KitchenTimers::ringing() const {
    return std::any_of(timers_.begin(), timers_.end(), [](const KitchenTimer& timer) { return timer.rings; });
}

int KitchenTimers::running() const {
    return static_cast<int>(std::count_if(timers_.begin(), timers_.end(),
                                          [](const KitchenTimer& timer) { return !timer.rings; }));
}

KitchenTimer* KitchenTimers::find(int id) {
    const auto found = std::find_if(timers_.begin(), timers_.end(),
                                    [id](const KitchenTimer& timer) { return timer.id == id; });
    return found == timers_.end() ? nullptr : &*found;
}

void KitchenTimers::sort() {
    std::stable_sort(timers_.begin(), timers_.end(),
                     [](const KitchenTimer& a, const KitchenTimer& b) { return a.end < b.end; });
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
