#pragma once

#include "app/platformparts.h"
#include "support/fakeannouncer.h"
#include "support/fakebeeper.h"
#include "support/fakedisplaymodes.h"
#include "support/fakeeffects.h"
#include "support/fakemultimedia.h"
#include "support/fakeprinter.h"
#include "support/fakesettings.h"
#include "support/fakesleepinhibitor.h"
#include "support/fakespeech.h"

namespace sarne {

/// A platform without devices, for runs of the whole program.
class FakePlatform {
  public:
    FakeSettings settings;
    SteadyClock clock;
    FakeEffects effects;
    FakeBeeper beeper;
    FakeMultimedia music;
    FakeDisplayModes display;
    FakeSleepInhibitor sleep;
    FakePrinter printer;
    FakeSpeech speech;

    FakePlatform() { display.size = {800, 600}; }
    PlatformParts parts() {
        return {settings,
                clock,
                effects,
                beeper,
                music,
                display,
                sleep,
                printer,
                speech,
                [] { return std::make_unique<FakeMultimedia>(); },
                [](QObject&) { return std::make_unique<FakeAnnouncer>(); }};
    }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
