#include "forms/room.h"

#include <QPainter>
#include <QPixmap>

#include "forms/colors.h"
#include "forms/stage.h"

namespace sarne {
namespace {

constexpr int kBlurred = 24;       // pixels across that are left of blurred surroundings
constexpr int kSampled = 240;      // pixels across that they are taken from
constexpr int kShade = 110;        // of the surroundings, of 255
constexpr double kHair = 1. / 64;  // less than this is no rest of the display

QRectF designArea() {
    return {0, 0, Stage::kWidth, Stage::kHeight};
}

QImage scaledFor(const QPainter& painter, const QRectF& place, const Picture& picture) {
    return picture.scaled(painter.transform().mapRect(place).toAlignedRect().size());
}

void drawWhole(QPainter& painter, const QRectF& place, const Picture& picture) {
    painter.drawImage(place, scaledFor(painter, place, picture));
}

/// The same, and beyond its left and right edge as it looks in a mirror: a display wider than the picture
/// shows no edge.
void drawMirrored(QPainter& painter, const QRectF& place, const Picture& picture) {
    const QImage image = scaledFor(painter, place, picture);
    const QImage mirrored = image.mirrored(true, false);
    painter.drawImage(place.translated(-place.width(), 0), mirrored);
    painter.drawImage(place.translated(place.width(), 0), mirrored);
    painter.drawImage(place, image);
}

}  // namespace

void paintSurroundings(QPainter& painter, const QRectF& covered, const QImage& picture) {
    // Some of the pixels of a large picture tell enough of it, and are found at once.
    const QImage some = picture.width() > kSampled ? picture.scaled(kSampled, kSampled * 3 / 4) : picture;
    const QImage few =
        some.scaled(kBlurred, kBlurred * 3 / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.save();
    painter.setClipRect(covered, Qt::IntersectClip);
    painter.drawImage(Picture::fitted(picture.size(), covered, Fit::Cover), few);
    QColor shade = colors::kNight;
    shade.setAlpha(kShade);
    painter.fillRect(covered, shade);
    painter.restore();
}

/// The pictures, and the room as it was last drawn.
struct Room::Parts {
    bool usesWide(const QRectF& part) const {
        return design.isNull() || (!wide.isNull() && part != designArea());
    }
    QImage cut(QSize pixels, const QRectF& part) const;

    Picture design, wide;
    bool covers = false;  // the design's picture lies over all of the display
    QPixmap composed;
    QRectF covered;
};

/// The room in \a pixels, which show \a part of it, where the wide picture has them without being painted.
/// Null where it has not.
QImage Room::Parts::cut(QSize pixels, const QRectF& part) const {
    if (covers || !usesWide(part)) return {};
    const double scale = pixels.height() / part.height();
    const QRectF place = widePlace(wide.size());
    const QRectF whole((place.topLeft() - part.topLeft()) * scale, place.size() * scale);
    const QRect exact = whole.toRect();
    const auto isHair = [](double far) { return qAbs(far) < kHair; };
    if (!isHair(whole.left() - exact.left()) || !isHair(whole.top() - exact.top()) ||
        !isHair(whole.width() - exact.width()) || !isHair(whole.height() - exact.height()) ||
        !exact.contains(QRect({}, pixels)))
        return {};
    return wide.scaledPart(exact.size(), QRect(-exact.topLeft(), pixels));
}

Room::Room(Picture design, Picture wide) {
    if (design.isNull() && wide.isNull()) return;
    parts_ = std::make_shared<Parts>();
    parts_->design = std::move(design);
    parts_->wide = std::move(wide);
}

Room Room::covering(Picture picture) {
    Room room(std::move(picture));
    if (room.parts_) room.parts_->covers = true;
    return room;
}

Picture Room::design() const {
    return parts_ ? parts_->design : Picture();
}

QRectF Room::widePlace(QSizeF picture) {
    const double width = Stage::kHeight * picture.width() / picture.height();
    return {(Stage::kWidth - width) / 2, 0, width, Stage::kHeight};
}

void Room::compose(QPainter& painter, const QRectF& covered) const {
    if (!parts_) return painter.fillRect(covered, colors::kNight);
    if (parts_->covers) {
        painter.save();
        painter.setClipRect(covered, Qt::IntersectClip);
        drawWhole(painter, Picture::fitted(parts_->design.size(), covered, Fit::Cover), parts_->design);
        return painter.restore();
    }
    const bool useWide = parts_->usesWide(covered);
    const Picture& picture = useWide ? parts_->wide : parts_->design;
    const QRectF place = useWide ? widePlace(picture.size()) : designArea();
    const QRectF most = place.adjusted(-kHair, -kHair, kHair, kHair);
    if (useWide && most.top() <= covered.top() && covered.width() > most.width())
        return drawMirrored(painter, place, picture);
    if (!most.contains(covered))
        paintSurroundings(painter, covered, picture.scaled({kBlurred * 4, kBlurred * 3}));
    drawWhole(painter, place, picture);
}

void Room::forget() {
    if (parts_) parts_->composed = {};
}

QImage Room::composed(QSize pixels, const QRectF& covered) const {
    QImage image = parts_->cut(pixels, covered);
    if (!image.isNull()) return image;
    image = QImage(pixels, QImage::Format_RGB32);
    image.fill(colors::kNight);
    QPainter inside(&image);
    inside.setRenderHints(QPainter::SmoothPixmapTransform);
    inside.scale(pixels.width() / covered.width(), pixels.height() / covered.height());
    inside.translate(-covered.topLeft());
    compose(inside, covered);
    return image;
}

void Room::draw(QPainter& painter, const QRectF& covered) const {
    const QRect pixels = painter.combinedTransform().mapRect(covered).toAlignedRect();
    if (!parts_ || pixels.isEmpty()) return painter.fillRect(covered, colors::kNight);
    if (parts_->composed.size() != pixels.size() || parts_->covered != covered) {
        parts_->covered = covered;
        parts_->composed = QPixmap::fromImage(composed(pixels.size(), covered));
    }
    painter.save();
    painter.setWorldTransform(QTransform());
    painter.drawPixmap(painter.combinedTransform().inverted().mapRect(QRectF(pixels)), parts_->composed,
                       QRectF(QPointF(), pixels.size()));
    painter.restore();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
