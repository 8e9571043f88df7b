#include "forms/picture.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QCursor>
#include <QPainter>
#include <QPixmap>
#include <QTemporaryDir>

#include "forms/drawnpictures.h"
#include "forms/resources.h"
#include "support/files.h"
#include "support/pictures.h"

namespace sarne {
namespace {

QByteArray encoded(QSize size, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    test::plain(size, Qt::red).save(&buffer, format);
    return bytes;
}

QImage drawn(const Picture& picture, Fit fit) {
    QImage canvas = test::plain({100, 60}, Qt::white);
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

TEST(Picture, EveryFormatOfADiscIsReadWhateverItsNameSays) {
    QTemporaryDir folder;
    for (const char* format : {"PNG", "JPEG", "BMP", "WEBP"}) {
        const QByteArray bytes = encoded({40, 30}, format);
        const QString file = folder.filePath(u"obraz.bmp"_s);
        ASSERT_TRUE(test::write(file, bytes));
        for (const Picture& picture : {Picture::fromData(bytes), Picture::fromFile(file)}) {
            EXPECT_EQ(picture.size(), QSize(40, 30)) << format;
            EXPECT_GT(picture.scaled({20, 15}).pixelColor(10, 7).red(), 240) << format;
        }
        for (const int left : {0, 2, 40})
            EXPECT_TRUE(Picture::fromData(bytes.first(left)).image().isNull()) << format << left;
    }
    for (const char* missing : {"missing.bmp", ""})
        EXPECT_TRUE(Picture::fromFile(folder.filePath(QLatin1String(missing))).isNull());
    QImage glass = test::plain({4, 4}, Qt::red).convertToFormat(QImage::Format_ARGB32);
    glass.setPixelColor(1, 2, QColor(10, 20, 30, 40));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly) && glass.save(&buffer, "PNG"));
    EXPECT_EQ(Picture::fromData(bytes).image(), glass);
}

TEST(Picture, DrawnExactlyKeepsItsPlaceWithinThePixels) {
    // Red up to column 4 of 10, then blue; the border lies in the middle of pixel 14.
    QImage halves = test::plain({10, 10}, Qt::blue);
    QPainter(&halves).fillRect(0, 0, 4, 10, Qt::red);
    const Picture picture = Picture::fromImage(halves);
    QImage canvas = test::plain({30, 20}, Qt::white);
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

TEST(Picture, KeepsNoMoreOfWhatWasDrawnThanFillsTheDisplayThreeTimes) {
    DrawnPictures& kept = DrawnPictures::shared();
    kept.setDisplay({100, 100});
    const qint64 before = kept.bytes();
    Picture red = Picture::fromData(encoded({50, 50}, "BMP"));
    for (int side = 40; side < 100; ++side) red.pixmap({side, side});
    EXPECT_GT(kept.bytes(), 2 * 100 * 100 * 4);
    EXPECT_LE(kept.bytes(), 3 * (100 * 100 * 4 + 1024));
    EXPECT_EQ(red.pixmap({99, 99}).cacheKey(), red.pixmap({99, 99}).cacheKey()) << "drawn last";
    EXPECT_EQ(red.pixmap({400, 400}).size(), QSize(400, 400)) << "drawn, though too large to be kept";
    red = {};
    EXPECT_LE(kept.bytes(), before) << "a picture that is gone keeps nothing";
}

TEST(Cursor, IsAsLargeOnAScaledDesktopAndPointsWhereItDid) {
    QTemporaryDir folder;
    ASSERT_TRUE(test::write(folder.filePath(u"obr/ZPET.png"_s), test::plain({64, 64}, Qt::red)));
    ASSERT_TRUE(test::write(folder.filePath(u"layout/kurzory.txt"_s), "zpet 25 50\n"));
    const Resources resources(folder.path() + u'/');
    for (const double ratio : {1., 1.25, 1.5, 2.}) {
        const QCursor cursor = resources.cursor(u"ZPET"_s, 1. / 15, ratio);
        EXPECT_EQ(cursor.pixmap().deviceIndependentSize(), QSizeF(32, 32)) << ratio;
        EXPECT_EQ(cursor.pixmap().width(), 32 * ratio);
        EXPECT_EQ(cursor.hotSpot(), QPoint(8, 16));
    }
}

TEST(Picture, RowsThatAFileDoesNotHaveAreBlack) {
    QByteArray half = encoded({50, 50}, "BMP");
    half.truncate(half.size() / 2);
    for (const uint rubbish : {0xff00ff00U, 0xff0000ffU}) {
        std::vector<QImage> before(50, QImage({50, 50}, QImage::Format_RGB32));
        for (QImage& image : before) image.fill(rubbish);  // what the memory holds
        before.clear();
        const QImage image = drawn(Picture::fromData(half), Fit::Stretch);
        EXPECT_EQ(image.pixelColor(50, 13), QColor(Qt::black));
        EXPECT_EQ(image.pixelColor(50, 47), QColor(Qt::red)) << "a BMP begins at its foot";
    }
}

/// A BMP of 60 x 40 red pixels in a folder; what is put beside it is green.
class FinerPicture : public ::testing::Test {
  protected:
    FinerPicture() {
        EXPECT_TRUE(test::write(folder_.filePath(u"r1.bmp"_s), test::plain({60, 40}, Qt::red)));
    }
    void putBeside(const char* name, QSize size) {
        ASSERT_TRUE(test::write(folder_.filePath(QLatin1String(name)), test::plain(size, Qt::green), "JPG"));
    }
    bool isGreen(QSize pixels) const {
        const QImage shown = bmp().scaled(pixels);
        EXPECT_EQ(shown.size(), pixels);
        return shown.pixelColor(pixels.width() / 2, pixels.height() / 2).green() > 200;
    }
    Picture bmp() const { return Picture::fromFile(folder_.filePath(u"r1.bmp"_s)); }

    QTemporaryDir folder_;
};

TEST_F(FinerPicture, IsTakenWhereItShowsMorePixels) {
    EXPECT_FALSE(isGreen({120, 80}));
    putBeside("r1.jpg", {120, 80});
    EXPECT_FALSE(isGreen({60, 40}));
    EXPECT_TRUE(isGreen({61, 41}));
    EXPECT_TRUE(isGreen({600, 400}));
    EXPECT_EQ(bmp().size(), QSize(60, 40)) << "the BMP says what the picture measures";
    putBeside("r1.jpg", {60, 40});
    EXPECT_FALSE(isGreen({120, 80})) << "no finer than the BMP";
}

TEST_F(FinerPicture, ABrokenOneLeavesTheBmp) {
    putBeside("r1.jpg", {120, 80});
    ASSERT_TRUE(QFile::resize(folder_.filePath(u"r1.jpg"_s), 200));
    EXPECT_FALSE(isGreen({120, 80}));
    QFile::remove(folder_.filePath(u"r1.bmp"_s));
    putBeside("r1.jpg", {120, 80});
    EXPECT_TRUE(bmp().isNull()) << "alone it stands for nothing";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
