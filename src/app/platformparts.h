#pragma once

#include <functional>
#include <memory>

#include "core/clock.h"
#include "platform/announcer.h"
#include "platform/beeper.h"
#include "platform/desktopwishes.h"
#include "platform/displaymodes.h"
#include "platform/effectplayer.h"
#include "platform/multimediacontrol.h"
#include "platform/printer.h"
#include "platform/settingsstore.h"
#include "platform/sleepinhibitor.h"
#include "platform/speech.h"

namespace sarne {

/// What the operating system gives a run. Real in main(), stand-ins in tests; all of it outlives the program
/// object.
struct PlatformParts {
    const SettingsStore& settings;
    const Clock& clock;
    EffectPlayer& effects;
    Beeper& beeper;
    MultimediaControl& music;
    DisplayModes& display;
    SleepInhibitor& sleep;
    Printer& printer;
    Speech& speech;
    /// Makes a player for a video. May be empty: then there are no videos.
    std::function<std::unique_ptr<MultimediaControl>()> makePlayer;
    /// Makes the announcer of the program's window.
    std::function<std::unique_ptr<Announcer>(QObject&)> makeAnnouncer;
    /// Hands over what the desktop knows of the user's eyes, now and whenever it changes. May be empty.
    std::function<void(QObject&, const std::function<void(DesktopWishes)>&)> askDesktop = {};
};

/// Where a run finds what belongs to it, as native paths.
struct Folders {
    QString program;  ///< the executable's folder, with Sarne.drc, KOp.bj and Sarne.rcc
    QString
        userData;  ///< where the user's own copy of the database goes when the program's folder is read-only
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
