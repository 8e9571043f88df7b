#pragma once

#include <QByteArray>

#include "score.h"

namespace sarne::disc {

/// What of a piece that is played over and over goes before and behind one whole pass of it, in beats: the
/// end of the pass before and the beginning of the next. Both are shorter than the stretches they come of.
struct Surroundings {
    double before = 0;
    double behind = 0;
};

/// The score as a MIDI file: one pass, with its surroundings. What is in two passes has the same small human
/// unevenness in both. A beat takes as many microseconds as \a beatMicroseconds says of the score's paces.
QByteArray midiFile(const Score& score, const Surroundings& around, const QList<int>& beatMicroseconds);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
