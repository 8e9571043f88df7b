#pragma once

namespace sarne {

/// Lets pictures go back to the system when they are freed, however large they are. Left to itself the
/// allocator would, after the first large one, keep the room of the next ones, and each thread would keep a
/// heap of its own that is seldom full. To be called before there are pictures or threads.
void giveMemoryBack();

/// What this process has of the machine's memory for itself, in bytes: without what it has mapped of files,
/// which the system may take back and read again. 0 when it cannot be told.
double ownMemory();

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
