#pragma once

#include "platform/endsignals.h"

namespace sarne {

class Program;

/// While it lives, no typed word is lost when the system ends the program by a signal, ends the session, or
/// takes its display away, in which case the toolkit ends the process at once. One at a time; \a program
/// outlives it.
class LastWords {
  public:
    explicit LastWords(Program& program);
    ~LastWords();
    LastWords(const LastWords&) = delete;
    LastWords& operator=(const LastWords&) = delete;

  private:
    EndSignals signals_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
