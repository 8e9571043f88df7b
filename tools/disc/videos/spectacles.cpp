#include "spectacles.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace sarne::disc {
namespace {

/// A number between 0 and 1 that looks random and is the same every time.
double scatter(int index, int salt) {
    quint32 x =
        static_cast<quint32>(index) * 2654435761U + static_cast<quint32>(salt) * 40503U * 65537U + 12345U;
    x ^= x >> 15;
    x *= 2246822519U;
    x ^= x >> 13;
    x *= 3266489917U;
    x ^= x >> 16;
    return x / 4294967296.0;
}

double spread(int index, int salt) {
    return 2 * scatter(index, salt) - 1;
}

/// A round spot that fades towards its edge.
void softSpot(QPainter& painter, QPointF centre, double rx, double ry, const QColor& colour) {
    painter.save();
    painter.translate(centre);
    painter.scale(rx, ry);
    QRadialGradient paint(QPointF(0, 0), 1);
    QColor none = colour;
    none.setAlpha(0);
    paint.setColorAt(0, colour);
    paint.setColorAt(1, none);
    painter.setPen(Qt::NoPen);
    painter.setBrush(paint);
    painter.drawEllipse(QPointF(0, 0), 1, 1);
    painter.restore();
}

QColor white(double alpha) {
    return QColor(255, 252, 244, static_cast<int>(255 * std::clamp(alpha, 0.0, 1.0)));
}

/// One of many that are born \a perSecond times a second and live for \a life seconds.
struct Grain {
    int index = 0;
    double age = 0;
};

/// The grains that live at a moment; none is born in the last moments.
QList<Grain> grains(double seconds, double left, double perSecond, double life) {
    QList<Grain> all;
    const int last = static_cast<int>(std::floor((seconds + std::min(0.0, left - life)) * perSecond));
    const int first = std::max(0, static_cast<int>((seconds - life) * perSecond));
    for (int i = first; i <= last; ++i)
        if (const double age = seconds - i / perSecond; age < life) all << Grain{i, age};
    return all;
}

/// A stream that comes from above, and what runs off where it meets the fish.
void drawWater(QPainter& painter, double seconds, double left) {
    const double force = std::min({1.0, seconds * 3, left * 3});
    for (int i = 0; i < 9; ++i) {
        const double x = spread(i, 1) * 0.75;
        QPainterPath path(QPointF(x * 0.6, -18));
        for (double y = -18; y < 0.5 * spread(i, 2); y += 0.8)
            path.lineTo(x * (0.6 + 0.4 * (y + 18) / 18) + 0.1 * std::sin(y * 1.3 - seconds * 22 + i), y);
        painter.setPen(QPen(QColor(215, 236, 240, static_cast<int>(90 * force)), 0.12 + 0.2 * scatter(i, 3),
                            Qt::SolidLine, Qt::RoundCap));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(path);
    }
    for (const Grain& one : grains(seconds, left, 26, 0.7)) {
        const double share = one.age / 0.7;
        const QPointF to(spread(one.index, 4) * 5.5, 0.6 + scatter(one.index, 5) * 3.6);
        softSpot(painter, to * share, 0.9 + 1.4 * share, 0.35 + 0.3 * share,
                 QColor(225, 242, 244, static_cast<int>(95 * force * (1 - share))));
        const QPointF drop(to.x() * 1.1 * share, to.y() * share - 2.4 * share * (1 - share));
        softSpot(painter, drop, 0.12, 0.16, white(0.8 * (1 - share)));
    }
}

/// Scales that spring off and fall.
void drawScales(QPainter& painter, double seconds, double left) {
    for (const Grain& one : grains(seconds, left, 22, 0.75)) {
        const double speed = 6 + 6 * scatter(one.index, 1);
        const double angle = -0.3 - 2.4 * scatter(one.index, 2);
        const QPointF at(std::cos(angle) * speed * one.age,
                         std::sin(angle) * speed * one.age + 13 * one.age * one.age);
        painter.save();
        painter.translate(at);
        painter.rotate(360 * scatter(one.index, 3) + 500 * one.age * spread(one.index, 4));
        const double tilt = 0.35 + 0.6 * std::abs(std::sin(one.age * 14 + one.index));
        painter.setPen(QPen(QColor(120, 100, 50, 110), 0.04));
        QLinearGradient shine(-0.3, -0.3, 0.3, 0.3);
        shine.setColorAt(0, QColor(255, 250, 222, 230));
        shine.setColorAt(1, QColor(190, 168, 104, 190));
        painter.setBrush(shine);
        painter.drawEllipse(QPointF(0, 0), 0.34, 0.34 * tilt);
        painter.restore();
    }
}

void drawSteam(QPainter& painter, double seconds, double left) {
    const double force = std::min({1.0, seconds, left * 1.5});
    for (const Grain& one : grains(seconds + 2, left + 2.4, 5, 2.4)) {
        const double share = one.age / 2.4;
        const QPointF at(spread(one.index, 1) * 3.4 + std::sin(one.age * 2 + one.index) * 0.7 * share,
                         -9 * share + spread(one.index, 2));
        softSpot(painter, at, 1.4 + 2.2 * share, 1.6 + 2.4 * share,
                 white(0.17 * force * std::sin(M_PI * share)));
    }
}

void drawBubbles(QPainter& painter, double seconds, double left) {
    for (const Grain& one : grains(seconds + 0.5, left + 0.5, 70, 0.5)) {
        const double angle = 2 * M_PI * scatter(one.index, 1);
        const double far = 0.86 + 0.28 * scatter(one.index, 2);
        const double radius = (0.1 + 0.2 * scatter(one.index, 3)) * std::sin(M_PI * one.age / 0.5);
        const QPointF at(6.1 * far * std::cos(angle), 3.6 * far * std::sin(angle));
        painter.setPen(QPen(QColor(255, 236, 180, 150), 0.05));
        painter.setBrush(QColor(255, 226, 150, 60));
        painter.drawEllipse(at, radius, radius * 0.9);
        softSpot(painter, at - QPointF(radius, radius) * 0.35, radius * 0.4, radius * 0.4, white(0.8));
    }
}

/// Bubbles that come up all over a pot.
void drawSimmer(QPainter& painter, double seconds, double left) {
    for (const Grain& one : grains(seconds, left, 40, 0.6)) {
        const double angle = 2 * M_PI * scatter(one.index, 1);
        const double far = std::sqrt(scatter(one.index, 2));
        const double radius = 0.15 + 0.5 * one.age * (0.4 + scatter(one.index, 3));
        const QPointF at(8 * far * std::cos(angle), 6.6 * far * std::sin(angle) - 3);
        painter.setPen(QPen(white(0.45 * (1 - one.age / 0.6)), 0.07));
        painter.setBrush(white(0.12 * (1 - one.age / 0.6)));
        painter.drawEllipse(at, radius, radius * 0.9);
    }
}

void drawDust(QPainter& painter, double seconds, double left) {
    for (const Grain& one : grains(seconds, left, 30, 0.9)) {
        const double share = one.age / 0.9;
        const QPointF to(spread(one.index, 1) * 5, spread(one.index, 2) * 3 - 1.2);
        softSpot(painter, to * std::sqrt(share), 0.5 + share, 0.4 + 0.8 * share, white(0.22 * (1 - share)));
    }
}

void drawSalt(QPainter& painter, double seconds, double left) {
    for (const Grain& one : grains(seconds, left, 120, 0.4)) {
        const double share = one.age / 0.4;
        const QPointF to(spread(one.index, 1) * 5.5, spread(one.index, 2) * 1.6);
        const QPointF at(to.x() * (0.3 + 0.7 * share), to.y() - 6 * (1 - share) * (1 - share * 0.3));
        painter.setPen(Qt::NoPen);
        painter.setBrush(white(0.9));
        painter.drawEllipse(at, 0.055, 0.075);
    }
}

void drawDrops(QPainter& painter, double seconds, double left) {
    for (const Grain& one : grains(seconds, left, 5, 0.6)) {
        const double fall = 9 * one.age * one.age;
        const QPointF at(spread(one.index, 1) * 2.5, 0.8 + fall);
        softSpot(painter, at, 0.16, 0.3, QColor(250, 214, 120, 230));
        softSpot(painter, at - QPointF(0.04, 0.1), 0.06, 0.08, white(0.9));
    }
}

/// A thin stream of stock, golden.
void drawPouring(QPainter& painter, double seconds, double left) {
    const double top = -6 + 6 * std::clamp(1 - left * 4, 0.0, 1.0);
    const double low = -6 + 6 * std::clamp(seconds * 4, 0.0, 1.0);
    QPainterPath path(QPointF(0, top));
    for (double y = top; y < low; y += 0.3) path.lineTo(0.07 * std::sin(y * 2.2 - seconds * 16), y);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(214, 158, 60, 215), 0.55, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(path);
    painter.setPen(QPen(QColor(255, 236, 180, 190), 0.14, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(path.translated(-0.1, 0));
    for (const Grain& one : grains(seconds, left, 3, 0.9)) {
        const double share = one.age / 0.9;
        painter.setPen(QPen(QColor(255, 240, 200, static_cast<int>(150 * (1 - share))), 0.08));
        painter.drawEllipse(QPointF(0, 0), 3.4 * share, 1.9 * share);
    }
}

}  // namespace

QRectF reachOf(Spectacle kind) {
    switch (kind) {
        case Spectacle::water:
            return {-8, -19, 16, 25};
        case Spectacle::scales:
            return {-10, -8, 20, 17};
        case Spectacle::steam:
            return {-8, -14, 16, 18};
        case Spectacle::bubbles:
            return {-8, -5, 16, 10};
        case Spectacle::simmer:
            return {-10, -11, 20, 16};
        case Spectacle::flour:
            return {-7, -6, 14, 10};
        case Spectacle::salt:
            return {-7, -9, 14, 12};
        case Spectacle::drops:
            return {-4, 0, 8, 6};
        case Spectacle::pouring:
            return {-4, -8, 8, 11};
    }
    return {};
}

void drawSpectacle(QPainter& painter, Spectacle kind, double seconds, double left) {
    switch (kind) {
        case Spectacle::water:
            return drawWater(painter, seconds, left);
        case Spectacle::scales:
            return drawScales(painter, seconds, left);
        case Spectacle::steam:
            return drawSteam(painter, seconds, left);
        case Spectacle::bubbles:
            return drawBubbles(painter, seconds, left);
        case Spectacle::simmer:
            return drawSimmer(painter, seconds, left);
        case Spectacle::flour:
            return drawDust(painter, seconds, left);
        case Spectacle::salt:
            return drawSalt(painter, seconds, left);
        case Spectacle::drops:
            return drawDrops(painter, seconds, left);
        case Spectacle::pouring:
            return drawPouring(painter, seconds, left);
    }
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
