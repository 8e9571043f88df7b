#include "forms/picture.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>

namespace sarne {
namespace {

QByteArray encoded(QSize size, const char* format) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QImage drawn(const Picture& picture, Fit fit) {
    QImage canvas(100, 60, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    painter.scale(.1, .1);
    picture.draw(painter, {100, 100, 800, 400}, fit);
    return canvas;
}

TEST(Picture, KeepsItsProportions) {
    const Picture square = Picture::fromData(encoded({50, 50}, "BMP"));
    EXPECT_EQ(square.size(), QSize(50, 50));
    const QImage inside = drawn(square, Fit::Inside);
    EXPECT_EQ(inside.pixelColor(50, 30), QColor(Qt::red));
    EXPECT_EQ(inside.pixelColor(20, 30), QColor(Qt::white));
    EXPECT_EQ(drawn(square, Fit::Stretch).pixelColor(12, 12), QColor(Qt::red));
    const QImage cover = drawn(square, Fit::Cover);
    EXPECT_EQ(cover.pixelColor(12, 12), QColor(Qt::red));
    EXPECT_EQ(cover.pixelColor(50, 55), QColor(Qt::white));
}

TEST(Picture, BrokenOnesDrawNothing) {
    QTemporaryDir folder;
    const QByteArray good = encoded({50, 50}, "BMP");
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("BM"), QByteArray("no picture at all"), good.left(60)}) {
        const Picture fromData = Picture::fromData(bytes);
        EXPECT_NE(drawn(fromData, Fit::Stretch).pixelColor(90, 50), QColor(Qt::red));
        QFile file(folder.filePath(QStringLiteral("x.bmp")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        EXPECT_NE(drawn(Picture::fromFile(file.fileName()), Fit::Stretch).pixelColor(90, 50),
                  QColor(Qt::red));
    }
    EXPECT_TRUE(Picture::fromFile(folder.filePath(QStringLiteral("missing.bmp"))).isNull());
    EXPECT_TRUE(Picture::fromFile({}).isNull());
}

}  // namespace
}  // namespace sarne
