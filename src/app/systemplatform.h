#pragma once

#include "app/platformparts.h"
#ifdef SARNE_SPEECH
#include "platform/dispatcherspeech.h"
#endif
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
    /// Once the first picture is there, makes ready in the background what takes a while: sound effects, the
    /// music, which is held until then, and later the voice.
    void prepareLater();

    SystemSettingsStore settings;
    SteadyClock clock;
    MixerEffectPlayer effects;
    ToneBeeper beeper{effects};
    MpvControl music;
    SystemDisplayModes display;
    DesktopSleepInhibitor sleep;
    SystemPrinter printer;
#ifdef SARNE_SPEECH
    DispatcherSpeech speech;
#else
    Speech speech;
#endif
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
