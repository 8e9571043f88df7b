#pragma once

#include <QStringList>

#include "app/platformparts.h"
#include "platform/announcer.h"
#include "platform/beeper.h"
#include "platform/sleepinhibitor.h"
#include "support/fakedisplaymodes.h"
#include "support/fakeeffects.h"
#include "support/fakemultimedia.h"
#include "support/fakeprinter.h"
#include "support/fakesettings.h"
#include "support/fakespeech.h"

namespace sarne {

/// Writes down what is announced.
class FakeAnnouncer final : public Announcer {
  public:
    explicit FakeAnnouncer(QStringList& texts) : texts_(texts) {}
    void announce(const QString& text) override { texts_ << text; }

  private:
    QStringList& texts_;
};

/// Counts the beeps.
class FakeBeeper final : public Beeper {
  public:
    int beeps = 0;
    void beep() override { ++beeps; }
};

/// Keeps the reasons it was given and whether the display is kept awake now.
class FakeSleepInhibitor final : public SleepInhibitor {
  public:
    QStringList reasons;
    bool inhibited = false;

    void inhibit(const QString& reason) override {
        reasons.append(reason);
        inhibited = true;
    }
    void release() override { inhibited = false; }
};

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
    QStringList announced;

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
                [this](QObject&) { return std::make_unique<FakeAnnouncer>(announced); }};
    }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
