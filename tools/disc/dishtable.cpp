#include "dishtable.h"

#include <QLineF>
#include <QPainter>
#include <QtMath>
#include <algorithm>

namespace sarne::disc {
namespace {

/// Width of the camera's picture plane, in the unit of its lens.
constexpr double kSensor = 36;

}  // namespace

DishCamera::DishCamera(const DishLine& line)
    : turn_(qDegreesToRadians(line.value(QStringLiteral("turn"), 0))),
      high_(qDegreesToRadians(line.value(QStringLiteral("high"), 46))),
      far_(line.value(QStringLiteral("far"), 13)),
      lens_(line.value(QStringLiteral("lens"), 58)),
      aim_(line.point(QStringLiteral("at"), {0, 0})),
      up_(line.value(QStringLiteral("up"), .3)) {}

QPointF DishCamera::operator()(const Spot& spot) const {
    const double x = spot.x - aim_.x(), y = spot.y - aim_.y(), z = spot.z - up_;
    const double s = qSin(turn_), c = qCos(turn_), hs = qSin(high_), hc = qCos(high_);
    const double right = x * c + y * s;
    const double above = -x * s * hs + y * c * hs + z * hc;
    const double depth = std::max(1.0, far_ - x * s * hc + y * c * hc - z * hs);
    const double scale = lens_ / kSensor * kSketchSize.width() / depth;
    return {kSketchSize.width() / 2 + right * scale, kSketchSize.height() / 2 - above * scale};
}

Outline ellipse(double rx, double ry, int corners) {
    Outline points;
    for (int i = 0; i < corners; ++i)
        points << QPointF(rx * qCos(2 * M_PI * i / corners), ry * qSin(2 * M_PI * i / corners));
    return points;
}

Outline box(double length, double width) {
    const double x = length / 2, y = width / 2, c = std::min(x, y) * .12;
    return {{-x + c, -y}, {x - c, -y}, {x, -y + c}, {x, y - c},
            {x - c, y},   {-x + c, y}, {-x, y - c}, {-x, -y + c}};
}

Outline fishOutline(double length, double width) {
    const double l = length / 2, w = width / 2;
    return {{-l, 0},           {-l * .85, w * .55}, {-l * .45, w},      {l * .1, w * .9},
            {l * .55, w * .3}, {l * .75, w * .2},   {l, w * .95},       {l * .9, 0},
            {l, -w * .95},     {l * .75, -w * .2},  {l * .55, -w * .3}, {l * .1, -w * .85},
            {-l * .45, -w},    {-l * .85, -w * .6}};
}

Outline horseshoeOutline(double radius) {
    Outline points;
    for (int i = 0; i <= 24; ++i) {
        const double a = M_PI * (-.15 + 1.3 * i / 24);
        points << QPointF(1.25 * radius * qCos(a), 1.35 * radius * qSin(a));
    }
    for (int i = 24; i >= 0; --i) {
        const double a = M_PI * (-.1 + 1.2 * i / 24);
        points << QPointF(.42 * radius * qCos(a), .2 * radius + .55 * radius * qSin(a) - .5 * radius);
    }
    return points;
}

Outline leafOutline(double length, double width) {
    Outline points;
    for (int i = 0; i <= 20; ++i)
        points << QPointF(length * (i / 20.0 - .5), width / 2 * qSin(M_PI * i / 20) * (1 + .12 * (i % 2)));
    for (int i = 20; i >= 0; --i)
        points << QPointF(length * (i / 20.0 - .5), -width / 2 * qSin(M_PI * i / 20) * (1 + .12 * (i % 2)));
    return points;
}

Outline scaled(const Outline& outline, double factor) {
    Outline all;
    for (const QPointF& point : outline) all << point * factor;
    return all;
}

QPainterPath DishTable::path(const Outline& outline, const QPointF& at, double turn, double z) const {
    const double s = qSin(qDegreesToRadians(turn)), c = qCos(qDegreesToRadians(turn));
    QPolygonF polygon;
    for (const QPointF& p : outline)
        polygon << camera_({at.x() + p.x() * c - p.y() * s, at.y() + p.x() * s + p.y() * c, z});
    QPainterPath result;
    result.addPolygon(polygon);
    result.closeSubpath();
    return result;
}

void DishTable::shadow(const Outline& outline, const QPointF& at, double turn, double z, double height) {
    painter_.setPen(Qt::NoPen);
    for (int i = 4; i >= 1; --i) {
        const Outline wider = scaled(outline, 1 + .03 * i);
        painter_.setBrush(QColor(10, 5, 0, 30));
        painter_.drawPath(path(wider, at + QPointF(height * .12 * i, -height * .08 * i), turn, z));
    }
}

QPainterPath DishTable::solid(const Outline& outline, const QPointF& at, double turn, double z, double height,
                              const QColor& colour, Edge edge) {
    shadow(outline, at, turn, z, height);
    constexpr int kLayers = 10;
    QPainterPath top;
    for (int i = 0; i <= kLayers; ++i) {
        const double up = double(i) / kLayers;
        const double shrink = edge == Edge::soft ? std::sqrt(1 - .62 * up * up * up) : 1;
        const Outline layer = scaled(outline, shrink);
        top = path(layer, at, turn, z + height * up);
        painter_.setBrush(colour.darker(qRound(190 - 75 * up)));
        painter_.drawPath(top);
    }
    light(top, colour);
    return top;
}

void DishTable::light(const QPainterPath& top, const QColor& colour) {
    const QRectF box = top.boundingRect();
    QLinearGradient lamp(box.topLeft(), box.bottomRight());
    lamp.setColorAt(0, colour.lighter(122));
    lamp.setColorAt(.5, colour);
    lamp.setColorAt(1, colour.darker(135));
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(lamp);
    painter_.drawPath(top);
}

void DishTable::ball(const QPointF& at, double z, double radius, const QColor& colour, double flat) {
    shadow(ellipse(radius, radius), at, 0, z, radius * flat);
    const QPointF middle = camera_({at.x(), at.y(), z + radius * flat * .8});
    const double r = QLineF(middle, camera_({at.x() + radius, at.y(), z + radius * flat * .8})).length();
    QRadialGradient lamp(middle - QPointF(r * .35, r * .4), r * 1.5);
    lamp.setColorAt(0, colour.lighter(140));
    lamp.setColorAt(.45, colour);
    lamp.setColorAt(1, colour.darker(220));
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(lamp);
    painter_.drawEllipse(middle, r, r * (.72 + .28 * flat));
}

void DishTable::fleck(const QPainterPath& where, const QColor& colour, int count, double size) {
    const QRectF area = where.boundingRect();
    painter_.save();
    painter_.setClipPath(where, Qt::IntersectClip);
    painter_.setPen(Qt::NoPen);
    for (int i = 0; i < count; ++i) {
        QColor one = i % 2 ? colour.lighter(135) : colour.darker(150);
        one.setAlpha(110);
        painter_.setBrush(one);
        const QPointF at(chance(area.left(), area.right()), chance(area.top(), area.bottom()));
        painter_.drawEllipse(at, chance(.4, 1) * size, chance(.3, .8) * size);
    }
    painter_.restore();
}

}  // namespace sarne::disc
