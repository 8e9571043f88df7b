#pragma once

#include "../sounds/effects.h"
#include "../sounds/voice.h"
#include "film.h"

namespace sarne::disc {

/// What is said in each scene of a script, spoken. Faults of the voice are reported.
QList<Sound> speakScenes(const Script& script, const Voices& voices, Problems& problems);

/// The film's sound: the speech at the beginning of each scene, the effects and, with \a music not empty, the
/// background music from that file.
Sound makeSoundtrack(const Film& film, const QList<Sound>& speech, const QList<Effect>& effects,
                     const QString& music, double musicFrom, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
