#pragma once

#include <QByteArray>

#include "score.h"

namespace sarne::disc {

/// The score as a MIDI file, played \a passes times without a break. Every pass has the same small human
/// unevenness. A beat takes \a beatMicroseconds.
QByteArray midiFile(const Score& score, int passes, int beatMicroseconds);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
