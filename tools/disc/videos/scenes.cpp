#include <QFile>
#include <cmath>

#include "draw.h"

namespace sarne::disc {
namespace {

QImage canvas() {
    return {kFilmWidth, kFilmHeight, QImage::Format_RGB32};
}

/// Planks with their grain across \a area.
void planks(QPainter& painter, const QRectF& area, int rows, const QColor& light, const QColor& dark) {
    const double high = area.height() / rows;
    for (int row = 0; row < rows; ++row) {
        const QRectF plank(area.left(), area.top() + row * high, area.width(), high);
        painter.fillRect(plank, between(light, dark, 0.25 + 0.5 * scatter(row)));
        painter.setPen(QPen(QColor(0, 0, 0, 26), 1.3));
        for (int line = 0; line < 6; ++line) {
            const double y = plank.top() + high * (line + 0.4 + 0.4 * scatter(line, row)) / 6;
            QPainterPath grain(QPointF(plank.left(), y));
            for (int x = 0; x <= 8; ++x)
                grain.lineTo(plank.left() + plank.width() * x / 8,
                             y + 5 * (scatter(x + line * 9, row + 3) - 0.5));
            painter.drawPath(grain);
        }
        painter.setPen(QPen(QColor(0, 0, 0, 90), 2));
        painter.drawLine(plank.bottomLeft(), plank.bottomRight());
    }
    painter.setPen(Qt::NoPen);
}

/// The lamp's light from the left, dusk towards the right.
void lampLight(QPainter& painter) {
    QRadialGradient light(QPointF(120, 60), 860);
    light.setColorAt(0, QColor(255, 214, 140, 120));
    light.setColorAt(0.45, QColor(255, 190, 110, 26));
    light.setColorAt(1, QColor(11, 34, 38, 190));
    painter.fillRect(0, 0, kFilmWidth, kFilmHeight, light);
}

void table(QPainter& painter) {
    planks(painter, QRectF(0, 0, kFilmWidth, kFilmHeight), 5, QColor(104, 64, 38), QColor(70, 42, 26));
}

void board(QPainter& painter) {
    table(painter);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(70, 110, 660, 370), 34, 34);
    dropShadow(painter, shape, {16, 20}, 110);
    painter.setClipPath(shape);
    planks(painter, QRectF(70, 110, 660, 370), 4, QColor(222, 176, 116), QColor(196, 144, 88));
    painter.setClipping(false);
    painter.setPen(QPen(QColor(255, 226, 170, 150), 3));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shape);
    painter.setPen(QPen(QColor(120, 76, 40, 120), 3));
    painter.drawRoundedRect(QRectF(88, 128, 624, 334), 24, 24);
    lampLight(painter);
}

void cloth(QPainter& painter) {
    table(painter);
    painter.fillRect(QRectF(0, 150, kFilmWidth, 450), QColor(238, 226, 200));
    for (int x = 0; x < 20; ++x) painter.fillRect(QRectF(x * 80, 150, 26, 450), QColor(30, 92, 98, 46));
    for (int y = 0; y < 7; ++y)
        painter.fillRect(QRectF(0, 170 + y * 72, kFilmWidth, 24), QColor(30, 92, 98, 46));
    lampLight(painter);
}

/// The wall with tiles, the evening window and the stove's top.
void stove(QPainter& painter) {
    painter.fillRect(0, 0, kFilmWidth, kFilmHeight, QColor(150, 112, 76));
    for (int row = 0; row < 8; ++row)
        for (int column = 0; column < 10; ++column) {
            const QRectF tile(column * 84 - (row % 2) * 42, row * 60, 80, 56);
            painter.setBrush(
                between(QColor(212, 180, 134), QColor(186, 150, 106), scatter(row * 10 + column)));
            painter.setPen(Qt::NoPen);
            painter.drawRoundedRect(tile, 4, 4);
        }
    QLinearGradient evening(0, 70, 0, 300);
    evening.setColorAt(0, QColor(14, 58, 64));
    evening.setColorAt(1, QColor(196, 116, 66));
    painter.setBrush(QColor(74, 44, 26));
    painter.drawRect(QRectF(560, 56, 220, 270));
    painter.setBrush(evening);
    for (const double x : {574.0, 676.0}) painter.drawRect(QRectF(x, 70, 90, 242));
    QLinearGradient top(0, 470, 0, 600);
    top.setColorAt(0, QColor(64, 56, 52));
    top.setColorAt(1, QColor(24, 22, 24));
    painter.fillRect(QRectF(0, 470, kFilmWidth, 130), top);
    painter.fillRect(QRectF(0, 470, kFilmWidth, 5), QColor(208, 143, 80));
    lampLight(painter);
}

