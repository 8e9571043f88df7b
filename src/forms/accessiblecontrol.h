#pragma once

namespace sarne {

/// Teaches the accessibility layer what the window, its forms and their controls are: their roles, names,
/// texts, tables and the parts within them. Called by the window; further calls do nothing.
void registerAccessibleControls();

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
