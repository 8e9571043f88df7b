#pragma once

#include "workshop.h"

namespace sarne::disc {

/// Where there is neither art nor a finished disc to take the screens from: draws place-holders for every
/// picture that the program asks for by name (plain grounds, signs with words on them, a main screen with a
/// labelled field for each of its things) into the scratch folder and lets \a shop use them.
void drawArtIfNeeded(Workshop& shop);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
