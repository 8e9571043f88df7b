#include "screens/navigation/ornaments.h"

#include <QPainter>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace sarne {
namespace {

/// When a thing moves, in steps: first at \a start, then again every \a period.
struct Rhythm {
    int start, moves, period;
    QRectF place;
};

// Places are those of the picture that goes on around the design area.
constexpr Rhythm kRhythms[Ornaments::kThings] = {{25, 75, 260, {-3150, 900, 1250, 1750}},
                                                 {60, 44, 150, {-2420, 3260, 1500, 760}},
                                                 {10, 22, 90, {380, 3750, 1000, 1000}}};
constexpr QPointF kSpout{-2680, 2560};
constexpr QPointF kFlame{880, 4290};

/// From 0 up to 1 and down to 0 while \a phase goes from 0 to 1.
double wave(double phase) {
    return std::sin(std::numbers::pi * phase);
}

constexpr QColor kVapour(228, 226, 214);
constexpr QColor kLight(255, 206, 120);

/// A round light that fades to its edge. It is painted once and then drawn as a picture: of a gradient in
/// ever other strengths the painting keeps ever more tables of colours.
QImage glowOf(QColor color) {
    constexpr int kSide = 128;
    QImage glow(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
    glow.fill(Qt::transparent);
    QRadialGradient fade(QPointF(kSide / 2., kSide / 2.), kSide / 2.);
    fade.setColorAt(0, color);
    color.setAlpha(0);
    fade.setColorAt(1, color);
    QPainter(&glow).fillRect(glow.rect(), fade);
    return glow;
}

/// A glow, in one colour and any size and strength.
void paintGlow(QPainter& painter, const QImage& glow, QPointF middle, double radius, double strength) {
    painter.setOpacity(std::clamp(strength, 0., 1.));
    painter.drawImage(QRectF(middle.x() - radius, middle.y() - radius, 2 * radius, 2 * radius), glow);
    painter.setOpacity(1);
}

/// A few puffs, one behind another, that rise, widen and vanish.
void paintSteam(QPainter& painter, const QImage& glow, double phase) {
    constexpr int kPuffs = 9;
    constexpr double kLife = .45, kRise = 1350, kDrift = 260;  // a puff's share of the time; twips
    for (int puff = 0; puff < kPuffs; ++puff) {
        const double age = (phase - puff * (1 - kLife) / (kPuffs - 1)) / kLife;
        if (age <= 0 || age >= 1) continue;
        const double sway = kDrift * age + 60 * std::sin(7 * age + puff);
        paintGlow(painter, glow, kSpout + QPointF(sway, -kRise * age), 110 + 290 * age, .15 * wave(age));
    }
}

/// The light that the candle throws on the pane trembles.
void paintCandle(QPainter& painter, const QImage& glow, double phase) {
    const double tremble = .75 + .25 * std::sin(23 * phase) * std::sin(11 * phase);
    paintGlow(painter, glow, kFlame, 480, .22 * wave(phase) * tremble);
    paintGlow(painter, glow, kFlame + QPointF(12 * std::sin(19 * phase), -30), 90, .5 * wave(phase));
}

/// Lets a picture's edges fade out, as an ellipse.
void fadeEdges(QImage& image) {
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.scale(image.width() / 2., image.height() / 2.);
    QRadialGradient mask(QPointF(1, 1), 1);
    mask.setColorAt(.8, Qt::black);
    mask.setColorAt(1, Qt::transparent);
    painter.fillRect(QRectF(0, 0, 2, 2), mask);
}

}  // namespace

double Ornaments::phase(Thing thing) const {
    const Rhythm& rhythm = kRhythms[thing];
    const int since = step_ - rhythm.start;
    if (since < 0) return -1;
    const int at = since % rhythm.period;
    return at < rhythm.moves ? double(at) / rhythm.moves : -1;
}

int Ornaments::stepsUntilMove() const {
    int least = kRhythms[0].period;
    for (const Rhythm& rhythm : kRhythms) {
        const int since = step_ - rhythm.start;
        const int at = since < 0 ? since : since % rhythm.period;
        least = std::min(least, at < 0 ? -at : at < rhythm.moves ? 0 : rhythm.period - at);
    }
    return least;
}

QRectF Ornaments::place(Thing thing) {
    return kRhythms[thing].place;
}

/// The cat's back rises and falls by a hair; its cushion stays.
void Ornaments::paintCat(QPainter& painter, const std::function<void(QPainter&)>& kitchen) {
    constexpr double kBreath = .03;  // of its height
    const QTransform toPixels = painter.combinedTransform();
    const QRect pixels = toPixels.mapRect(place(kCat)).toAlignedRect();
    if (pixels.isEmpty()) return;
    if (cat_.size() != pixels.size()) {
        cat_ = QImage(pixels.size(), QImage::Format_ARGB32_Premultiplied);
        QPainter inside(&cat_);
        inside.setTransform(toPixels * QTransform::fromTranslate(-pixels.x(), -pixels.y()));
        kitchen(inside);
        inside.end();
        fadeEdges(cat_);
    }
    QRectF risen = toPixels.inverted().mapRect(QRectF(pixels));
    risen.setTop(risen.top() - kBreath * risen.height() * wave(phase(kCat)));
    painter.drawImage(risen, cat_);
}

void Ornaments::paint(QPainter& painter, const std::function<void(QPainter&)>& kitchen) {
    if (vapour_.isNull()) vapour_ = glowOf(kVapour), light_ = glowOf(kLight);
    if (phase(kSteam) >= 0) paintSteam(painter, vapour_, phase(kSteam));
    if (phase(kCandle) >= 0) paintCandle(painter, light_, phase(kCandle));
    if (phase(kCat) >= 0) paintCat(painter, kitchen);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
