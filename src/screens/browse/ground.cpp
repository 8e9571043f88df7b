#include "screens/browse/ground.h"

namespace sarne {

void Ground::draw(QPainter& painter, const QRectF& place, const std::function<void(QPainter&)>& paint) {
    const QSize size = painter.combinedTransform().mapRect(place).toAlignedRect().size();
    if (size.isEmpty()) return;
    if (kept_.size() != size) {
        QImage image(size, QImage::Format_RGB32);
        QPainter inside(&image);
        inside.setRenderHints(painter.renderHints());
        inside.scale(double(size.width()) / place.width(), double(size.height()) / place.height());
        inside.translate(-place.topLeft());
        paint(inside);
        inside.end();
        kept_ = Picture::fromImage(image);
    }
    kept_.draw(painter, place);
}

void updatePart(TwipWidget& widget, const QRect& twips) {
    widget.update(
        QRect(widget.toPixels(twips.topLeft()), widget.toPixels(twips.bottomRight())).adjusted(-1, -1, 1, 1));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
