#pragma once

#include "cookbook.h"
#include "textfile.h"

namespace sarne::disc {

/// Reads and checks the whole content: every rule but the spelling.
Cookbook loadCookbook(const ContentFolder& folder, Problems& problems);

/// Checks the typography and the spelling of every text that a person reads.
void proofread(const ContentFolder& folder, const Cookbook& book, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
