#include "forms/picture.h"

#include <QPainter>
#include <QPixmap>

#include "forms/drawnpictures.h"
#include "forms/finerpicture.h"
#include "forms/picturereader.h"

namespace sarne {

/// Where a picture comes from.
struct Picture::Source {
    Source() = default;
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
    ~Source() { DrawnPictures::shared().forget(this); }

    QByteArray encoded;
    QString file;
    QImage decoded;
    QSize size;

    QImage decode(QSize pixels) const;
    QImage exactly(QSize pixels) const;
    QImage partOf(QSize whole, const QRect& part) const;
    QPixmap at(QSize pixels) const;

  private:
    QImage readFile(QSize pixels) const;
};

QImage Picture::Source::readFile(QSize pixels) const {
    QImage finer = readFiner(file, pixels);
    if (!finer.isNull()) return finer;
    return PictureReader(file).read(pixels);
}

QImage Picture::Source::decode(QSize pixels) const {
    if (!decoded.isNull()) return decoded;
    if (encoded.isEmpty()) return readFile(pixels);
    return PictureReader(encoded).read(pixels);
}

QPixmap Picture::Source::at(QSize pixels) const {
    if (const QPixmap* kept = DrawnPictures::shared().find(this, pixels)) return *kept;
    QImage image = exactly(pixels);
    if (image.isNull()) return {};
    QPixmap drawn = QPixmap::fromImage(std::move(image));
    DrawnPictures::shared().keep(this, drawn);
    return drawn;
}

QImage Picture::Source::exactly(QSize pixels) const {
    const QImage image = decode(pixels);
    return image.isNull() || image.size() == pixels
               ? image
               : image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage Picture::Source::partOf(QSize whole, const QRect& part) const {
    if (!decoded.isNull()) return exactly(whole).copy(part);
    return encoded.isEmpty() ? PictureReader(file).readPart(whole, part)
                             : PictureReader(encoded).readPart(whole, part);
}

Picture Picture::fromData(const QByteArray& encoded) {
    Picture picture;
    if (encoded.isEmpty()) return picture;
    const QSize size = PictureReader(encoded).size();
    if (size.isEmpty()) return picture;
    picture.source_ = std::make_shared<Source>();
    picture.source_->encoded = encoded;
    picture.source_->size = size;
    return picture;
}

Picture Picture::fromFile(const QString& file) {
    Picture picture;
    if (file.isEmpty()) return picture;
    const QSize size = PictureReader(file).size();
    if (size.isEmpty()) return picture;
    picture.source_ = std::make_shared<Source>();
    picture.source_->file = file;
    picture.source_->size = size;
    return picture;
}

Picture Picture::fromImage(const QImage& image) {
    Picture picture;
    if (image.isNull()) return picture;
    picture.source_ = std::make_shared<Source>();
    picture.source_->decoded = image;
    picture.source_->size = image.size();
    return picture;
}

QSize Picture::size() const {
    return source_ ? source_->size : QSize();
}

QRectF Picture::fitted(QSizeF picture, const QRectF& place, Fit fit) {
    if (fit == Fit::Stretch || picture.isEmpty()) return place;
    const auto mode = fit == Fit::Inside ? Qt::KeepAspectRatio : Qt::KeepAspectRatioByExpanding;
    QRectF fitted(QPointF(), picture.scaled(place.size(), mode));
    fitted.moveCenter(place.center());
    return fitted;
}

void Picture::draw(QPainter& painter, const QRectF& place, Fit fit) const {
    if (!source_) return;
    const QTransform toPixels = painter.combinedTransform();
    const QRect pixels = toPixels.mapRect(fitted(size(), place, fit)).toAlignedRect();
    const QPixmap drawn = pixels.isEmpty() ? QPixmap() : source_->at(pixels.size());
    if (drawn.isNull()) return;
    painter.save();
    if (fit == Fit::Cover) painter.setClipRect(place, Qt::IntersectClip);
    painter.setWorldTransform(QTransform());
    const QTransform device = painter.combinedTransform().inverted();
    painter.drawPixmap(device.mapRect(QRectF(pixels)), drawn, QRectF(QPointF(), drawn.size()));
    painter.restore();
}

void Picture::drawExactly(QPainter& painter, const QRectF& place) const {
    const QPixmap own = pixmap(size());
    if (!own.isNull()) painter.drawPixmap(place, own, QRectF(QPointF(), own.size()));
}

QImage Picture::image() const {
    return source_ ? source_->decode({}) : QImage();
}

QImage Picture::scaled(QSize pixels) const {
    return source_ && !pixels.isEmpty() ? source_->exactly(pixels) : QImage();
}

QImage Picture::scaledPart(QSize whole, const QRect& part) const {
    return source_ && !whole.isEmpty() ? source_->partOf(whole, part) : QImage();
}

QPixmap Picture::pixmap(QSize pixels) const {
    return source_ && !pixels.isEmpty() ? source_->at(pixels) : QPixmap();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
