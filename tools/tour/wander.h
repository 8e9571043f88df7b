#pragma once

#include <QTextStream>

namespace sarne {

class Program;

/// Presses keys and clicks at chance, \a steps times, through whatever screens that leads to, and tells on
/// the way what the process takes; now and then it goes through the next of all doors of the program, so that
/// it comes to every screen. False when it did not, when the least memory taken in the last two thousand
/// steps is a hundredth more than in the two thousand after the first thousand, files or threads grew at all,
/// or the program ended.
bool wander(Program& program, int steps, unsigned seed, QTextStream& out);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
