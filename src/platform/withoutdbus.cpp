// Stands in for sleepinhibitor.cpp in a build without D-Bus: there is nobody who could be asked.
#include "platform/sleepinhibitor.h"

namespace sarne {

struct DesktopSleepInhibitor::Wish {};

DesktopSleepInhibitor::DesktopSleepInhibitor() = default;

DesktopSleepInhibitor::~DesktopSleepInhibitor() = default;

void DesktopSleepInhibitor::inhibit(const QString&) {}

void DesktopSleepInhibitor::release() {}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
