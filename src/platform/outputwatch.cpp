#include "platform/outputwatch.h"

#include <utility>

namespace sarne {
namespace {

constexpr int kPatience = 10;  // openings without success until sound is heard again

}  // namespace

OutputWatch::Act OutputWatch::output(const QString& driver) {
    if (driver.isEmpty()) return Act::None;
    const bool nowhere = driver == u"null";
    if (!nowhere) inVain_ = 0;
    if (nowhere == following_) return Act::None;
    following_ = nowhere;
    known_ = false;
    return nowhere ? Act::Follow : Act::Leave;
}

OutputWatch::Act OutputWatch::devices(const QStringList& names) {
    if (!following_) return Act::None;
    const QSet<QString> before = std::exchange(names_, {names.begin(), names.end()});
    if (!std::exchange(known_, true)) return Act::None;
    const bool appeared = !before.contains(names_);
    if (!appeared || inVain_ >= kPatience) return Act::None;
    ++inVain_;
    return Act::Reopen;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
