#include <algorithm>
#include <cmath>

#include "draw.h"

namespace sarne::disc {
namespace {

QLinearGradient steel() {
    QLinearGradient paint(0, -18, 0, 16);
    paint.setColorAt(0, QColor(246, 244, 236));
    paint.setColorAt(0.5, QColor(176, 182, 184));
    paint.setColorAt(1, QColor(226, 226, 222));
    return paint;
}

QLinearGradient wood(double top, double bottom) {
    QLinearGradient paint(0, top, 0, bottom);
    paint.setColorAt(0, QColor(158, 98, 54));
    paint.setColorAt(0.4, QColor(122, 70, 36));
    paint.setColorAt(1, QColor(74, 40, 20));
    return paint;
}

void handle(QPainter& painter, double from, double length, double half) {
    QPainterPath grip;
    grip.addRoundedRect(QRectF(from, -half, length, 2 * half), half, half);
    dropShadow(painter, grip);
    painter.setBrush(wood(-half, half));
    painter.drawPath(grip);
    painter.setBrush(QColor(214, 160, 90));
    for (const double at : {0.25, 0.7}) painter.drawEllipse(QPointF(from + length * at, 0), 2.6, 2.6);
}

QPainterPath capsule(QPointF from, QPointF to, double half) {
    QPainterPath line(from);
    line.lineTo(to);
    QPainterPathStroker stroker;
    stroker.setWidth(2 * half);
    stroker.setCapStyle(Qt::RoundCap);
    return stroker.createStroke(line);
}

}  // namespace

/// The tip at the origin, the handle to the right, the edge below.
void drawKnife(QPainter& painter, const Pose&) {
    painter.setPen(Qt::NoPen);
    QPainterPath blade(QPointF(0, 0));
    blade.cubicTo({40, 10}, {90, 13}, {178, 12});
    blade.lineTo(178, -14);
    blade.cubicTo({110, -15}, {50, -12}, {0, 0});
    dropShadow(painter, blade);
    painter.setBrush(steel());
    painter.drawPath(blade);
    painter.setPen(QPen(QColor(255, 255, 255, 180), 1.4));
    painter.drawLine(QPointF(30, 6), QPointF(176, 9));
    painter.setPen(Qt::NoPen);
    handle(painter, 176, 104, 12);
}

/// The teeth at the origin, the handle to the right.
void drawScaler(QPainter& painter, const Pose&) {
    painter.setPen(Qt::NoPen);
    handle(painter, 66, 110, 11);
    QPainterPath plate;
    plate.addRoundedRect(QRectF(-6, -26, 78, 40), 12, 12);
    dropShadow(painter, plate);
    painter.setBrush(steel());
    painter.drawPath(plate);
    for (int i = 0; i < 6; ++i)
        painter.drawPolygon(QPolygonF({{-4.0 + i * 12, 12}, {2.0 + i * 12, 25}, {8.0 + i * 12, 12}}));
    painter.setBrush(QColor(70, 74, 76, 150));
    for (int i = 0; i < 4; ++i) painter.drawEllipse(QPointF(10 + i * 16, -7), 5, 9);
}

/// The points of the tines at the origin, the handle to the right.
void drawFork(QPainter& painter, const Pose&) {
    painter.setPen(Qt::NoPen);
    QPainterPath fork;
    fork.setFillRule(Qt::WindingFill);
    for (const double y : {-11.0, -3.7, 3.7, 11.0}) fork.addPath(capsule({2, y}, {48, y}, 1.9));
    fork.addPath(smoothPath({{44, -13}, {70, -10}, {92, -4}, {92, 4}, {70, 10}, {44, 13}}, true));
    fork.addPath(capsule({90, 0}, {250, 0}, 5));
    dropShadow(painter, fork);
    painter.setBrush(steel());
    painter.drawPath(fork);
}

/// A ladle seen from the side, its lip at the origin; "proud" is how long it pours, in pixels.
void drawLadle(QPainter& painter, const Pose& pose) {
    painter.setPen(Qt::NoPen);
    const double stream = pose.of(QStringLiteral("proud"));
    if (stream > 0) {
        QLinearGradient gold(-5, 0, 8, 0);
        gold.setColorAt(0, QColor(246, 214, 128, 220));
        gold.setColorAt(1, QColor(214, 160, 60, 220));
        painter.setBrush(gold);
        QPainterPath fall(QPointF(-4, 2));
        fall.cubicTo({-10, 20}, {-9, 30}, {-9, stream});
        fall.lineTo(-2, stream);
        fall.cubicTo({-2, 30}, {2, 20}, {10, 4});
        painter.drawPath(fall);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(150, 152, 150), 9, Qt::SolidLine, Qt::RoundCap));
    QPainterPath bent(QPointF(76, 4));
    bent.cubicTo({100, -60}, {120, -110}, {176, -150});
    painter.drawPath(bent);
    painter.setPen(QPen(QColor(240, 240, 234), 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(bent);
    painter.setPen(Qt::NoPen);
    QPainterPath cup(QPointF(-2, 0));
    cup.cubicTo({2, 62}, {72, 62}, {80, 0});
    cup.closeSubpath();
    painter.setBrush(steel());
    painter.drawPath(cup);
    painter.setBrush(QColor(222, 176, 84));
    painter.drawEllipse(QRectF(-2, -8, 82, 16));
}

/// A hand from the right, thumb up, the finger tips at the origin.
void drawHand(QPainter& painter, const Pose&) {
    painter.setPen(Qt::NoPen);
    QPainterPath hand;
    hand.setFillRule(Qt::WindingFill);
    hand.addPath(smoothPath(
        {{46, -26}, {86, -36}, {132, -30}, {176, -24}, {176, 26}, {130, 36}, {80, 34}, {44, 22}}, true));
    hand.addPath(capsule({60, -24}, {6, -30}, 10));
    dropShadow(painter, hand, {9, 13}, 60);
    QLinearGradient skin(0, -44, 0, 46);
    skin.setColorAt(0, QColor(250, 214, 180));
    skin.setColorAt(1, QColor(214, 154, 116));
    for (int i = 3; i >= 0; --i) {
        const double y = -10 + i * 14;
        const QPainterPath finger = capsule({72, y * 0.8}, {i == 3 ? 20.0 : 4.0 + i * 4, y}, 8.6);
        painter.setBrush(QColor(176, 112, 80));
        painter.drawPath(finger.translated(1, 3));
        painter.setBrush(skin);
        painter.drawPath(finger);
        painter.setBrush(QColor(255, 232, 214));
        painter.drawEllipse(QPointF(i == 3 ? 17.0 : 1.0 + i * 4, y - 1), 4, 4.4);
    }
    painter.setBrush(skin);
    painter.drawPath(hand);
    QPainterPath cuff;
    cuff.addRoundedRect(QRectF(166, -34, 34, 70), 8, 8);
    painter.setBrush(QColor(244, 238, 222));
    painter.drawPath(cuff);
    QLinearGradient cloth(0, -30, 0, 34);
    cloth.setColorAt(0, QColor(34, 104, 110));
    cloth.setColorAt(1, QColor(14, 58, 64));
    painter.setBrush(cloth);
    painter.drawRect(QRectF(194, -30, 500, 62));
}

/// Water from a tap that falls onto the origin; "síla" from 0 to 1.
void drawWater(QPainter& painter, const Pose& pose) {
    const double flow = pose.of(QStringLiteral("síla"));
    if (flow <= 0) return;
    painter.setPen(Qt::NoPen);
    QLinearGradient paint(-16, 0, 16, 0);
    paint.setColorAt(0, QColor(214, 238, 246, 170));
    paint.setColorAt(0.4, QColor(160, 206, 222, 120));
    paint.setColorAt(1, QColor(226, 246, 252, 160));
    painter.setBrush(paint);
    painter.drawPath(smoothPath({{-13 * flow, -700},
                                 {-11 * flow, -60},
                                 {-30 * flow, 4},
                                 {0, 14},
                                 {30 * flow, 4},
                                 {11 * flow, -60},
                                 {13 * flow, -700}},
                                true));
    painter.setBrush(QColor(226, 244, 250, 190));
    for (int i = 0; i < 26; ++i) {
        const double age = std::fmod(pose.seconds * 1.7 + scatter(i), 1.0);
        const double way = (scatter(i, 1) - 0.5) * 190 * age;
        painter.drawEllipse(QPointF(way, -52 * age * (1 - age) * (2 + scatter(i, 2)) + 34 * age),
                            3.4 * (1 - age) + 1, 3 * (1 - age) + 1);
    }
}

/// Scales that fly off around the origin; "síla" from 0 to 1.
void drawFlyingScales(QPainter& painter, const Pose& pose) {
    const double strength = pose.of(QStringLiteral("síla"));
    for (int i = 0; i < 22 && strength > 0; ++i) {
        const double age = std::fmod(pose.seconds * 1.15 + scatter(i), 1.0);
        const QPointF at((scatter(i, 1) - 0.25) * 200 * age,
                         -170 * age * (1 - age) * (0.5 + scatter(i, 2)) + 90 * age);
        painter.save();
        painter.translate(at);
        painter.rotate(360 * scatter(i, 3) + 400 * age);
        painter.setPen(QPen(QColor(92, 62, 22, 200), 1.2));
        painter.setBrush(QColor(255, 246, 214, static_cast<int>(250 * strength * (1 - age))));
        painter.drawEllipse(QPointF(0, 0), 7.5, 5.6);
        painter.restore();
    }
}

/// Rings on water around the origin; "síla" from 0 to 1 lets them spread.
void drawRipples(QPainter& painter, const Pose& pose) {
    const double spread = pose.of(QStringLiteral("síla"));
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < 4 && spread > 0; ++i) {
        const double own = std::clamp(spread * 1.5 - i * 0.16, 0.0, 1.0);
        if (own <= 0) continue;
        painter.setPen(QPen(QColor(250, 224, 176, static_cast<int>(170 * (1 - own))), 2.6));
        painter.drawEllipse(QPointF(0, 0), 20 + 190 * own, 5 + 40 * own);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(240, 232, 214, 210));
    const double up = std::clamp(spread * 2.4, 0.0, 1.0);
    for (int i = 0; i < 16 && spread > 0 && up < 1; ++i)
        painter.drawEllipse(
            QPointF((scatter(i) - 0.5) * 130 * up, -90 * (0.4 + scatter(i, 1)) * 4 * up * (1 - up)), 3.2,
            3.6);
}

}  // namespace sarne::disc
