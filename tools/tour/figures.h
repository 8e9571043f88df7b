#pragma once

class QTextStream;

namespace sarne {

class Tour;

/// Measures what a user waits for at every step, until it is painted: a frame of a thing that moves under the
/// mouse, a menu, a step in a list, a step to the next photo. Writes the processor time of the program's own
/// thread to \a out, which a busy machine changes little. False when the middle one of any takes longer than
/// a display shows a picture.
bool figures(Tour& tour, QTextStream& out);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
