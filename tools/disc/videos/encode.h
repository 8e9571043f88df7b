#pragma once

#include "../sounds/sound.h"
#include "film.h"
#include "projector.h"

namespace sarne::disc {

constexpr int kFramesPerSecond = 25;

/// Writes a film with its sound, through ffmpeg, as an AVI or, where \a file ends so, a Matroska file (.mkv).
/// It can be entered at its chapters. False when that fails; \a file is then as it was.
bool encodeFilm(const Film& film, Projector& projector, const Sound& sound, const QString& file,
                const QString& scratch);

/// Converts any film that ffmpeg reads, \a source, to the size and the form that \a file ends in. False when
/// that fails; \a file is then as it was.
bool convertFilm(const QString& source, const QString& file, const QString& scratch);

/// Writes the chapters beside a film: a line for each, the seconds, a tab, the title. False when that fails.
bool writeChapters(const Film& film, const QString& file);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
