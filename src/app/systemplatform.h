#pragma once

#include "app/platformparts.h"
#include "platform/mpvcontrol.h"
#include "platform/systemprinter.h"

namespace sarne {

/// What this machine's operating system gives, for one run: its devices, its settings, its desktop. The music
/// opens without waiting and loops.
class SystemPlatform {
  public:
    SystemPlatform();
    /// For a Program, which this object outlives.
    PlatformParts parts();

    SystemSettingsStore settings;
    SteadyClock clock;
    MixerEffectPlayer effects;
    ToneBeeper beeper{effects};
    MpvControl music;
    SystemDisplayModes display;
    DesktopSleepInhibitor sleep;
    SystemPrinter printer;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
