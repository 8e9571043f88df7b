#include <algorithm>
#include <cmath>

#include "draw.h"

namespace sarne::disc {
namespace {

/// What makes a species: its outline from the nose over the back to the tail and along the belly, colours.
struct Species {
    QList<QPointF> back;
    QList<QPointF> belly;
    QColor backColour, flank, bellyColour, fin;
    bool isSpotted = false;
    double gill = -112;
};

const Species& carp() {
    static const Species made{
        {{-196, 10}, {-172, -20}, {-125, -52}, {-60, -78}, {10, -76}, {80, -48}, {150, -20}},
        {{150, 20}, {85, 50}, {10, 74}, {-70, 74}, {-140, 50}, {-182, 28}},
        QColor(88, 72, 32),
        QColor(196, 150, 66),
        QColor(243, 222, 160),
        QColor(164, 92, 48)};
    return made;
}

const Species& trout() {
    static const Species made{
        {{-198, 6}, {-170, -18}, {-115, -38}, {-40, -50}, {30, -46}, {95, -30}, {155, -16}},
        {{155, 16}, {95, 34}, {20, 48}, {-60, 50}, {-130, 38}, {-182, 20}},
        QColor(70, 78, 54),
        QColor(158, 150, 118),
        QColor(240, 230, 208),
        QColor(150, 118, 72),
        true,
        -118};
    return made;
}

QPainterPath bodyOf(const Species& species) {
    return smoothPath(species.back + species.belly, true);
}

QPainterPath tailPath() {
    return smoothPath({{142, -18},
                       {182, -40},
                       {218, -62},
                       {206, -24},
                       {200, 0},
                       {206, 26},
                       {216, 64},
                       {180, 40},
                       {142, 18}},
                      true);
}

QLinearGradient bodyPaint(const Species& species, double cooked) {
    const auto tone = [&](const QColor& raw, const QColor& done) { return between(raw, done, cooked); };
    QLinearGradient paint(0, -80, 0, 78);
    paint.setColorAt(0, tone(species.backColour, QColor(122, 82, 40)));
    paint.setColorAt(0.32, tone(species.flank, QColor(196, 136, 66)));
    paint.setColorAt(0.62, tone(species.flank.lighter(125), QColor(214, 160, 88)));
    paint.setColorAt(1, tone(species.bellyColour, QColor(226, 188, 126)));
    return paint;
}

void rays(QPainter& painter, QPointF root, double length, double from, double to, int count) {
    painter.setPen(QPen(QColor(70, 36, 14, 90), 1.2));
    for (int i = 0; i < count; ++i) {
        const double angle = (from + (to - from) * i / (count - 1)) * M_PI / 180;
        painter.drawLine(root, root + QPointF(std::cos(angle), std::sin(angle)) * length);
    }
    painter.setPen(Qt::NoPen);
}

QLinearGradient finPaint(const Species& species, double cooked) {
    QLinearGradient paint(0, -100, 0, 100);
    const QColor colour = between(species.fin, QColor(120, 74, 34), cooked);
    paint.setColorAt(0, colour.darker(125));
    paint.setColorAt(1, colour.lighter(118));
    return paint;
}

void finsBehind(QPainter& painter, const Species& species, double cooked) {
    painter.setBrush(finPaint(species, cooked));
    painter.drawPath(tailPath());
    for (const double angle : {-32.0, -18.0, -6.0, 6.0, 18.0, 32.0})
        rays(painter, {150, 0}, 58, angle, angle + 4, 2);
    painter.setBrush(finPaint(species, cooked));
    const double high = species.isSpotted ? 26 : 0;
    painter.drawPath(smoothPath(
        {{-52, -70 + high}, {-34, -104 + high}, {10, -96 + high}, {58, -82 + high}, {74, -48 + high * 0.6}},
        true));
    painter.drawPath(smoothPath(
        {{66, 50 - high * 0.6}, {88, 84 - high}, {112, 66 - high * 0.6}, {108, 38 - high * 0.4}}, true));
    painter.drawPath(
        smoothPath({{-16, 66 - high * 0.8}, {-2, 98 - high}, {28, 92 - high}, {22, 64 - high * 0.8}}, true));
    if (species.isSpotted)
        painter.drawPath(smoothPath({{104, -28}, {122, -46}, {132, -34}, {124, -22}}, true));
}

void scales(QPainter& painter, double bound) {
    painter.setBrush(Qt::NoBrush);
    for (int row = 0; row < 15; ++row)
        for (int column = 0; column < 24; ++column) {
            const double x = -118 + column * 12 + (row % 2) * 6;
            const double y = -80 + row * 11;
            if (x > bound) continue;
            painter.setPen(QPen(QColor(74, 50, 16, 105), 1.5));
            painter.drawArc(QRectF(x - 7, y - 7, 14, 14), -80 * 16, 160 * 16);
            painter.setPen(QPen(QColor(255, 236, 170, 80), 1.2));
            painter.drawArc(QRectF(x - 5, y - 6, 10, 12), -60 * 16, 120 * 16);
        }
    painter.setPen(Qt::NoPen);
}

void spots(QPainter& painter) {
    for (int i = 0; i < 46; ++i) {
        const QPointF at(-120 + scatter(i) * 260, -44 + scatter(i, 1) * 52);
        painter.setBrush(i % 4 == 0 ? QColor(176, 62, 40, 190) : QColor(44, 36, 22, 170));
        painter.drawEllipse(at, 2.2 + scatter(i, 2) * 2, 2 + scatter(i, 3) * 1.6);
    }
    softSpot(painter, {0, 4}, 150, 16, QColor(214, 120, 96, 80));
}

void head(QPainter& painter, const Species& species) {
    painter.setPen(QPen(QColor(60, 38, 14, 150), 2.2));
    painter.setBrush(Qt::NoBrush);
    QPainterPath gill(QPointF(species.gill - 2, -38));
    gill.cubicTo({species.gill + 22, -16}, {species.gill + 20, 24}, {species.gill - 14, 42});
    painter.drawPath(gill);
    QPainterPath mouth(QPointF(-195, 12));
    mouth.quadTo({-180, 18}, {-170, 15});
    painter.drawPath(mouth);
    if (!species.isSpotted) painter.drawLine(QPointF(-180, 20), QPointF(-186, 36));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(226, 186, 84));
    painter.drawEllipse(QPointF(-154, -10), 10.5, 10.5);
    painter.setBrush(QColor(26, 18, 12));
    painter.drawEllipse(QPointF(-154, -10), 6.4, 6.4);
    painter.setBrush(QColor(255, 255, 246));
    painter.drawEllipse(QPointF(-157, -13), 2.3, 2.3);
}

void pectoral(QPainter& painter, const Species& species, double cooked) {
    painter.setBrush(finPaint(species, cooked));
    painter.drawPath(smoothPath({{-98, 24}, {-70, 26}, {-44, 46}, {-58, 58}, {-86, 48}}, true));
    rays(painter, {-96, 30}, 44, 12, 42, 5);
}

/// Cooked or raw flesh with its flakes.
void flesh(QPainter& painter, const QPainterPath& shape, double cooked) {
    QLinearGradient paint(0, -70, 0, 70);
    paint.setColorAt(0, between(QColor(238, 182, 160), QColor(250, 226, 202), cooked));
    paint.setColorAt(1, between(QColor(246, 214, 194), QColor(255, 242, 224), cooked));
    painter.setBrush(paint);
    painter.drawPath(shape);
    painter.save();
    painter.setClipPath(shape, Qt::IntersectClip);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(196, 120, 92, 110), 1.8));
    for (int i = 0; i < 19; ++i) {
        const double x = -120 + i * 15;
        QPainterPath flake(QPointF(x + 16, -70));
        flake.quadTo({x - 8, -30}, {x, 0});
        flake.quadTo({x - 8, 34}, {x + 16, 72});
        painter.drawPath(flake);
    }
    painter.restore();
}

