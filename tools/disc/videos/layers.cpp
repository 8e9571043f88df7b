#include "layers.h"

#include <QPainter>
#include <algorithm>
#include <vector>

namespace sarne::disc {
namespace {

constexpr int kShadowRadius = kShadowMargin / 3;

/// The means of a row's pixels and their neighbours, written with \a step bytes from one to the next.
void blurLine(uchar* line, qsizetype step, int count, int radius, std::vector<int>& sums) {
    sums.assign(static_cast<size_t>(count) + 1, 0);
    for (int i = 0; i < count; ++i)
        sums[static_cast<size_t>(i) + 1] = sums[static_cast<size_t>(i)] + line[i * step];
    for (int i = 0; i < count; ++i) {
        const int first = std::max(0, i - radius);
        const int last = std::min(count, i + radius + 1);
        const int sum = sums[static_cast<size_t>(last)] - sums[static_cast<size_t>(first)];
        line[i * step] = static_cast<uchar>(sum / (2 * radius + 1));
    }
}

/// The picture's outline in black, soft, with room on all sides.
QImage shadowOf(const QImage& picture) {
    const int margin = kShadowMargin;
    const QSize size = (QSizeF(picture.size()) * kShadowScale).toSize();
    const QImage small = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_Alpha8);
    QImage room(size.grownBy({margin, margin, margin, margin}), QImage::Format_Alpha8);
    room.fill(0);
    for (int y = 0; y < size.height(); ++y)
        std::copy_n(small.constScanLine(y), size.width(), room.scanLine(y + margin) + margin);
    return blurred(room, kShadowRadius).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

}  // namespace

QImage blurred(QImage picture, int radius) {
    std::vector<int> sums;
    for (int round = 0; round < 3; ++round) {
        for (int y = 0; y < picture.height(); ++y)
            blurLine(picture.scanLine(y), 1, picture.width(), radius, sums);
        for (int x = 0; x < picture.width(); ++x)
            blurLine(picture.bits() + x, picture.bytesPerLine(), picture.height(), radius, sums);
    }
    return picture;
}

const QImage& PreparedLayer::at(double scale, double& share) const {
    int i = 0;
    for (share = 1; i < 2 && scale < 0.6 * share; ++i) share /= 2;
    return sizes[i];
}

const Picture& LayerStore::layer(const QString& name) const {
    static const Picture none;
    const auto found = cast_.layers.constFind(name);
    return found == cast_.layers.cend() ? none : *found;
}

const PreparedLayer& LayerStore::prepared(const QString& name) {
    const auto known = prepared_.constFind(name);
    if (known != prepared_.cend()) return *known;
    PreparedLayer made;
    made.sizes[0] = QImage(art_ + QStringLiteral("/rendered/film/") + layer(name).file)
                        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int i = 1; i < 3 && !made.sizes[0].isNull(); ++i)
        made.sizes[i] = made.sizes[i - 1].scaled(made.sizes[i - 1].size() / 2, Qt::IgnoreAspectRatio,
                                                 Qt::SmoothTransformation);
    return *prepared_.insert(name, made);
}

const QImage& LayerStore::shadow(const QString& name, int left, int right) {
    const auto key = std::make_tuple(name, left, right);
    const auto known = shadows_.find(key);
    if (known != shadows_.end()) return known->second;
    const QImage& picture = prepared(name).sizes[0];
    const QImage part = picture.copy(left, 0, std::max(1, right - left), std::max(1, picture.height()));
    return shadows_[key] = shadowOf(part);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
