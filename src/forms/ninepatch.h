#pragma once

#include <QPainter>
#include <cmath>

#include "forms/picture.h"

namespace sarne {

/// \a place with its edges, as \a painter shows them, between pixels of the display: what is drawn up to such
/// an edge leaves no light line beside what is drawn from it on.
inline QRectF onPixels(const QPainter& painter, const QRectF& place) {
    const QTransform shown = painter.deviceTransform();
    const QRectF pixels = shown.mapRect(place);
    const QPointF from(std::round(pixels.left()), std::round(pixels.top()));
    const QPointF to(std::round(pixels.right()), std::round(pixels.bottom()));
    return shown.inverted().mapRect(QRectF(from, to));
}

/// Draws \a picture into \a place so that its border, an eighth of its side, becomes \a border units thick on
/// every side and only the middle parts stretch.
inline void drawNinePatch(QPainter& painter, const Picture& picture, const QRectF& place, double border) {
    const QPixmap source = picture.pixmap(picture.size());
    if (source.isNull()) return;
    const double cut = qMin(source.width(), source.height()) / 8.;
    const double fromX[] = {0, cut, source.width() - cut, double(source.width())};
    const double fromY[] = {0, cut, source.height() - cut, double(source.height())};
    const double toX[] = {place.left(), place.left() + border, place.right() - border, place.right()};
    const double toY[] = {place.top(), place.top() + border, place.bottom() - border, place.bottom()};
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            painter.drawPixmap(
                onPixels(painter, {QPointF(toX[column], toY[row]), QPointF(toX[column + 1], toY[row + 1])}),
                source,
                QRectF(QPointF(fromX[column], fromY[row]), QPointF(fromX[column + 1], fromY[row + 1])));
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
