#pragma once

#include "cookbook.h"

namespace sarne::disc {

/// What kniha.txt says of the book; what it leaves out, or where there is none, is as BookFacts begins.
BookFacts readFacts(const ContentFolder& folder, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
