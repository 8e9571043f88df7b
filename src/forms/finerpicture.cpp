#include "forms/finerpicture.h"

#include <QFile>
#include <QImageReader>

namespace sarne {
namespace {

bool isLarger(QSize one, QSize other) {
    return one.width() > other.width() && one.height() > other.height();
}

}  // namespace

QImage readFor(QImageReader& reader, QSize pixels) {
    // The JPEG decoder makes a smaller picture much faster than a full one; it is asked for twice the size so
    // that the last step is a smooth one.
    const QSize twice = pixels * 2;
    if (pixels.isValid() && isLarger(reader.size(), twice)) reader.setScaledSize(twice);
    return reader.read();
}

QImage readFiner(const QString& bmp, QSize pixels) {
    if (!bmp.endsWith(QLatin1String(".bmp"), Qt::CaseInsensitive) || pixels.isEmpty()) return {};
    const QString stem = bmp.chopped(3);
    for (const char* ending : {"webp", "jpg"}) {
        const QString file = stem + QLatin1String(ending);
        if (!QFile::exists(file)) continue;
        const QSize own = QImageReader(bmp).size();
        QImageReader reader(file);
        if (isLarger(pixels, own) && isLarger(reader.size(), own)) return readFor(reader, pixels);
    }
    return {};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
