#pragma once

#include <cstdint>
#include <span>

namespace sarne {

class Program;

/// Leads to a screen from anywhere, about the recipe \a id where it is about one. A dialog's door does not
/// return before the dialog is closed.
struct Door {
    const char* form;
    void (*open)(Program& program, std::int16_t id);
};

/// A door to every screen but the main one and the splash.
std::span<const Door> doors();
/// Goes back to the main screen by Escape, as far as the screens let it.
void goBackToMain(Program& program);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
