// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kitchen/timers.h"

namespace sarne {

class UserFile;

/// Keeps \a timers with the time of day at which each ends, so that they outlive the program. \a now is their
/// clock, \a today the time of day, both in milliseconds, the latter since 1970. True when they are on the
/// disk.
bool storeTimers(UserFile& file, const std::vector<KitchenTimer>& timers, qint64 now, qint64 today);

/// Starts again what a run that was cut off has left. What has come to its end meanwhile is over at once;
/// what did so half a day ago or earlier is forgotten.
void restoreTimers(UserFile& file, KitchenTimers& timers, qint64 now, qint64 today);

}  // namespace sarne
