#pragma once

#include "film.h"

namespace sarne::disc {

/// Times of a scene around its speech, seconds.
constexpr double kBeforeSpeech = 0.35;
constexpr double kAfterSpeech = 0.6;

/// Gives every line of the script its time and what it moves. \a speech has the length of what is said in
/// each scene, seconds. What is not there, jumps or does not fit its speech is reported with its line.
Film directFilm(const Script& script, const Cast& cast, const QList<double>& speech, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
