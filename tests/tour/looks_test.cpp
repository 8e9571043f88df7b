#include "tour/looks.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QTemporaryDir>

namespace sarne {
namespace {

/// A screen with a lively ground, a sheet of paper and a dish of \a dish on it.
QImage screen(const QColor& dish) {
    QImage image(800, 600, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient ground(0, 0, 800, 600);
    ground.setColorAt(0, QColor(30, 60, 70));
    ground.setColorAt(1, QColor(150, 120, 80));
    painter.fillRect(image.rect(), ground);
    painter.fillRect(300, 100, 450, 400, QColor(245, 238, 220));
    painter.fillRect(60, 150, 200, 150, dish);
    return image;
}

TEST(Looks, AnotherDishPassesAMissingGroundDoesNot) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("looks.txt")), name = QStringLiteral("frmRecept-0");
    const auto fault = [&](const QImage& image) {
        return Looks(file, QStringLiteral("800x600")).fault(name, image);
    };
    EXPECT_NE(fault(screen(Qt::darkRed)), QString()) << "nothing is kept yet";
    for (const char* size : {"800x600", "1920x1080"}) {
        Looks looks(file, QLatin1String(size));
        looks.fault(name, screen(Qt::darkRed));
        ASSERT_TRUE(looks.accept());
    }
    EXPECT_EQ(fault(screen(Qt::darkRed)), QString());
    EXPECT_EQ(fault(screen(Qt::darkYellow)), QString());
    QImage flat = screen(Qt::darkRed);
    flat.fill(QColor(11, 23, 32));
    EXPECT_NE(fault(flat), QString());
    QPainter(&flat).drawImage(300, 100, screen(Qt::darkRed).copy(300, 100, 450, 400));
    EXPECT_NE(fault(flat), QString()) << "the paper is there, the ground is not";
    EXPECT_EQ(Looks(file, QStringLiteral("1920x1080")).fault(name, screen(Qt::darkRed)), QString());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
