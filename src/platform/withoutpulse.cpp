// Stands in for pulseserver.cpp in a build without libpulse: no such server is found.
#include "platform/pulseserver.h"

namespace sarne {

bool pulseServerHasDevice() {
    return true;
}

const char* effectDrivers() {
    return "alsa,pipewire,jack,sndio,dsp";
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
