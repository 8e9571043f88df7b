#pragma once

#include <QImage>

#include "../sounds/sound.h"
#include "film.h"

namespace sarne::disc {

constexpr int kFramesPerSecond = 20;

/// Writes the film with its sound, through ffmpeg, as an AVI or, where \a file ends so, a Matroska file
/// (.mkv). False when that fails; \a file is then as it was.
bool encodeFilm(const Film& film, const QImage& ground, const Sound& sound, const QString& file,
                const QString& scratch);

}  // namespace sarne::disc
