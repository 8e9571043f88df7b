#include "app/systemplatform.h"

#include <QTimer>
#include <chrono>

#include "app/displayquestions.h"

namespace sarne {

SystemPlatform::SystemPlatform() {
    music.setWait(MediaWait::DontWait);
    music.setLoop(MediaLoop::On);
    music.hold();
    if (storedResolution(settings) != kDesignResolution) display.prepare();
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

void SystemPlatform::prepareLater() {
    using namespace std::chrono_literals;
    // What the user sees and first does comes before what is heard: the first turn with nothing else to do is
    // behind the first picture.
    QTimer::singleShot(0, &music, [this] {
        QTimer::singleShot(1s, &music, [this] {
            effects.prepare();
            music.release();
        });
    });
#ifdef SARNE_SPEECH
    // This may start a server with its synthesizers.
    QTimer::singleShot(3s, &speech, [this] { speech.lookForVoice(); });
#endif
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
