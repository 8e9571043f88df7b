#include "screens/browse/ground.h"

#include "forms/colors.h"

namespace sarne {
namespace {

constexpr int kRounding = 150;  // of a plate's corners, twips

void paintRounded(QPainter& painter, const QRectF& place, QColor color, int alpha) {
    color.setAlpha(alpha);
    painter.setBrush(color);
    painter.setPen(QPen(colors::kCopper, 20));
    painter.drawRoundedRect(place, kRounding, kRounding);
}

}  // namespace

void paintPlate(QPainter& painter, const QRectF& place) {
    paintRounded(painter, place, colors::kTeal, 232);
}

void paintPaper(QPainter& painter, const QRectF& place) {
    paintRounded(painter, place, colors::kPaper, 246);
}

void paintSheet(QPainter& painter, const QRectF& place) {
    QColor color = colors::kPaper;
    color.setAlpha(150);
    painter.setBrush(color);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(place, kRounding / 2., kRounding / 2.);
}

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
