#include "forms/picturereader.h"

#include "forms/pngpicture.h"

namespace sarne {
namespace {

bool isLarger(QSize one, QSize other) {
    return one.width() > other.width() && one.height() > other.height();
}

/// Whether the JPEG decoder, which makes eighths of a picture, gives \a pixels out of \a own by itself.
bool isEighths(QSize own, QSize pixels) {
    const int eighths = own.width() > 0 ? pixels.width() * 8 / own.width() : 0;
    return eighths >= 1 && eighths <= 8 && own * eighths == pixels * 8;
}

}  // namespace

PictureReader::PictureReader(const QString& file) : file_(file) {
    begin();
}

PictureReader::PictureReader(const QByteArray& encoded) : file_(encoded) {
    begin();
}

void PictureReader::begin() {
    if (file_.begin()) reader_.setDevice(&file_);
}

QImage PictureReader::read(QSize pixels) {
    if (file_.format() == "png") return file_.seek(0) ? decodePng(file_.readAll()) : QImage();
    // The JPEG decoder makes a smaller picture much faster than a full one. Where it cannot give the very
    // size, it is asked for twice of it so that the last step is a smooth one.
    const QSize own = pixels.isValid() ? size() : QSize();
    if (file_.format() == "jpeg" && isEighths(own, pixels))
        reader_.setScaledSize(pixels);
    else if (isLarger(own, pixels * 2))
        reader_.setScaledSize(pixels * 2);
    return readOver();
}

QImage PictureReader::readOver() {
    QImage image;
    if (file_.format() == "bmp" && !reader_.size().isEmpty()) {
        image = QImage(reader_.size(), reader_.imageFormat());
        image.fill(0);
    }
    return reader_.read(&image) ? image : QImage();
}

QImage PictureReader::readPart(QSize whole, const QRect& part) {
    reader_.setScaledSize(whole);
    reader_.setScaledClipRect(part);
    return readOver();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
