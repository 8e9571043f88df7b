#include <algorithm>
#include <cmath>

#include "draw.h"

namespace sarne::disc {
namespace {

QLinearGradient porcelain(double top, double bottom) {
    QLinearGradient paint(0, top, 0, bottom);
    paint.setColorAt(0, QColor(255, 252, 244));
    paint.setColorAt(1, QColor(216, 208, 194));
    return paint;
}

QLinearGradient copper(double left, double right) {
    QLinearGradient paint(left, 0, right, 0);
    paint.setColorAt(0, QColor(238, 178, 116));
    paint.setColorAt(0.3, QColor(208, 143, 80));
    paint.setColorAt(1, QColor(112, 62, 30));
    return paint;
}

QPainterPath ellipse(QPointF centre, double x, double y) {
    QPainterPath path;
    path.addEllipse(centre, x, y);
    return path;
}

/// Crumbs, flour or bubbles strewn over an ellipse.
void strew(QPainter& painter, double radiusX, double radiusY, int count, double size, const QColor& colour) {
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * M_PI * scatter(i, 4);
        const double reach = std::sqrt(scatter(i, 5));
        painter.setBrush(between(colour, colour.darker(128), scatter(i, 6)));
        painter.drawEllipse(QPointF(radiusX * reach * std::cos(angle), radiusY * reach * std::sin(angle)),
                            size * (0.6 + scatter(i, 7)), size * (0.5 + 0.7 * scatter(i, 8)));
    }
}

void steam(QPainter& painter, const Pose& pose, double width) {
    const double strength = pose.of(QStringLiteral("pára"));
    for (int i = 0; i < 9 && strength > 0; ++i) {
        const double age = std::fmod(pose.seconds * 0.32 + scatter(i), 1.0);
        const double x = (scatter(i, 1) - 0.5) * width + 16 * std::sin(4 * age + i);
        softSpot(painter, {x, -30 - 170 * age}, 26 + 30 * age, 34 + 30 * age,
                 QColor(255, 250, 240, static_cast<int>(70 * strength * std::sin(M_PI * age))));
    }
}

const QRectF kPot(-190, -60, 380, 220);

QPainterPath potInside() {
    QPainterPath inside;
    inside.moveTo(kPot.left(), kPot.top());
    inside.lineTo(kPot.left(), kPot.bottom() - 34);
    inside.quadTo(kPot.bottomLeft(), kPot.bottomLeft() + QPointF(34, 0));
    inside.lineTo(kPot.right() - 34, kPot.bottom());
    inside.quadTo(kPot.bottomRight(), kPot.bottomRight() - QPointF(0, 34));
    inside.lineTo(kPot.topRight());
    inside.closeSubpath();
    return inside;
}

/// The shape of a moulded aspic, its base at 0 and rounded by \a bulge.
QPainterPath dome(double bulge) {
    QPainterPath path(QPointF(-120, 0));
    path.cubicTo({-112, -86}, {-76, -118}, {0, -118});
    path.cubicTo({76, -118}, {112, -86}, {120, 0});
    path.quadTo({0, 2 * bulge}, {-120, 0});
    path.closeSubpath();
    return path;
}

void fishCubes(QPainter& painter, double shown) {
    const QList<QPointF> places{{0, -96},   {-42, -70}, {6, -66},  {50, -70},
                                {-66, -34}, {-22, -30}, {28, -36}, {68, -30}};
    for (int i = 0; i < places.size() && i < shown * places.size(); ++i) {
        painter.save();
        painter.translate(places[i]);
        painter.rotate(40 * (scatter(i) - 0.5));
        painter.setBrush(i % 3 == 2 ? QColor(228, 118, 44) : QColor(252, 232, 212));
        if (i % 3 == 2)
            painter.drawEllipse(QPointF(0, 0), 11, 11);
        else
            painter.drawRoundedRect(QRectF(-20, -12, 40, 24), 7, 7);
        painter.setBrush(QColor(74, 128, 56));
        painter.drawEllipse(QPointF(20, 10), 4, 4);
        painter.restore();
    }
}

}  // namespace