void spine(QPainter& painter, double cooked) {
    const QColor bone = between(QColor(250, 240, 214), QColor(206, 168, 116), cooked);
    painter.setPen(QPen(bone, 6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(-116, 0), QPointF(152, 0));
    painter.setPen(QPen(QColor(190, 160, 120, 160), 1.4));
    for (int i = 0; i < 22; ++i) painter.drawLine(QPointF(-112 + i * 12, -3), QPointF(-112 + i * 12, 3));
    painter.setPen(QPen(bone.lighter(103), 2.2, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 20; ++i) {
        const double x = -106 + i * 12.5;
        const double reach = 52 * std::sqrt(std::max(0.1, 1 - std::pow((x + 20) / 180, 2)));
        painter.drawLine(QPointF(x, 0), QPointF(x + 20, -reach));
        painter.drawLine(QPointF(x, 0), QPointF(x + 20, reach));
    }
    painter.setPen(Qt::NoPen);
}

QPainterPath right(double x) {
    QPainterPath half;
    half.addRect(x, -160, 400, 320);
    return half;
}

/// The body behind the head.
QPainterPath trunk(const Species& species) {
    return bodyOf(species).intersected(right(species.gill + 14));
}

void wholeFish(QPainter& painter, const Species& species, const Pose& pose) {
    const double cooked = pose.of(QStringLiteral("pečená"));
    finsBehind(painter, species, cooked);
    const QPainterPath body = bodyOf(species);
    painter.setBrush(bodyPaint(species, cooked));
    painter.drawPath(body);
    painter.save();
    painter.setClipPath(body, Qt::IntersectClip);
    if (species.isSpotted)
        spots(painter);
    else
        scales(painter, 160 - 285 * pose.of(QStringLiteral("očištěná")));
    softSpot(painter, {-40, -34}, 150, 26, QColor(255, 250, 226, 90));
    painter.restore();
    head(painter, species);
    if (pose.of(QStringLiteral("ploutve"), 1) > 0.5) pectoral(painter, species, cooked);
}

/// The slit along the belly, from the vent towards the head, and what is drawn out of it.
void belly(QPainter& painter, const Pose& pose) {
    const double slit = pose.of(QStringLiteral("řez"));
    if (slit <= 0) return;
    const double open = 5 + 13 * pose.of(QStringLiteral("otevřená"));
    const double from = 84;
    const double to = from - 178 * slit;
    const double middle = (from + to) / 2;
    QPainterPath gap(QPointF(from, 46));
    gap.quadTo({middle, 68 - open}, {to, 62});
    gap.quadTo({middle, 70 + open * 0.6}, {from, 46});
    painter.setBrush(QColor(132, 32, 28));
    painter.drawPath(gap);
}

void guts(QPainter& painter, const Pose& pose) {
    const double out = pose.of(QStringLiteral("vnitřnosti"));
    if (out <= 0) return;
    painter.save();
    painter.setOpacity(painter.opacity() * std::clamp(out * 4, 0.0, 1.0) * std::clamp(2 - out, 0.0, 1.0));
    painter.translate(-10 + 150 * out, 44 + 70 * out);
    painter.setBrush(QColor(150, 52, 44));
    painter.drawPath(smoothPath(
        {{-60, -4}, {-30, -16}, {12, -12}, {44, -16}, {58, 6}, {24, 18}, {-20, 14}, {-54, 16}}, true));
    painter.setBrush(QColor(196, 96, 78));
    painter.drawPath(smoothPath({{-44, 2}, {-14, -6}, {20, 0}, {10, 10}, {-26, 10}}, true));
    painter.setBrush(QColor(86, 110, 52));
    painter.drawEllipse(QPointF(-42, 4), 11, 7);
    painter.setBrush(QColor(236, 222, 196, 220));
    painter.drawEllipse(QPointF(34, -4), 16, 8);
    painter.restore();
}

/// The cut behind the head and the one along the back.
void cuts(QPainter& painter, const Species& species, const Pose& pose) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(140, 34, 28), 4, Qt::SolidLine, Qt::RoundCap));
    const double behindHead = pose.of(QStringLiteral("zářez"));
    if (behindHead > 0) {
        QPainterPath cut(QPointF(species.gill + 16, -52));
        cut.quadTo({species.gill + 30, -52 + 56 * behindHead}, {species.gill + 16, -52 + 104 * behindHead});
        painter.drawPath(cut);
    }
    const double along = pose.of(QStringLiteral("podélně"));
    if (along > 0) {
        QPainterPath whole = smoothPath(species.back.mid(2), false);
        QPainterPath cut(whole.pointAtPercent(0.06));
        for (double share = 0.06; share <= 0.06 + 0.92 * along; share += 0.04)
            cut.lineTo(whole.pointAtPercent(std::min(1.0, share)) + QPointF(0, 9));
        painter.drawPath(cut);
    }
    painter.setPen(Qt::NoPen);
}

