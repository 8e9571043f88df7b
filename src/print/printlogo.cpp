#include "print/printlogo.h"

#include <QPainter>
#include <QPainterPath>

#include "forms/colors.h"
#include "forms/resources.h"

namespace sarne {
namespace {

constexpr QSize kDrawnSize(640, 400);

QPainterPath fish() {
    QPainterPath path(QPointF(60, 215));
    path.cubicTo(150, 80, 360, 60, 480, 195);
    path.lineTo(590, 95);
    path.cubicTo(560, 170, 560, 250, 590, 325);
    path.lineTo(480, 225);
    path.cubicTo(360, 350, 150, 340, 60, 215);
    return path;
}

/// A fish in the colours of the program, on white paper.
QImage drawnLogo() {
    QImage image(kDrawnSize, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colors::kTeal, 14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(colors::kCopper.lighter(150));
    painter.drawPath(fish());
    painter.drawArc(QRect(150, 140, 90, 150), -60 * 16, 120 * 16);
    for (int scale = 0; scale < 3; ++scale)
        painter.drawArc(QRect(250 + scale * 65, 165, 50, 95), -60 * 16, 120 * 16);
    painter.setBrush(colors::kTeal);
    painter.drawEllipse(QPoint(130, 190), 13, 13);
    return image;
}

}  // namespace

Picture printLogo(const Resources& resources) {
    const Picture logo = resources.picture(QStringLiteral("LogoTisk"));
    // Decoded once, so that a file holds it once.
    return Picture::fromImage(logo.isNull() ? drawnLogo() : logo.image());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
