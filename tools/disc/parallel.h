#pragma once

#include <QtGlobal>
#include <algorithm>
#include <atomic>
#include <future>
#include <thread>
#include <vector>

namespace sarne::disc {

/// How many things the machine does at a time.
inline qsizetype coreCount() {
    return std::max(1U, std::thread::hardware_concurrency());
}

/// Calls \a work with 0 to \a count - 1, as many at a time as the machine has cores, and waits for all.
template <typename Work>
void inParallel(qsizetype count, const Work& work) {
    std::atomic<qsizetype> next = 0;
    const auto run = [&] {
        for (qsizetype i = next++; i < count; i = next++) work(i);
    };
    std::vector<std::future<void>> workers;
    for (qsizetype i = 0; i < coreCount(); ++i) workers.push_back(std::async(std::launch::async, run));
    for (auto& worker : workers) worker.get();
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
