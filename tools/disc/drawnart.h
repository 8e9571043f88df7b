#pragma once

#include "workshop.h"

namespace sarne::disc {

/// Where there is neither art nor a finished disc to take the screens from: draws every picture that the
/// program asks for by name, from kresby/kresby.svg, and a main screen with a card for each of its things as
/// kresby/hlavni.txt places them, into the scratch folder and lets \a shop use them.
void drawArtIfNeeded(Workshop& shop);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