/// A soup plate seen from above on a slant; "obsah" is 0 nothing, 1 flour, 2 beaten egg, 3 crumbs.
void drawBowl(QPainter& painter, const Pose& pose) {
    painter.setPen(Qt::NoPen);
    dropShadow(painter, ellipse({0, 6}, 108, 66));
    painter.setBrush(porcelain(-66, 72));
    painter.drawEllipse(QPointF(0, 4), 108, 66);
    painter.setBrush(QColor(32, 92, 110));
    painter.drawPath(ellipse({0, 0}, 104, 61) - ellipse({0, 0}, 99, 57));
    painter.setBrush(porcelain(70, -60));
    painter.drawEllipse(QPointF(0, 3), 84, 46);
    const int content = static_cast<int>(pose.of(QStringLiteral("obsah")));
    static const QColor colours[] = {Qt::transparent, QColor(252, 248, 236), QColor(244, 188, 62),
                                     QColor(214, 158, 84)};
    if (content < 1 || content > 3) return;
    painter.setBrush(colours[content]);
    painter.drawEllipse(QPointF(0, 6), 78, 40);
    if (content == 2)
        softSpot(painter, {-26, -6}, 34, 12, QColor(255, 246, 206, 190));
    else
        strew(painter, 74, 38, 170, content == 1 ? 3.4 : 2.6, colours[content]);
}

/// A piece of fillet; "mouka", "vejce", "strouhanka" and "smažená" from 0 to 1 say what is on it.
void drawPiece(QPainter& painter, const Pose& pose) {
    painter.setPen(Qt::NoPen);
    const QPainterPath shape = smoothPath(
        {{-64, -2}, {-44, -28}, {0, -34}, {44, -28}, {66, -4}, {48, 24}, {0, 32}, {-46, 24}}, true);
    dropShadow(painter, shape, {7, 9}, 55);
    QColor colour(240, 190, 170);
    colour = between(colour, QColor(250, 240, 226), pose.of(QStringLiteral("mouka")));
    colour = between(colour, QColor(244, 194, 84), pose.of(QStringLiteral("vejce")));
    colour = between(colour, QColor(222, 174, 104), pose.of(QStringLiteral("strouhanka")));
    colour = between(colour, QColor(196, 112, 34), pose.of(QStringLiteral("smažená")));
    colour = between(colour, QColor(252, 238, 222), pose.of(QStringLiteral("uvařená")));
    QLinearGradient paint(-60, -30, 60, 34);
    paint.setColorAt(0, colour.lighter(112));
    paint.setColorAt(1, colour.darker(116));
    painter.setBrush(paint);
    painter.drawPath(shape);
    painter.setClipPath(shape, Qt::IntersectClip);
    const double crumbs = pose.of(QStringLiteral("strouhanka"));
    strew(painter, 66, 34, static_cast<int>(210 * crumbs), 2.4, colour.darker(104));
    if (crumbs < 0.5 && pose.of(QStringLiteral("mouka")) < 0.5) {
        painter.setPen(QPen(QColor(190, 116, 90, 120), 1.6));
        for (int i = 0; i < 7; ++i) painter.drawArc(QRectF(-74 + i * 19, -44, 26, 88), 100 * 16, 160 * 16);
    }
    softSpot(painter, {-24, -16}, 34, 10, QColor(255, 255, 240, 90));
}

/// A pan with fat from above on a slant; "bublá" from 0 to 1.
void drawPan(QPainter& painter, const Pose& pose) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(26, 22, 20));
    QPainterPath grip;
    grip.addRoundedRect(QRectF(150, -16, 190, 30), 14, 14);
    dropShadow(painter, grip + ellipse({0, 10}, 190, 112));
    painter.drawPath(grip);
    painter.setBrush(copper(-190, 190));
    painter.drawEllipse(QPointF(0, 8), 190, 112);
    painter.setBrush(QColor(46, 40, 36));
    painter.drawEllipse(QPointF(0, 2), 180, 103);
    QLinearGradient fat(-150, -60, 150, 80);
    fat.setColorAt(0, QColor(222, 168, 62));
    fat.setColorAt(1, QColor(150, 96, 26));
    painter.setBrush(fat);
    painter.drawEllipse(QPointF(0, 8), 162, 86);
    const double boil = pose.of(QStringLiteral("bublá"));
    for (int i = 0; i < 60 * boil; ++i) {
        const double age = std::fmod(pose.seconds * 2.6 + scatter(i), 1.0);
        const double angle = 2 * M_PI * scatter(i, 1);
        const double reach = 0.35 + 0.62 * scatter(i, 2);
        painter.setBrush(QColor(255, 236, 170, static_cast<int>(190 * (1 - age))));
        painter.drawEllipse(QPointF(156 * reach * std::cos(angle), 8 + 80 * reach * std::sin(angle)),
                            1.5 + 4 * age, 1.2 + 3 * age);
    }
    steam(painter, pose, 200);
}

