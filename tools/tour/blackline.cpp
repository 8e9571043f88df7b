#include "blackline.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace sarne {
namespace {

bool isBlack(QRgb pixel) {
    constexpr int kDark = 4;  // of 255: what a display shows as black
    return std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}) < kDark;
}

}  // namespace

QString blackLine(const QImage& screen) {
    const QImage image = screen.convertToFormat(QImage::Format_RGB32);
    std::vector<int> columns(size_t(image.width()));  // those that may still be black
    std::iota(columns.begin(), columns.end(), 0);
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        if (std::all_of(row, row + image.width(), isBlack))
            return QStringLiteral("row %1 is plain black").arg(y);
        std::erase_if(columns, [row](int x) { return !isBlack(row[x]); });
    }
    return columns.empty() ? QString() : QStringLiteral("column %1 is plain black").arg(columns.front());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
