// Stands in for sleepinhibitor.cpp and desktopquestions.cpp in a build without D-Bus: there is nobody who
// could be asked.
#include "platform/desktopwishes.h"
#include "platform/sleepinhibitor.h"

namespace sarne {

struct DesktopSleepInhibitor::Wish {};

DesktopSleepInhibitor::DesktopSleepInhibitor() = default;

DesktopSleepInhibitor::~DesktopSleepInhibitor() = default;

void DesktopSleepInhibitor::inhibit(const QString&) {}

void DesktopSleepInhibitor::release() {}

void askDesktop(QObject&, const std::function<void(DesktopWishes)>&) {}

DesktopQuestions::DesktopQuestions(QObject& receiver, std::function<void(DesktopWishes)> told)
    : QObject(&receiver), told_(std::move(told)) {}

void DesktopQuestions::ask() {}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
