#pragma once

namespace sarne {

/// Lets the room of freed things, pictures above all, go back to the system, and keeps small things that stay
/// from holding whole pages between others that have gone. To be called before there are pictures or threads.
/// Only executables link this.
void giveMemoryBack();

/// What was asked for and not freed, in bytes; before it is told, all that is free goes back to the system.
double heldMemory();

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