void drawPlate(QPainter& painter, const Pose&) {
    painter.setPen(Qt::NoPen);
    dropShadow(painter, ellipse({0, 8}, 330, 158), {12, 16}, 70);
    painter.setBrush(porcelain(-150, 170));
    painter.drawEllipse(QPointF(0, 6), 330, 158);
    painter.setBrush(copper(-300, 300));
    painter.drawPath(ellipse({0, 2}, 318, 148) - ellipse({0, 2}, 313, 144));
    painter.setBrush(porcelain(150, -140));
    painter.drawEllipse(QPointF(0, 6), 262, 112);
}

/// A pot cut open, its back: the water in it, bubbles ("bublá") and steam ("pára").
void drawPotBack(QPainter& painter, const Pose& pose) {
    painter.setPen(Qt::NoPen);
    softSpot(painter, {0, 196}, 230, 26, QColor(0, 0, 0, 120));
    painter.setBrush(QColor(58, 34, 20));
    painter.drawPath(potInside());
    painter.save();
    painter.setClipPath(potInside(), Qt::IntersectClip);
    QLinearGradient water(0, -10, 0, 160);
    water.setColorAt(0, QColor(206, 208, 150));
    water.setColorAt(1, QColor(160, 140, 78));
    painter.setBrush(water);
    painter.drawRect(QRectF(-190, -14, 380, 180));
    const double boil = pose.of(QStringLiteral("bublá"));
    for (int i = 0; i < 44 * boil; ++i) {
        const double age = std::fmod(pose.seconds * (0.25 + 0.3 * scatter(i, 1)) + scatter(i), 1.0);
        painter.setBrush(QColor(255, 255, 235, 130));
        painter.drawEllipse(QPointF((scatter(i, 2) - 0.5) * 350 + 4 * std::sin(9 * age + i), 150 - 160 * age),
                            2 + 2 * scatter(i, 3), 2 + 2 * scatter(i, 3));
    }
    painter.restore();
    for (int i = 0; i < 6; ++i) {
        painter.setBrush(i % 2 == 0 ? QColor(226, 120, 44) : QColor(240, 232, 204));
        painter.drawEllipse(QPointF(-150 + i * 60, 142 - 8 * scatter(i)), 13, 9);
    }
    painter.setBrush(QColor(250, 246, 220, 150));
    painter.drawEllipse(QPointF(0, -14), 190, 9);
}

/// The rim, the walls and the handles of the pot, in front of what is in it.
void drawPotFront(QPainter& painter, const Pose& pose) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QBrush(copper(-200, 200)), 16, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath wall(kPot.topLeft());
    wall.lineTo(kPot.left(), kPot.bottom() - 34);
    wall.quadTo(kPot.bottomLeft(), kPot.bottomLeft() + QPointF(34, 0));
    wall.lineTo(kPot.right() - 34, kPot.bottom());
    wall.quadTo(kPot.bottomRight(), kPot.bottomRight() - QPointF(0, 34));
    wall.lineTo(kPot.topRight());
    painter.drawPath(wall);
    painter.setPen(QPen(QColor(96, 54, 28), 14, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(-246, -40, 76, 56), 90 * 16, 180 * 16);
    painter.drawArc(QRectF(170, -40, 76, 56), -90 * 16, 180 * 16);
    painter.setPen(Qt::NoPen);
    steam(painter, pose, 260);
}

/// A thermometer with its foot at the origin; "teplota" in degrees.
void drawThermometer(QPainter& painter, const Pose& pose) {
    const double degrees = pose.of(QStringLiteral("teplota"), 20);
    painter.setPen(Qt::NoPen);
    QPainterPath glass;
    glass.addRoundedRect(QRectF(-13, -230, 26, 240), 13, 13);
    dropShadow(painter, glass);
    painter.setBrush(QColor(246, 244, 236, 240));
    painter.drawPath(glass);
    painter.setBrush(QColor(184, 64, 42));
    painter.drawEllipse(QPointF(0, -4), 9, 9);
    painter.drawRoundedRect(QRectF(-4, -8 - 2 * degrees, 8, 2 * degrees + 4), 4, 4);
    painter.setPen(QPen(QColor(60, 48, 36), 1.4));
    for (int mark = 0; mark <= 100; mark += 20)
        painter.drawLine(QPointF(6, -8 - 2 * mark), QPointF(12, -8 - 2 * mark));
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(30);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(14, 58, 64, 235));
    painter.drawRoundedRect(QRectF(22, -30 - 2 * degrees, 104, 44), 10, 10);
    painter.setPen(QColor(225, 225, 125));
    painter.drawText(QRectF(22, -30 - 2 * degrees, 104, 44), Qt::AlignCenter,
                     QStringLiteral("%1 °C").arg(qRound(degrees)));
}

