#include "plate.h"

#include <QPainter>

namespace sarne::disc {
namespace {

const QColor kTable(14, 58, 64);
const QColor kGlaze(244, 234, 210);
const QColor kRim(208, 143, 80);
const QColor kInk(43, 29, 18);
constexpr QPoint kCentre(720, 540);

}  // namespace

QImage plainPlate(const QString& name) {
    QImage picture(1440, 1080, QImage::Format_RGB32);
    picture.fill(kTable);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kRim, 8));
    painter.setBrush(kGlaze);
    for (const int radius : {500, 370}) painter.drawEllipse(kCentre, radius, radius);
    QFont font(QStringLiteral("Liberation Serif"));
    font.setPixelSize(76);
    painter.setFont(font);
    painter.setPen(kInk);
    painter.drawText(QRect(400, 320, 640, 440), Qt::AlignCenter | Qt::TextWordWrap, name);
    return picture;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
