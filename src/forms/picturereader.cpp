#include "forms/picturereader.h"

namespace sarne {
namespace {

bool isLarger(QSize one, QSize other) {
    return one.width() > other.width() && one.height() > other.height();
}

/// The name of the format that \a device begins in; empty when it is none that a disc holds.
QByteArray formatOf(QIODevice& device) {
    constexpr qsizetype kLongest = 12;
    const QByteArray start = device.peek(kLongest);
    if (start.startsWith("\xff\xd8\xff")) return "jpeg";
    if (start.startsWith("\x89PNG")) return "png";
    if (start.startsWith("BM")) return "bmp";
    if (start.startsWith("RIFF") && start.endsWith("WEBP")) return "webp";
    return {};
}

/// Whether the JPEG decoder, which makes eighths of a picture, gives \a pixels out of \a own by itself.
bool isEighths(QSize own, QSize pixels) {
    const int eighths = own.width() > 0 ? pixels.width() * 8 / own.width() : 0;
    return eighths >= 1 && eighths <= 8 && own * eighths == pixels * 8;
}

}  // namespace

PictureReader::PictureReader(const QString& file) : file_(file) {
    begin(file_);
}

PictureReader::PictureReader(const QByteArray& encoded) {
    buffer_.setData(encoded);
    begin(buffer_);
}

void PictureReader::begin(QIODevice& device) {
    if (!device.open(QIODevice::ReadOnly)) return;
    reader_.setDevice(&device);
    reader_.setFormat(formatOf(device));
}

QImage PictureReader::read(QSize pixels) {
    // The JPEG decoder makes a smaller picture much faster than a full one. Where it cannot give the very
    // size, it is asked for twice of it so that the last step is a smooth one.
    const QSize own = pixels.isValid() ? size() : QSize();
    if (reader_.format() == "jpeg" && isEighths(own, pixels))
        reader_.setScaledSize(pixels);
    else if (isLarger(own, pixels * 2))
        reader_.setScaledSize(pixels * 2);
    return reader_.read();
}

QImage PictureReader::readPart(QSize whole, const QRect& part) {
    reader_.setScaledSize(whole);
    reader_.setScaledClipRect(part);
    return reader_.read();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
