#pragma once

#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QImage>

namespace sarne::test {

/// A picture of one colour.
inline QImage plain(QSize size, const QColor& color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// Writes \a picture as the file \a path, whose folders are made, in the format \a format or in that of the
/// name; whether it is there now.
[[nodiscard]] inline bool write(const QString& path, const QImage& picture, const char* format = nullptr) {
    return QDir().mkpath(QFileInfo(path).path()) && picture.save(path, format, 100);
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