/// The upper side as it is lifted: raw it is turned over like a page, cooked it is pushed away.
void upperFillet(QPainter& painter, const Species& species, const Pose& pose) {
    const double cooked = pose.of(QStringLiteral("pečená"));
    const double lifted = pose.of(QStringLiteral("filet"));
    const double turned = cooked > 0.5 ? 1 : std::cos(M_PI * lifted);
    painter.save();
    painter.setOpacity(painter.opacity() * (1 - pose.of(QStringLiteral("odložený"))));
    painter.translate(24 * lifted, (cooked > 0.5 ? -104 : -118) * lifted);
    painter.rotate(-4 * lifted);
    painter.scale(1, std::abs(turned) < 0.04 ? 0.04 : turned);
    dropShadow(painter, trunk(species), {6, 4 + 12 * lifted}, 46);
    if (turned > 0 && cooked <= 0.5) {
        painter.setBrush(bodyPaint(species, cooked));
        painter.drawPath(trunk(species));
    } else {
        flesh(painter, trunk(species), cooked);
    }
    painter.restore();
}

/// The side that lies below, the bones on it, and the upper side that is lifted away.
void opened(QPainter& painter, const Species& species, const Pose& pose) {
    const double cooked = pose.of(QStringLiteral("pečená"));
    const double bones = pose.of(QStringLiteral("kostra"));
    flesh(painter, trunk(species), cooked);
    painter.save();
    painter.translate(-30 * bones, -150 * bones);
    painter.rotate(-14 * bones);
    spine(painter, cooked);
    const QPainterPath front = bodyOf(species).subtracted(right(species.gill + 16));
    painter.setBrush(bodyPaint(species, cooked));
    painter.drawPath(front);
    painter.setBrush(finPaint(species, cooked));
    painter.drawPath(tailPath());
    head(painter, species);
    painter.restore();
    upperFillet(painter, species, pose);
}

