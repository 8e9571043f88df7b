#include "contactsheets.h"

#include <QPainter>
#include <algorithm>

namespace sarne {
namespace {

constexpr int kWidth = 480;  // pixels of one print
constexpr int kColumns = 4, kRows = 5;
constexpr int kGap = 8, kName = 22;  // pixels round the prints, and of the line with a name

}  // namespace

void ContactSheets::add(const QString& name, const QImage& screen) {
    prints_.push_back({name, screen.scaledToWidth(kWidth, Qt::SmoothTransformation)});
    prints_.back().picture.setDevicePixelRatio(1);
}

QImage ContactSheets::sheet(const QList<Print>& prints) {
    int height = 0;
    for (const Print& print : prints) height = std::max(height, print.picture.height());
    const int rows = int(prints.size() + kColumns - 1) / kColumns;
    const QSize step(kWidth + kGap, height + kName + kGap);
    QImage sheet(kColumns * step.width() + kGap, rows * step.height() + kGap, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    for (int i = 0; i < prints.size(); ++i) {
        const QPoint at(kGap + i % kColumns * step.width(), kGap + i / kColumns * step.height());
        painter.drawText(QRect(at, QSize(kWidth, kName)), Qt::AlignVCenter, prints[i].name);
        painter.drawImage(at + QPoint(0, kName), prints[i].picture);
    }
    return sheet;
}

QList<QImage> ContactSheets::sheets() const {
    QList<QImage> all;
    for (int from = 0; from < prints_.size(); from += kColumns * kRows)
        all << sheet(prints_.mid(from, kColumns * kRows));
    return all;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
