#pragma once

#include <QStringList>

namespace sarne {

class Stage;

namespace test {

/// All that somebody can notice of what \a stage shows now, one line a thing: the forms; every control with
/// its class, its place in twips, whether it is hidden or disabled or has the keyboard, what a screen reader
/// is told of it and of its parts, its pointer; and whatever it paints: texts with font and colour, pictures
/// and shapes, in pixels from its own corner; the timers that run. The same in every build and run.
QStringList record(Stage& stage);

/// Where the display shows something else than what would be painted now: nobody has said that it changed.
QStringList stale(Stage& stage);

}  // namespace test
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
