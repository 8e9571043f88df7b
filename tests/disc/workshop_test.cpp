#include "disc/workshop.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QRect>
#include <QTemporaryDir>

#include "disc/photos.h"

namespace sarne::disc {
namespace {

class WorkshopTest : public testing::Test {
  protected:
    QString path(const char* name) const { return folder_.filePath(QLatin1String(name)); }

    static bool write(const QString& file, const char* text) {
        QFile out(file);
        return out.open(QIODevice::WriteOnly) && out.write(text) >= 0;
    }

    /// One run of the builder that makes "sub/made" from "source"; how often it was made.
    int run() {
        Ledger ledger(path("ledger"));
        Workshop shop{book_, {}, {}, {}, {}, {}, ledger, problems_};
        int made = 0;
        const QString output = path("sub/made");
        shop.make(output, originOf({path("source")}, QStringLiteral("1")), [&] {
            ++made;
            return write(output, "made");
        });
        ledger.save();
        return made;
    }

    QTemporaryDir folder_;
    Cookbook book_;
    Problems problems_;
};

TEST_F(WorkshopTest, MakesOnlyWhatChanged) {
    ASSERT_TRUE(write(path("source"), "first"));
    EXPECT_EQ(run(), 1);
    EXPECT_EQ(run(), 0);
    ASSERT_TRUE(write(path("source"), "another length"));
    EXPECT_EQ(run(), 1);
    QFile::remove(path("sub/made"));
    EXPECT_EQ(run(), 1);
    QFile::remove(path("source"));
    EXPECT_EQ(run(), 1);
}

TEST_F(WorkshopTest, WhatFailedIsTriedAgain) {
    Ledger ledger(path("ledger"));
    Workshop shop{book_, {}, {}, {}, {}, {}, ledger, problems_};
    ASSERT_TRUE(write(path("made"), "left over"));
    int tries = 0;
    for (int i = 0; i < 2; ++i)
        EXPECT_FALSE(shop.make(path("made"), QStringLiteral("1"), [&] { return ++tries < 0; }));
    EXPECT_EQ(tries, 2);
}

TEST_F(WorkshopTest, PhotosComeFromTheArtWhereItHasThem) {
    QDir().mkpath(path("art/rendered/dishes"));
    QImage red(1600, 1200, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(path("art/rendered/dishes/06.jpg"), "JPG", 100));
    Ledger ledger(path("ledger"));
    Workshop shop{book_, {}, path("art"), path("program"), path("disc"), path("scratch"), ledger, problems_};
    makePhotos(shop);
    const QImage rendered(path("disc/foto/Recepty/r6.bmp"));
    EXPECT_EQ(rendered.size(), QSize(1440, 1080));
    EXPECT_NEAR(qRed(rendered.pixel(700, 500)), 255, 3);
    EXPECT_NEAR(qGreen(rendered.pixel(700, 500)), 0, 3);
    const QImage drawn(path("disc/foto/Male/r7.bmp"));
    EXPECT_EQ(drawn.size(), QSize(320, 240));

    // In the composite of the soups a warm dish is dimmed, in the one of all it is not.
    const auto middle = [](const QImage& grid) {
        const QPoint centre = gridCell(6).center() * grid.width() / 12000;
        return qRed(grid.pixel(centre));
    };
    EXPECT_GT(middle(QImage(path("disc/foto/sitCela.bmp"))), 240);
    EXPECT_GT(middle(QImage(path("disc/foto/sit1.bmp"))), 240);
    EXPECT_LT(middle(QImage(path("disc/foto/sit0.bmp"))), 120);
}

}  // namespace
}  // namespace sarne::disc
