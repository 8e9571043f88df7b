#include "forms/drawnpictures.h"

namespace sarne {

DrawnPictures& DrawnPictures::shared() {
    static DrawnPictures pictures;
    return pictures;
}

qsizetype DrawnPictures::kilobytes(QSize pixels) {
    return qsizetype(pixels.width()) * pixels.height() * 4 / 1024 + 1;
}

void DrawnPictures::setDisplay(QSize pixels) {
    kept_.setMaxCost(3 * kilobytes(pixels));
}

const QPixmap* DrawnPictures::find(const void* source, QSize pixels) const {
    return kept_.object({source, pixels});
}

void DrawnPictures::keep(const void* source, const QPixmap& drawn) {
    kept_.insert({source, drawn.size()}, new QPixmap(drawn), kilobytes(drawn.size()));
}

void DrawnPictures::forget(const void* source) {
    for (const Key& key : kept_.keys())
        if (key.source == source) kept_.remove(key);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
