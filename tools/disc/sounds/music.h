#pragma once

#include "effects.h"
#include "score.h"

namespace sarne::disc {

/// How long one pass of \a score is as music, in samples: a whole number of the synthesiser's blocks a beat,
/// so that every pass falls on the same sample.
int passFrames(const Score& score);

/// Plays the score through the synthesiser program and cuts one pass out of the middle, so that its first
/// sample follows its last as if the music went on: the tails of the end sound over the beginning. Effects of
/// the score are mixed in, round the end too. The largest deflection is \a peak decibels. A sound without
/// samples, and an error, when the synthesiser cannot be run. \a scratch is a folder for what is made on the
/// way.
Sound renderMusic(const Score& score, const QList<Effect>& effects, double peak, const QString& scratch,
                  const Place& place, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
