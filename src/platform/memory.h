#pragma once

namespace sarne {

/// What this process has of the machine's memory for itself, in bytes: without what it has mapped of files,
/// which the system may take back and read again. 0 when it cannot be told.
double ownMemory();

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
