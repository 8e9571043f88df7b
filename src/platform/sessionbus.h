#pragma once

namespace sarne {

/// Whether a session bus runs. Asking for one that does not would start programs, and wait for them.
bool sessionBusRuns();

/// Where none runs and there is nothing to start one with, says so to the libraries that will ask for it:
/// they would copy this process, and wait for the copy, to find that out. Before the toolkit begins.
void declineMissingBus();

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
