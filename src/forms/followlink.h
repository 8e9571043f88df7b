#pragma once

#include "richtext/linkkey.h"

namespace sarne {

class basSarne;

/// Does what a link phrase does: opens the keyword or the video, or only beeps.
void followLink(basSarne& sarne, const LinkKey& key);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
