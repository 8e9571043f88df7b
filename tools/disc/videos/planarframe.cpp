#include "planarframe.h"

#include <algorithm>

namespace sarne::disc {
namespace {

/// Fractions of 2 to the 15th.
constexpr int kShift = 15;
constexpr int kHalf = 1 << (kShift - 1);

uchar brightness(QRgb pixel) {
    const int sum = 8414 * qRed(pixel) + 16519 * qGreen(pixel) + 3208 * qBlue(pixel);
    return static_cast<uchar>((sum + kHalf + (16 << kShift)) >> kShift);
}

}  // namespace

PlanarFrame::PlanarFrame(const QSize& size)
    : size_(size), bytes_(qsizetype{size.width()} * size.height() * 3 / 2, '\x80') {
    std::fill_n(bytes_.begin(), qsizetype{size.width()} * size.height(), '\x10');
}

void PlanarFrame::update(const QImage& picture, const QRegion& changed) {
    for (const QRect& rect : changed& QRect(QPoint(0, 0), size_))
        for (int y = rect.top() & ~1; y <= rect.bottom(); y += 2)
            convertBlockRow(picture, y, rect.left() & ~1, rect.right() | 1);
}

/// Two lines, whose blocks of four pixels have one colour.
void PlanarFrame::convertBlockRow(const QImage& picture, int y, int left, int right) {
    const auto* above = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    const auto* below = reinterpret_cast<const QRgb*>(picture.constScanLine(y + 1));
    const qsizetype width = size_.width();
    auto* plane = reinterpret_cast<uchar*>(bytes_.data());
    uchar* upper = plane + y * width;
    uchar* lower = upper + width;
    for (int x = left; x <= right; ++x) {
        upper[x] = brightness(above[x]);
        lower[x] = brightness(below[x]);
    }
    uchar* blueness = plane + width * size_.height() + y / 2 * (width / 2);
    uchar* redness = blueness + width * size_.height() / 4;
    for (int x = left; x <= right; x += 2) {
        int red = 0, green = 0, blue = 0;
        for (const QRgb pixel : {above[x], above[x + 1], below[x], below[x + 1]}) {
            red += qRed(pixel);
            green += qGreen(pixel);
            blue += qBlue(pixel);
        }
        constexpr int kMiddle = (128 << (kShift + 2)) + 4 * kHalf;
        blueness[x / 2] =
            static_cast<uchar>((-4865 * red - 9528 * green + 14392 * blue + kMiddle) >> (kShift + 2));
        redness[x / 2] =
            static_cast<uchar>((14392 * red - 12061 * green - 2332 * blue + kMiddle) >> (kShift + 2));
    }
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
