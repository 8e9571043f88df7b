#pragma once

#include "platform/beeper.h"

namespace sarne {

/// Counts the beeps.
class FakeBeeper final : public Beeper {
  public:
    int beeps = 0;
    void beep() override { ++beeps; }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
