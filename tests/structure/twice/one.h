#pragma once

namespace sarne::disc {

struct Spot {
    int one = 1;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
