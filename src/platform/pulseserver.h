#pragma once

namespace sarne {

/// Whether the desktop's sound server has a device to play on. True also where no such server is found: then
/// sound goes other ways. Waits for the server's answer, half a second at most.
bool pulseServerHasDevice();

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
