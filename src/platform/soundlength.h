#pragma once

#include <QByteArray>

namespace sarne {

/// How long the sound file \a image plays, in milliseconds: a WAV, an Ogg with Vorbis or Opus, or a FLAC. 0
/// when it is none of them.
qint64 soundLength(const QByteArray& image);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
