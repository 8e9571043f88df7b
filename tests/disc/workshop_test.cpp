#include "disc/workshop.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include "core/gridtable.h"
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

TEST_F(WorkshopTest, WhatIsNoLongerWantedIsDeleted) {
    ASSERT_TRUE(write(path("source"), "first"));
    EXPECT_EQ(run(), 1);
    Ledger ledger(path("ledger"));
    ledger.sweep();
    EXPECT_FALSE(QFile::exists(path("sub/made")));
}

TEST_F(WorkshopTest, WhatFailedIsTriedAgain) {
    Ledger ledger(path("ledger"));
    Workshop shop{book_, {}, {}, {}, {}, {}, ledger, problems_};
    ASSERT_TRUE(write(path("made"), "left over"));
    int tries = 0;
    for (int i = 0; i < 2; ++i)
        EXPECT_FALSE(shop.make(path("made"), QStringLiteral("1"), [&] { return ++tries < 0; }));
    EXPECT_EQ(tries, 2);
    EXPECT_EQ(problems_.errors(), QStringList{path("made") + QStringLiteral(":0: nelze vyrobit")});
}

/// Three recipes: one the art has a photo of, one whose photo there shows another dish, one with its own.
class PhotosTest : public WorkshopTest {
  protected:
    PhotosTest() {
        for (const int id : {6, 7, 8}) {
            Recipe& recipe = book_.recipes[id];
            recipe.id = id;
            recipe.name = QStringLiteral("Jídlo %1").arg(id);
            recipe.place = {QStringLiteral("recepty/%1.txt").arg(id), 1};
        }
        QDir().mkpath(path("art/dishes"));
        write(path("art/dishes/06.dish"), "name Jídlo 6\n");
        write(path("art/dishes/07.dish"), "name Jídlo 5\n");
        for (const char* file : {"art/rendered/dishes/06.jpg", "art/rendered/dishes/07.jpg", "recepty/8.png"})
            draw(file, Qt::red);
        for (const char* file : {"art/rendered/pozadi/sit.jpg", "art/rendered/prvky/vino256.jpg"})
            draw(file, Qt::black);
    }

    void draw(const char* file, const QColor& colour) {
        QDir().mkpath(QFileInfo(path(file)).path());
        QImage picture(1600, 1200, QImage::Format_RGB32);
        picture.fill(colour);
        picture.save(path(file), nullptr, 100);
    }

    /// The colour in the middle of a picture of the disc, or of a cell of the grid.
    QColor colour(const char* file, int cell = 0) const {
        const QImage picture(path(file));
        const QPoint place =
            cell ? gridCellRect(cell).center() * picture.width() / 12000 : picture.rect().center();
        return picture.pixelColor(place);
    }

    Ledger ledger_{path("ledger")};
    Workshop shop_{book_,        folder_.path(),  path("art"), path("program"),
                   path("disc"), path("scratch"), ledger_,     problems_};
};

TEST_F(PhotosTest, ThingsOfTheFilmsStandBesideKeywordsAsTheyAre) {
    draw("art/rendered/film/kapr.webp", Qt::red);
    book_.keywordPictures << KeywordPicture{{}, {}, QStringLiteral("kapr"), {}, 0};
    makePhotos(shop_);
    EXPECT_EQ(QImage(path("disc/foto/hesla/kapr.webp")).size(), QSize(1600, 1200));
    book_.keywordPictures << KeywordPicture{
        {QStringLiteral("obrazky.txt"), 3}, {}, QStringLiteral("kaprik"), {}, 0};
    makePhotos(shop_);
    EXPECT_TRUE(problems_.errors().contains(
        QStringLiteral("obrazky.txt:3: obraz „kaprik“ v art/rendered/film není – mysleli jste „kapr“?")));
}

TEST_F(PhotosTest, AreOfTheRecipesOwnDish) {
    Problems release(Edition::release);
    Workshop shipped{book_,        folder_.path(),  path("art"), path("program"),
                     path("disc"), path("scratch"), ledger_,     release};
    makePhotos(shipped);
    ASSERT_EQ(release.errors().size(), 1);
    EXPECT_TRUE(release.errors().first().startsWith(
        QStringLiteral("recepty/7.txt:1: fotografie 07.jpg ukazuje „Jídlo 5“, ne „Jídlo 7“")));

    makePhotos(shop_);
    ASSERT_EQ(problems_.errors().join(u'\n').toStdString(), "");
    EXPECT_EQ(QImage(path("disc/foto/Velke/r6.bmp")).size(), QSize(1440, 1080));
    EXPECT_EQ(QImage(path("disc/foto/Male/r6.bmp")).size(), QSize(640, 480));
    EXPECT_EQ(QImage(path("disc/foto/Velke/r6.jpg")).size(), QSize(1600, 1200));
    EXPECT_FALSE(QFile::exists(path("disc/foto/Velke/r7.jpg"))) << "a plate has nothing finer to show";
    EXPECT_GT(colour("disc/foto/Recepty/r6.bmp").red(), 250);
    EXPECT_GT(colour("disc/foto/Recepty/r8.bmp").red(), 250);
    EXPECT_GT(colour("disc/foto/Recepty/r7.bmp").green(), 20);  // a plate with a name, no red

    // In the composite of the soups a warm dish is dimmed, in the one of all it is not.
    EXPECT_GT(colour("disc/foto/sitCela.bmp", 6).red(), 240);
    EXPECT_GT(colour("disc/foto/sit1.bmp", 6).red(), 240);
    EXPECT_LT(colour("disc/foto/sit0.bmp", 6).red(), 120);
}

TEST_F(PhotosTest, OfTheCompactDiscAreAsFineAsTheirSource) {
    shop_.kind = DiscKind::Compact;
    makePhotos(shop_);
    ASSERT_EQ(problems_.errors().join(u'\n').toStdString(), "");
    QFile source(path("art/rendered/dishes/06.jpg"));
    QFile made(path("disc/foto/Recepty/r6.jpg"));
    ASSERT_TRUE(source.open(QIODevice::ReadOnly) && made.open(QIODevice::ReadOnly));
    EXPECT_EQ(source.readAll(), made.readAll()) << "compressed once, not twice";
    EXPECT_EQ(QImage(path("disc/foto/Velke/r8.jpg")).size(), QSize(1600, 1200));
    EXPECT_EQ(QImage(path("disc/foto/Male/r6.jpg")).size(), QSize(640, 480));
    EXPECT_GT(colour("disc/foto/sitCela.jpg", 6).red(), 230);
    EXPECT_LT(colour("disc/foto/sit0.jpg", 6).red(), 120);
    const QStringList bitmaps = QDir(path("disc/foto/Male")).entryList({QStringLiteral("*.bmp")});
    EXPECT_TRUE(bitmaps.isEmpty());
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
