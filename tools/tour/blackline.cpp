#include "blackline.h"

#include <algorithm>

namespace sarne {
namespace {

bool isBlack(QRgb pixel) {
    constexpr int kDark = 4;  // of 255: what a display shows as black
    return std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}) < kDark;
}

}  // namespace

QString blackLine(const QImage& screen) {
    const QImage image = screen.convertToFormat(QImage::Format_RGB32);
    std::vector<bool> columns(size_t(image.width()), true);  // those that may still be black
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        bool black = true;
        for (int x = 0; x < image.width(); ++x) {
            const bool here = isBlack(row[x]);
            black = black && here;
            if (!here) columns[size_t(x)] = false;
        }
        if (black) return QStringLiteral("row %1 is plain black").arg(y);
    }
    const auto column = std::find(columns.begin(), columns.end(), true);
    if (column == columns.end()) return {};
    return QStringLiteral("column %1 is plain black").arg(column - columns.begin());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
