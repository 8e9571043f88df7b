#pragma once

#include <QByteArray>

namespace sarne {

/// The sound of a kitchen timer that is over, as a WAV file: three strokes of a small bell.
QByteArray ringWave();

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
