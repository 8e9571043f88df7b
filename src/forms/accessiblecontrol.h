#pragma once

namespace sarne {

/// Teaches the accessibility layer what our controls are: their role, name, and that they can be pressed.
/// Called by the first control; further calls do nothing.
void registerAccessibleControls();

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
