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

TEST(Picture, DrawnExactlyKeepsItsPlaceWithinThePixels) {
    // Red up to column 4 of 10, then blue; the border lies in the middle of pixel 14.
    QImage halves(10, 10, QImage::Format_RGB32);
    halves.fill(Qt::blue);
    QPainter(&halves).fillRect(0, 0, 4, 10, Qt::red);
    const Picture picture = Picture::fromImage(halves);
    QImage canvas(30, 20, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    painter.scale(.12, .12);
    picture.drawExactly(painter, {14.5 / .12 - 40, 50, 100, 100});
    painter.end();
    EXPECT_EQ(canvas.pixelColor(13, 10), QColor(Qt::red));
    EXPECT_NEAR(canvas.pixelColor(14, 10).red(), 128, 16);
    EXPECT_NEAR(canvas.pixelColor(14, 10).blue(), 128, 16);
    EXPECT_EQ(canvas.pixelColor(15, 10), QColor(Qt::blue));
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