/// Skin that is drawn off from the head to the tail: what is bare already.
void bare(QPainter& painter, const Species& species, const Pose& pose) {
    const double skin = pose.of(QStringLiteral("stažená"));
    if (skin <= 0) return;
    const double edge = species.gill + 14 + 275 * skin;
    const QPainterPath shape = trunk(species).subtracted(right(edge));
    flesh(painter, shape, pose.of(QStringLiteral("pečená")));
    if (skin >= 1) return;
    painter.setBrush(QColor(118, 84, 46));
    painter.drawPath(smoothPath(
        {{edge - 5, -44}, {edge + 14, -20}, {edge + 16, 18}, {edge - 5, 44}, {edge + 3, 0}}, true));
}

/// Cut across: head, horseshoes, tail, moved apart.
void portions(QPainter& painter, const Species& species, const Pose& pose) {
    const double apart = pose.of(QStringLiteral("porce"));
    const double cutSoFar = pose.of(QStringLiteral("krájená"));
    const QList<double> edges{-240, -98, -50, -4, 42, 88, 240};
    for (int i = 0; i + 1 < edges.size(); ++i) {
        const double shift = (i - 2.5) * 17 * apart;
        painter.save();
        painter.translate(shift, 0);
        painter.setClipRect(QRectF(edges[i], -150, edges[i + 1] - edges[i], 320), Qt::IntersectClip);
        wholeFish(painter, species, pose);
        if (i > 0 && apart > 0) {
            painter.setClipPath(bodyOf(species), Qt::IntersectClip);
            painter.setBrush(QColor(244, 196, 174));
            painter.drawRect(QRectF(edges[i], -150, 7 * apart, 300));
            painter.setBrush(QColor(250, 240, 214));
            painter.drawEllipse(QPointF(edges[i] + 3 * apart, -8), 4 * apart, 7 * apart);
        }
        painter.restore();
    }
    painter.setPen(QPen(QColor(140, 34, 28), 3));
    for (int i = 1; i + 1 < edges.size() && apart <= 0; ++i)
        if (cutSoFar * 5 >= i) {
            QPainterPath line(QPointF(edges[i], -150));
            line.lineTo(edges[i], 150);
            painter.save();
            painter.setClipPath(bodyOf(species), Qt::IntersectClip);
            painter.drawPath(line);
            painter.restore();
        }
    painter.setPen(Qt::NoPen);
}

/// The shadow of what still lies on the board.
void shadow(QPainter& painter, const Species& species, const Pose& pose) {
    const bool isInPortions = pose.of(QStringLiteral("porce")) > 0;
    if (pose.of(QStringLiteral("stín"), 1) <= 0 || isInPortions) return;
    const bool isTrunk = pose.of(QStringLiteral("kostra")) > 0;
    dropShadow(painter, isTrunk ? trunk(species) : bodyOf(species) + tailPath(), {10, 14}, 55);
}

/// Turns the fish over its belly onto its other side.
void roll(QPainter& painter, const Pose& pose) {
    const double side = std::abs(std::cos(M_PI * pose.of(QStringLiteral("převrácená"))));
    painter.scale(1, std::max(0.06, side));
}

void drawFish(QPainter& painter, const Species& species, const Pose& pose) {
    painter.setPen(Qt::NoPen);
    roll(painter, pose);
    shadow(painter, species, pose);
    if (pose.of(QStringLiteral("porce")) > 0 || pose.of(QStringLiteral("krájená")) > 0)
        return portions(painter, species, pose);
    if (pose.of(QStringLiteral("filet")) > 0) return opened(painter, species, pose);
    guts(painter, pose);
    wholeFish(painter, species, pose);
    belly(painter, pose);
    bare(painter, species, pose);
    cuts(painter, species, pose);
}

}  // namespace

void drawCarp(QPainter& painter, const Pose& pose) {
    drawFish(painter, carp(), pose);
}

void drawTrout(QPainter& painter, const Pose& pose) {
    drawFish(painter, trout(), pose);
}

}  // namespace sarne::disc
