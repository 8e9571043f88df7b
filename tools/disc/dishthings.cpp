#include "dishthings.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>
#include <algorithm>
#include <cmath>

namespace sarne::disc {

void DishThings::draw(const DishLine& line, const QPointF& at, double turn, double z) {
    const DishThing how = dishThing(line.thing);
    const double size = line.value(QStringLiteral("size"), 1);
    if (line.thing == QStringLiteral("skewer")) return skewer(qRound(line.number(0, 3)), at, turn, z);
    if (line.thing == QStringLiteral("strip_pile")) return strips(at, z);
    const double length =
        size * line.value(QStringLiteral("sx"),
                          line.value(QStringLiteral("r"),
                                     line.value(QStringLiteral("length"), line.number(0, how.size))));
    const bool hasWidth = line.numbers.size() > 1 && line.numbers[1] < line.numbers[0] &&
                          line.numbers[1] > .3 && how.shape != DishShape::mound;
    const double width = line.value(QStringLiteral("sy"), hasWidth ? line.numbers[1] : length * how.ratio) *
                         (hasWidth ? size : 1);
    shape(how, line, at, turn, z, length, width, dishColourOf(line, QColor(how.colour)));
}

void DishThings::shape(const DishThing& how, const DishLine& line, const QPointF& at, double turn, double z,
                       double length, double width, const QColor& colour) {
    switch (how.shape) {
        case DishShape::ball:
            return table_.ball(at, z, length, colour, .8);
        case DishShape::heap:
            return table_.ball(at, z, length, colour, .6);
        case DishShape::mound:
            return mound(at, z, length, how.height, colour);
        case DishShape::disc:
            return disc(how, at, turn, z, length, width, colour);
        case DishShape::slab:
            return void(
                table_.solid(box(length, width), at, turn, z, how.height, colour, DishTable::Edge::sharp));
        case DishShape::ring:
            return ring(at, z, length, colour);
        case DishShape::stick:
            return void(
                table_.solid(box(length, std::max(.12, length * how.ratio)), at, turn, z, .12, colour));
        case DishShape::wedge:
            return void(table_.solid(leafOutline(length * 1.5, length * how.ratio * 1.2), at, turn, z,
                                     how.height, colour));
        case DishShape::leaf:
            return leaf(at, turn, z, length, length * how.ratio, colour);
        case DishShape::sprig:
            return sprig(at, turn, z, how.size * line.value(QStringLiteral("size"), 1), colour);
        case DishShape::egg:
            return egg(how, at, turn, z, length, colour);
        case DishShape::fish:
            return fish(how, line, at, turn, z, length, colour);
        case DishShape::horseshoe:
            return horseshoe(how, at, turn, z, length, colour);
        case DishShape::crust:
            crust(how, at, turn, z, length, width, colour);
            return garnish(line.thing, how, at, turn, z + how.height);
    }
}

void DishThings::skewer(int chunks, const QPointF& at, double turn, double z) {
    const double s = qSin(qDegreesToRadians(turn)), c = qCos(qDegreesToRadians(turn));
    table_.solid(box(chunks * 2.4, .1), at, turn, z + .6, .1, QColor(200, 160, 100));
    for (int i = 0; i < chunks; ++i) {
        const double along = (i - (chunks - 1) / 2.0) * 1.9;
        const QPointF spot = at + QPointF(along * c, along * s);
        const QPainterPath top = table_.solid(ellipse(.8, .62), spot, turn, z, 1.1, QColor(150, 98, 44));
        table_.fleck(top, QColor(150, 98, 44), 60, 8);
        leaf(spot + QPointF(.95 * c, .95 * s), turn + 90, z + .8, 1.3, .5, QColor(120, 140, 100));
    }
}

void DishThings::garnish(const QString& thing, const DishThing& how, const QPointF& at, double turn,
                         double z) {
    const double s = qSin(qDegreesToRadians(turn)), c = qCos(qDegreesToRadians(turn));
    const auto spot = [&](double x, double y) { return at + QPointF(x * c - y * s, x * s + y * c); };
    const auto stripe = [&](double y, const QColor& colour) {
        table_.light(table_.path(box(how.size * .86, how.size * .2), spot(0, y), turn, z), colour);
    };
    if (thing == QStringLiteral("loafslice")) {
        egg(dishThing(QStringLiteral("egg_slice")), at, turn, z, .55, QColor(250, 246, 234));
    } else if (thing == QStringLiteral("terrineslice")) {
        stripe(-.6, QColor(236, 150, 112));
        stripe(0, QColor(120, 150, 74));
        stripe(.6, QColor(246, 240, 224));
    } else if (thing == QStringLiteral("chlebicek")) {
        table_.solid(ellipse(1, .6), at, turn, z, .35, QColor(240, 226, 170));
        table_.solid(ellipse(.75, .3), spot(.1, .1), turn, z + .3, .2, QColor(226, 150, 110));
        egg(dishThing(QStringLiteral("egg_slice")), spot(-.7, -.2), turn, z + .3, .36, QColor(250, 246, 234));
        leaf(spot(.8, -.3), turn + 40, z + .3, .9, .4, QColor(112, 128, 46));
        table_.solid(box(.7, .12), spot(.3, .4), turn - 20, z + .4, .08, QColor(194, 42, 26));
    }
}

void DishThings::disc(const DishThing& how, const QPointF& at, double turn, double z, double length,
                      double width, const QColor& colour) {
    const bool round = how.ratio >= .99;
    const QPainterPath top = table_.solid(round ? ellipse(length, length) : ellipse(length / 2, width / 2),
                                          at, turn, z, how.height, colour);
    table_.fleck(top, colour, length > 1 ? 130 : 12, length > 1 ? 8 : 3);
}

void DishThings::mound(const QPointF& at, double z, double radius, double height, const QColor& colour) {
    const QPainterPath top = table_.solid(ellipse(radius, radius), at, 0, z, height, colour);
    table_.fleck(top, colour, 260, 11);
}

void DishThings::strips(const QPointF& at, double z) {
    for (int i = 0; i < 44; ++i) {
        const double q = std::sqrt((i + .5) / 44), a = i * 2.4;
        table_.solid(box(2, .45), at + QPointF(1.5 * q * qCos(a), 1.5 * q * qSin(a)), table_.chance(0, 180),
                     z + 1.2 * (1 - q) + table_.chance(0, .2), .35, QColor(204, 140, 52));
    }
}

void DishThings::ring(const QPointF& at, double z, double radius, const QColor& colour) {
    table_.painter().setBrush(Qt::NoBrush);
    table_.painter().setPen(QPen(colour.darker(125), 13));
    table_.painter().drawPath(table_.path(ellipse(radius, radius), at, 0, z + .05));
    table_.painter().setPen(QPen(colour, 8));
    table_.painter().drawPath(table_.path(ellipse(radius, radius), at, 0, z + .1));
}

void DishThings::leaf(const QPointF& at, double turn, double z, double length, double width,
                      const QColor& colour) {
    const QPainterPath top = table_.solid(leafOutline(length, width), at, turn, z, .08, colour);
    table_.fleck(top, colour, 20, 6);
}

void DishThings::sprig(const QPointF& at, double turn, double z, double length, const QColor& colour) {
    const double s = qSin(qDegreesToRadians(turn)), c = qCos(qDegreesToRadians(turn));
    for (int i = 0; i < 26; ++i) {
        const double along = table_.chance(-.5, .5) * length,
                     out = table_.chance(-.32, .32) * length * (.6 + along / length);
        const QPointF spot = at + QPointF(along * c - out * s, along * s + out * c);
        table_.solid(leafOutline(length * .22, length * .12), spot, turn + table_.chance(-60, 60),
                     z + table_.chance(.05, .3), .02, colour.lighter(qRound(table_.chance(80, 130))));
    }
}

void DishThings::egg(const DishThing& how, const QPointF& at, double turn, double z, double size,
                     const QColor& colour) {
    table_.solid(ellipse(size, size * how.ratio), at, turn, z, how.height, colour);
    table_.ball(at, z + how.height * .7, size * .45, QColor(240, 178, 46), .5);
}

void DishThings::fish(const DishThing& how, const DishLine& line, const QPointF& at, double turn, double z,
                      double length, const QColor& colour) {
    const bool flat = line.words.contains(QStringLiteral("flatfish"));
    const double width = length * (flat ? .6 : how.ratio);
    const QPainterPath top = table_.solid(fishOutline(length, width), at, turn, z, how.height, colour);
    table_.fleck(top, colour, 320, 7);
    const double s = qSin(qDegreesToRadians(turn)), c = qCos(qDegreesToRadians(turn));
    const auto on = [&](double x, double y) {
        return table_.camera()({at.x() + x * c - y * s, at.y() + x * s + y * c, z + how.height});
    };
    QPainter& painter = table_.painter();
    painter.setPen(QPen(colour.darker(170), 4));
    painter.setBrush(Qt::NoBrush);
    QPainterPath gill(on(-length * .27, width * .26));
    gill.quadTo(on(-length * .22, 0), on(-length * .27, -width * .26));
    painter.drawPath(gill);
    painter.setBrush(QColor(240, 232, 210));
    painter.drawEllipse(on(-length * .34, width * .08), 11, 10);
    painter.setBrush(QColor(24, 18, 14));
    painter.drawEllipse(on(-length * .34, width * .08), 6, 6);
    painter.setPen(QPen(colour.darker(190), 5));
    for (int cut = 0; cut < line.value(QStringLiteral("cuts"), 0); ++cut)
        painter.drawLine(on(-length * .1 + cut * length * .13, width * .28),
                         on(-length * .05 + cut * length * .13, -width * .2));
}

void DishThings::horseshoe(const DishThing& how, const QPointF& at, double turn, double z, double size,
                           const QColor& colour) {
    const QPainterPath top = table_.solid(horseshoeOutline(size), at, turn, z, how.height, colour);
    table_.fleck(top, colour, 160, 8);
    table_.painter().setPen(QPen(colour.darker(160), 6));
    table_.painter().setBrush(Qt::NoBrush);
    table_.painter().drawPath(top);
}

void DishThings::crust(const DishThing& how, const QPointF& at, double turn, double z, double length,
                       double width, const QColor& colour) {
    const bool round = how.ratio >= .99;
    const auto outline = [&](double part) {
        return round ? ellipse(length / 2 * part, length / 2 * part, 60) : box(length * part, width * part);
    };
    table_.solid(outline(1), at, turn, z, how.height, QColor(168, 112, 52), DishTable::Edge::sharp);
    const QPainterPath crumb = table_.path(outline(.88), at, turn, z + how.height);
    table_.light(crumb, colour);
    table_.fleck(crumb, colour, 140, 6);
}

}  // namespace sarne::disc
