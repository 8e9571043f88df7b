#pragma once

#include <QPainter>
#include <QRegion>

#include "film.h"

namespace sarne::disc {

/// Draws the title, the captions and the tags of a moment. \a tagPlaces has a pixel place for each tag.
void drawLettering(QPainter& painter, const Film& film, double seconds, const QList<QPointF>& tagPlaces);
/// Where the lettering of two moments differs.
QRegion changedLettering(const Film& film, double before, double now, const QList<QPointF>& tagPlaces);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
