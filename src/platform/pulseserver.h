#pragma once

namespace sarne {

/// Whether the desktop's sound server has a device to play on. True also where no such server is found: then
/// sound goes other ways; not where there is one that does not answer. Waits half a second at most.
bool pulseServerHasDevice();

/// The ways to a device that SDL may try, separated by commas; nullptr for all, in its own order. Those that
/// it would not survive without a device are there only where pulseServerHasDevice() can tell.
const char* effectDrivers();

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
