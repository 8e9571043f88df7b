#pragma once

#include "script.h"

namespace sarne::disc {

/// The times of a scene's lines, in seconds from its beginning, and how long it lasts.
struct Schedule {
    QList<double> begins;
    QList<double> ends;
    double seconds = 0;
};

/// Lines follow one another unless they are "zároveň"; "do konce věty" fills what the others leave of the
/// speech. A scene that is much longer or shorter than its \a speech is reported.
Schedule scheduleOf(const Scene& scene, double speech, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