/// Aspic as it stands in its mould, base down: "výška" from 0 to 1, "kousky" how many pieces are in it,
/// "tuhý" from 0 to 1. Turned by 180 degrees it fills the mould that stands on its crown.
void drawAspic(QPainter& painter, const Pose& pose) {
    painter.setPen(Qt::NoPen);
    const double level = pose.of(QStringLiteral("výška"));
    const double pieces = pose.of(QStringLiteral("kousky"));
    const double solid = pose.of(QStringLiteral("tuhý"));
    // Lying on a plate that is seen from above, its base shows as round.
    const double bulge = 17 * std::clamp((pose.of(QStringLiteral("otočení")) - 270) / 90, 0.0, 1.0);
    QPainterPath filled;
    filled.addRect(QRectF(-140, -118, 280, (118 + bulge) * level));
    filled = dome(bulge).intersected(filled);
    painter.save();
    painter.setClipPath(dome(bulge), Qt::IntersectClip);
    fishCubes(painter, pieces);
    painter.restore();
    QLinearGradient gold(0, -118, 0, 0);
    gold.setColorAt(0, QColor(250, 206, 104, 105));
    gold.setColorAt(1, between(QColor(236, 190, 96, 110), QColor(222, 150, 44, 150), solid));
    painter.setBrush(gold);
    painter.drawPath(filled);
    if (solid > 0) {
        painter.setClipPath(filled, Qt::IntersectClip);
        softSpot(painter, {-54, -70}, 30, 40, QColor(255, 255, 240, static_cast<int>(150 * solid)));
    }
}

/// The mould around an aspic, the same way up as it; its wall is glass, so that one sees in.
void drawMould(QPainter& painter, const Pose&) {
    QLinearGradient glass(-130, 0, 130, 0);
    glass.setColorAt(0, QColor(236, 248, 248, 235));
    glass.setColorAt(0.5, QColor(206, 226, 230, 120));
    glass.setColorAt(1, QColor(150, 180, 186, 235));
    painter.setPen(QPen(QBrush(glass), 9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(220, 240, 244, 34));
    QPainterPath wall(QPointF(-136, 2));
    wall.lineTo(-124, 0);
    wall.cubicTo({-116, -90}, {-78, -124}, {0, -124});
    wall.cubicTo({78, -124}, {116, -90}, {124, 0});
    wall.lineTo(136, 2);
    painter.drawPath(wall);
}

/// A round of lemon with a leaf of parsley.
void drawLemon(QPainter& painter, const Pose&) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(66, 120, 50));
    for (int i = 0; i < 7; ++i)
        painter.drawEllipse(QPointF(30 + 15 * std::cos(i * 0.9), 8 + 13 * std::sin(i * 0.9)), 9, 7);
    dropShadow(painter, ellipse({0, 0}, 30, 26), {4, 6}, 60);
    painter.setBrush(QColor(238, 190, 40));
    painter.drawEllipse(QPointF(0, 0), 30, 26);
    painter.setBrush(QColor(255, 246, 206));
    painter.drawEllipse(QPointF(0, 0), 26, 22);
    painter.setBrush(QColor(250, 220, 96));
    for (int i = 0; i < 8; ++i) painter.drawPie(QRectF(-23, -19.5, 46, 39), i * 45 * 16 + 60, 38 * 16);
}

/// A small written label; "číslo" chooses the text.
void drawSign(QPainter& painter, const Pose& pose) {
    static const QStringList texts{
        QStringLiteral("mouka"),     QStringLiteral("vejce"), QStringLiteral("strouhanka"),
        QStringLiteral("170 °C"),    QStringLiteral("žluč"),  QStringLiteral("do vývaru"),
        QStringLiteral("páteř"),     QStringLiteral("3 cm"),  QStringLiteral("přes noc do chladu"),
        QStringLiteral("8–10 minut")};
    const QString text = texts.value(static_cast<int>(pose.of(QStringLiteral("číslo"))));
    QFont font(QStringLiteral("Liberation Serif"));
    font.setPixelSize(25);
    font.setItalic(true);
    painter.setFont(font);
    QRectF box = QFontMetricsF(font).boundingRect(text).adjusted(-14, -6, 14, 6);
    box.moveCenter({0, 0});
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(244, 234, 210, 235));
    painter.drawRoundedRect(box, 9, 9);
    painter.setPen(QColor(43, 29, 18));
    painter.drawText(box, Qt::AlignCenter, text);
}

}  // namespace sarne::disc
