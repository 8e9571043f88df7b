#pragma once

#include "workshop.h"

namespace sarne::disc {

/// Makes the picture database with the grounds of six screens, and copies the grounds for wide screens, which
/// the art keeps as "NAME-siroke.jpg", to "siroke/NAME.jpg" beside it.
void makeScreenPictures(Workshop& shop);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
