#include "plate.h"

#include <QFontMetrics>
#include <QPainter>
#include <QRadialGradient>

#include "core/unbreakable.h"

namespace sarne::disc {
namespace {

const QColor kTable(14, 58, 64);
const QColor kShadow(7, 26, 29);
const QColor kGlaze(250, 244, 228);
const QColor kShade(214, 200, 168);
const QColor kRim(208, 143, 80);
const QColor kInk(43, 29, 18);
constexpr QPointF kCentre(720, 540);
constexpr QRect kName(420, 330, 600, 420);

void drawDisc(QPainter& painter, double radius, double lightAt) {
    QRadialGradient glaze(kCentre - QPointF(.3, .3) * radius, radius * 1.6);
    glaze.setColorAt(lightAt, kGlaze);
    glaze.setColorAt(1, kShade);
    painter.setBrush(glaze);
    painter.drawEllipse(kCentre, radius, radius);
}

/// The largest in which \a name, unbroken within its words, has room on the plate.
QFont fontFor(const QString& name) {
    QFont font(QStringLiteral("Liberation Serif"), -1, QFont::Bold);
    for (int size = 112; size > 40; size -= 4) {
        font.setPixelSize(size);
        const QRect needed = QFontMetrics(font).boundingRect(kName, Qt::TextWordWrap, name);
        if (needed.width() <= kName.width() && needed.height() <= kName.height()) break;
    }
    return font;
}

}  // namespace

QImage plainPlate(const QString& text) {
    const QString name = withUnbreakableBlanks(text);
    QImage picture(1440, 1080, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QRadialGradient table(QPointF(500, 300), 1300);
    table.setColorAt(0, kTable.lighter(135));
    table.setColorAt(1, kTable.darker(135));
    painter.fillRect(picture.rect(), table);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kShadow);
    painter.setOpacity(.5);
    painter.drawEllipse(kCentre + QPointF(22, 30), 500, 500);
    painter.setOpacity(1);
    drawDisc(painter, 500, .2);
    painter.setPen(QPen(kRim, 8));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(kCentre, 478, 478);
    painter.setPen(QPen(kShade, 4));
    drawDisc(painter, 378, .5);
    painter.setFont(fontFor(name));
    painter.setPen(kInk);
    painter.drawText(kName, Qt::AlignCenter | Qt::TextWordWrap, name);
    return picture;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
