#include "forms/finerpicture.h"

#include <QFile>

#include "forms/picturereader.h"

namespace sarne {
namespace {

bool isLarger(QSize one, QSize other) {
    return one.width() > other.width() && one.height() > other.height();
}

}  // namespace

QImage readFiner(const QString& bmp, QSize pixels) {
    if (!bmp.endsWith(QLatin1String(".bmp"), Qt::CaseInsensitive) || pixels.isEmpty()) return {};
    const QString stem = bmp.chopped(3);
    for (const char* ending : {"webp", "jpg"}) {
        const QString file = stem + QLatin1String(ending);
        if (!QFile::exists(file)) continue;
        const QSize own = PictureReader(bmp).size();
        PictureReader reader(file);
        if (isLarger(pixels, own) && isLarger(reader.size(), own)) return reader.read(pixels);
    }
    return {};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
