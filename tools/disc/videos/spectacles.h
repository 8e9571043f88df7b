#pragma once

#include <QPainter>

#include "film.h"

namespace sarne::disc {

/// How far a spectacle may reach about its place, in centimetres.
QRectF reachOf(Spectacle kind);
/// Draws it around (0, 0), a centimetre long units, as it is \a seconds after its beginning and \a left
/// seconds before its end. The same moment always looks the same.
void drawSpectacle(QPainter& painter, Spectacle kind, double seconds, double left);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
