#pragma once

namespace sarne {

class basSarne;

/// Switches the background music off where it is on, and the other way round, and stores that as the settings
/// screen does. Music that cannot be opened stays silent.
void switchMusic(basSarne& sarne);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