void reeds(QPainter& painter, double from, double to, int count) {
    for (int i = 0; i < count; ++i) {
        const double x = from + (to - from) * scatter(i, 21);
        const double high = 70 + 110 * scatter(i, 22);
        const double lean = 26 * (scatter(i, 23) - 0.5);
        painter.setPen(QPen(QColor(6, 22, 24), 3.2, Qt::SolidLine, Qt::RoundCap));
        QPainterPath stalk(QPointF(x, 600));
        stalk.quadTo({x, 600 - high * 0.6}, {x + lean, 600 - high});
        painter.drawPath(stalk);
        if (i % 3 != 0) continue;
        painter.setPen(QPen(QColor(40, 22, 12), 8, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(x + lean, 600 - high), QPointF(x + lean, 572 - high));
    }
    painter.setPen(Qt::NoPen);
}

/// The cottage on the far bank and its lit windows, in the sky and in the water.
void cottage(QPainter& painter) {
    painter.setBrush(QColor(10, 26, 28));
    painter.drawPolygon(QPolygonF({{96, 292}, {96, 244}, {146, 206}, {232, 206}, {272, 244}, {272, 292}}));
    painter.setBrush(QColor(255, 202, 110));
    for (const double x : {120.0, 168.0, 222.0}) {
        painter.drawRect(QRectF(x, 254, 22, 24));
        softSpot(painter, {x + 11, 266}, 56, 46, QColor(255, 196, 104, 90));
        softSpot(painter, {x + 11, 356}, 13, 74, QColor(255, 196, 104, 120));
    }
}

void pond(QPainter& painter) {
    QLinearGradient sky(0, 0, 0, 300);
    sky.setColorAt(0, QColor(11, 34, 46));
    sky.setColorAt(0.55, QColor(30, 84, 92));
    sky.setColorAt(1, QColor(226, 146, 82));
    painter.fillRect(0, 0, kFilmWidth, 300, sky);
    QLinearGradient water(0, 290, 0, 600);
    water.setColorAt(0, QColor(206, 130, 76));
    water.setColorAt(0.3, QColor(40, 92, 96));
    water.setColorAt(1, QColor(8, 28, 34));
    painter.fillRect(0, 290, kFilmWidth, 310, water);
    softSpot(painter, {610, 276}, 190, 120, QColor(255, 190, 110, 130));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(9, 28, 30));
    painter.drawPath(smoothPath({{-60, 300},
                                 {0, 250},
                                 {110, 262},
                                 {240, 236},
                                 {330, 262},
                                 {430, 272},
                                 {520, 258},
                                 {640, 274},
                                 {730, 246},
                                 {870, 264},
                                 {870, 302}},
                                true));
    cottage(painter);
    for (int i = 0; i < 70; ++i) {
        painter.setBrush(QColor(250, 214, 160, 16 + static_cast<int>(36 * scatter(i, 12))));
        painter.drawEllipse(QPointF(kFilmWidth * scatter(i, 10), 306 + 280 * scatter(i, 11)),
                            20 + 60 * scatter(i, 13), 1.3);
    }
    reeds(painter, -10, 150, 26);
    reeds(painter, 660, 810, 24);
}

}  // namespace

const QStringList& sceneNames() {
    static const QStringList names{QStringLiteral("prkno"), QStringLiteral("stůl"), QStringLiteral("sporák"),
                                   QStringLiteral("rybník")};
    return names;
}

QImage drawScene(const QString& name, const QString& art) {
    const QString splash = art + QStringLiteral("/rendered/pozadi/uvod.jpg");
    QImage picture = name == QStringLiteral("rybník") ? QImage(splash) : QImage();
    if (!picture.isNull())
        return picture.scaled(kFilmWidth, kFilmHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_RGB32);
    QImage image = canvas();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (name == QStringLiteral("rybník"))
        pond(painter);
    else if (name == QStringLiteral("stůl"))
        cloth(painter);
    else if (name == QStringLiteral("sporák"))
        stove(painter);
    else
        board(painter);
    return image;
}

}  // namespace sarne::disc
