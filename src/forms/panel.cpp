#include "forms/panel.h"

#include "forms/colors.h"

namespace sarne {
namespace {

// In twips.
constexpr int kRounding = 100;
constexpr int kFrame = 45;
constexpr int kEdge = 30;

void paintRounded(QPainter& painter, const QRectF& place, const QPen& edge, QColor color, int alpha) {
    color.setAlpha(alpha);
    painter.setBrush(color);
    painter.setPen(edge);
    const double half = edge.style() == Qt::NoPen ? 0 : edge.widthF() / 2;
    painter.drawRoundedRect(place.adjusted(half, half, -half, -half), kRounding, kRounding);
}

}  // namespace

void paintPanel(QPainter& painter, const QRect& place, const Picture& ground) {
    QLinearGradient shade(place.topLeft(), place.bottomLeft());
    shade.setColorAt(0, colors::kTeal);
    shade.setColorAt(1, colors::kNight);
    painter.fillRect(place, shade);
    painter.save();
    painter.setOpacity(.35);
    ground.draw(painter, place, Fit::Cover);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colors::kNight, 2 * kFrame));
    painter.drawRect(place);
    painter.setPen(QPen(colors::kCopper, kFrame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(place).adjusted(kFrame / 2., kFrame / 2., -kFrame / 2., -kFrame / 2.));
}

void paintPlate(QPainter& painter, const QRectF& place) {
    paintRounded(painter, place, QPen(colors::kCopper, kEdge), colors::kTeal, 232);
}

void paintPaper(QPainter& painter, const QRectF& place) {
    paintRounded(painter, place, QPen(colors::kCopper, kEdge), colors::kPaper, 255);
}

void paintRowFrame(QPainter& painter, const QRect& place) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colors::kInk, kFrame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(place).adjusted(kFrame / 2., kFrame / 2., -kFrame / 2., -kFrame / 2.));
}

void paintSheet(QPainter& painter, const QRectF& place) {
    paintRounded(painter, place, Qt::NoPen, colors::kPaper, 150);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
