#include "app/systemplatform.h"

namespace sarne {

SystemPlatform::SystemPlatform() {
    music.setWait(MediaWait::DontWait);
    music.setLoop(MediaLoop::On);
}

PlatformParts SystemPlatform::parts() {
    return {settings,
            clock,
            effects,
            beeper,
            music,
            display,
            sleep,
            printer,
            speech,
            [] { return std::make_unique<MpvControl>(); },
            [](QObject& window) { return std::make_unique<AccessibleAnnouncer>(&window); },
            &askDesktop};
}

void SystemPlatform::prepare() {
    effects.prepare();
#ifdef SARNE_SPEECH
    speech.lookForVoice();
#endif
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
