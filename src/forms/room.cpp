#include "forms/room.h"

#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <future>
#include <utility>

#include "forms/colors.h"
#include "forms/stage.h"

namespace sarne {
namespace {

constexpr int kBlurred = 24;       // pixels across that are left of blurred surroundings
constexpr int kSampled = 240;      // pixels across that they are taken from
constexpr int kShade = 110;        // of the surroundings, of 255
constexpr double kHair = 1. / 64;  // less than this is no rest of the display
// Beyond its edge a picture goes on as in a mirror, soon only in the colours of its edge.
constexpr int kMirrored = 150, kTinted = 3600;  // twips until the one and the other have gone
constexpr int kEdge = 48, kEdgeTones = 40;      // parts of its width that are its edge; tones along that

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

/// \a strip as a mirror at the left of a picture shows it, less and less of it further out.
QImage fadedMirror(const QImage& strip) {
    QImage mirror = strip.mirrored(true, false).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QLinearGradient fade(0, 0, mirror.width(), 0);
    for (const double far : {0., .25, .5, .75, 1.})
        fade.setColorAt(far, QColor(0, 0, 0, int(255 * far * far * (3 - 2 * far))));
    QPainter inside(&mirror);
    inside.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    inside.fillRect(mirror.rect(), fade);
    return mirror;
}

/// The colours along the left edge of \a image, over \a size.
QImage edgeTones(const QImage& image, QSize size) {
    return image.copy(0, 0, std::max(1, image.width() / kEdge), image.height())
        .scaled(1, kEdgeTones, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// What \a image, which lies in \a place, goes on into beyond its left edge.
void continueLeft(QPainter& painter, const QRectF& place, const QImage& image) {
    const auto drawOut = [&](int far, const QImage& strip) {
        painter.drawImage(QRectF(place.left() - far, place.top(), far, place.height()), fadedMirror(strip));
    };
    const auto pixels = [&](int far) {
        return QSize(std::max(1, qRound(image.width() * far / place.width())), image.height());
    };
    drawOut(kTinted, edgeTones(image, pixels(kTinted)));
    drawOut(kMirrored, image.copy(QRect({}, pixels(kMirrored))));
}

/// Its right edge is the left one of the picture turned round, its upper and lower edge of the picture laid
/// on its side.
void paintContinued(QPainter& painter, const QRectF& covered, const QRectF& place, const QImage& image) {
    const bool upright = covered.height() - place.height() > covered.width() - place.width();
    const QImage lying = upright ? image.transformed(QTransform().rotate(-90)) : image;
    const QSizeF size = upright ? place.size().transposed() : place.size();
    for (const int turn : {0, 180}) {
        painter.save();
        painter.translate(place.center());
        painter.rotate(turn + (upright ? 90 : 0));
        continueLeft(painter, {{-size.width() / 2, -size.height() / 2}, size},
                     turn ? lying.mirrored(true, true) : lying);
        painter.restore();
    }
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
    void compose(QPainter& painter, const QRectF& part) const;
    QImage composed(QSize pixels, const QRectF& part) const;
    QImage ready(QSize pixels, const QRectF& part);

    Picture design, wide;
    bool covers = false;  // the design's picture lies over all of the display
    QPixmap drawn;
    QRectF covered;
    std::future<QImage> coming;  // what another thread composes
    QRectF comingPart;
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

void Room::Parts::compose(QPainter& painter, const QRectF& part) const {
    if (covers) {
        painter.save();
        painter.setClipRect(part, Qt::IntersectClip);
        drawWhole(painter, Picture::fitted(design.size(), part, Fit::Cover), design);
        return painter.restore();
    }
    const bool useWide = usesWide(part);
    const Picture& picture = useWide ? wide : design;
    const QRectF place = useWide ? widePlace(picture.size()) : designArea();
    const QRectF most = place.adjusted(-kHair, -kHair, kHair, kHair);
    if (useWide && most.top() <= part.top() && part.width() > most.width())
        return drawMirrored(painter, place, picture);
    if (most.contains(part)) return drawWhole(painter, place, picture);
    const QImage image = scaledFor(painter, place, picture);
    paintSurroundings(painter, part, image);
    paintContinued(painter, part, place, image);
    painter.drawImage(place, image);
}

/// The room in \a pixels, which show \a part of it.
QImage Room::Parts::composed(QSize pixels, const QRectF& part) const {
    QImage image = cut(pixels, part);
    if (!image.isNull()) return image;
    image = QImage(pixels, QImage::Format_RGB32);
    image.fill(colors::kNight);
    QPainter inside(&image);
    inside.setRenderHints(QPainter::SmoothPixmapTransform);
    inside.scale(pixels.width() / part.width(), pixels.height() / part.height());
    inside.translate(-part.topLeft());
    compose(inside, part);
    return image;
}

/// The same; what another thread composes is taken where it is this.
QImage Room::Parts::ready(QSize pixels, const QRectF& part) {
    QImage image = coming.valid() ? coming.get() : QImage();
    return comingPart == part && image.size() == pixels ? image : composed(pixels, part);
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

void Room::setDesign(Picture design) {
    if (parts_)
        parts_->design = std::move(design);
    else
        *this = Room(std::move(design));
}

void Room::compose(QPainter& painter, const QRectF& covered) const {
    parts_ ? parts_->compose(painter, covered) : painter.fillRect(covered, colors::kNight);
}

void Room::forget() {
    if (parts_) parts_->drawn = {};
}

void Room::prepare(QSize pixels, const QRectF& covered) const {
    if (!parts_ || pixels.isEmpty()) return;
    // The thread has pictures of its own: this room may be given another one meanwhile.
    auto parts = std::make_shared<Parts>();
    parts->design = parts_->design;
    parts->wide = parts_->wide;
    parts->covers = parts_->covers;
    parts_->comingPart = covered;
    parts_->coming =
        std::async(std::launch::async, [parts, pixels, covered] { return parts->composed(pixels, covered); });
}

void Room::draw(QPainter& painter, const QRectF& covered) const {
    const QRect pixels = painter.combinedTransform().mapRect(covered).toAlignedRect();
    if (!parts_ || pixels.isEmpty()) return painter.fillRect(covered, colors::kNight);
    if (parts_->drawn.size() != pixels.size() || parts_->covered != covered) {
        parts_->covered = covered;
        parts_->drawn = QPixmap::fromImage(parts_->ready(pixels.size(), covered));
    }
    painter.save();
    painter.setWorldTransform(QTransform());
    painter.drawPixmap(painter.combinedTransform().inverted().mapRect(QRectF(pixels)), parts_->drawn,
                       QRectF(QPointF(), pixels.size()));
    painter.restore();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
