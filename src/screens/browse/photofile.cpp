#include "screens/browse/photofile.h"

#include <QFile>
#include <QtEndian>

#include "core/checked.h"
#include "forms/finerpicture.h"
#include "forms/picturereader.h"

namespace sarne {
namespace {

/// Whether \a file is an uncompressed bitmap that ends before its last row: the decoder would fill the rest
/// with black.
bool isCutShort(QFile& file) {
    constexpr qint64 kHeader = 54, kOffset = 14;
    const QByteArray header = file.peek(kHeader);
    if (header.size() < kOffset || !header.startsWith("BM")) return false;
    const auto number = [&](int at) { return qFromLittleEndian<qint32>(header.constData() + at); };
    if (number(kOffset - 4) >= file.size()) return true;  // it may say that it is a gigabyte large
    if (header.size() < kHeader) return false;
    const qint64 offset = number(10), width = number(18), height = number(22);
    const int bits = qFromLittleEndian<quint16>(header.constData() + 28), compression = number(30);
    if (compression != 0 || width <= 0) return false;
    const qint64 row = (width * bits + 31) / 32 * 4;
    return file.size() - offset < boundedProduct(row, qAbs(height));
}

/// Lets the decoder make pictures of up to a gigabyte; it would stop at an eighth of that.
void allowLargePhotos() {
    static const bool once = (QImageReader::setAllocationLimit(1024), true);
    Q_UNUSED(once);
}

}  // namespace

QImage readPhoto(const QString& name) {
    allowLargePhotos();
    QFile file(name);
    if (name.isEmpty() || !file.open(QIODevice::ReadOnly) || isCutShort(file)) return {};
    return PictureReader(name).read();
}

QImage readPhoto(const QString& file, QSize room) {
    if (room.isEmpty()) return {};
    allowLargePhotos();
    QImage photo = readFiner(file, room);
    if (photo.isNull()) photo = readPhoto(file);
    if (photo.isNull()) return {};
    const QSize fitted = photo.size().scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
    if (fitted != photo.size()) photo = photo.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return std::move(photo).convertToFormat(QImage::Format_RGB32);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
