#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QResource>
#include <QTemporaryDir>
#include <cmath>

#include "core/gridtable.h"
#include "core/sealedfile.h"
#include "db/database.h"
#include "disc/photos.h"
#include "disc/resources.h"
#include "disc/screenpictures.h"
#include "disc/sounds/makesounds.h"
#include "disc/workshop.h"
#include "support/files.h"
#include "support/kept.h"
#include "support/pictures.h"

namespace sarne::disc {
namespace {

class WorkshopTest : public testing::Test {
  protected:
    QString path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
    std::string errors() const { return problems_.errors().join(u'\n').toStdString(); }
    void write(const char* file, const char* text) { ASSERT_TRUE(test::write(path(file), text)); }
    void draw(const char* file, const QColor& colour, QSize size = {160, 120}) {
        ASSERT_TRUE(test::write(path(file), test::plain(size, colour)));
    }

    /// One run of the builder that makes "sub/made" from "source"; how often it was made.
    int run() {
        Ledger ledger(path("ledger"));
        Workshop shop{book_, {}, {}, {}, {}, {}, ledger, problems_};
        int made = 0;
        const QString output = path("sub/made");
        shop.make(output, originOf({path("source")}, u"1"_s), [&] {
            ++made;
            return test::write(output, "made");
        });
        ledger.save();
        return made;
    }

    /// Every picture in \a folder but the plates of recipes 1 to 5 and from 9 on, with its size, the colour
    /// in its middle, in a grid those of cells 6 and 8, and whether it is one of the art's or the author's as
    /// it was.
    QString pictures(const char* folder) const {
        const auto files = [this](const char* of) {
            static const QRegularExpression plates(u"/r([1-59]|\\d\\d)\\."_s);
            QStringList all;
            for (QDirIterator walk(path(of), QDir::Files, QDirIterator::Subdirectories); walk.hasNext();)
                if (!walk.next().contains(plates)) all << walk.filePath();
            all.sort();
            return all;
        };
        QSet<QByteArray> sources;
        for (const QString& file : files("art") + files("recepty")) sources << test::bytesOf(file);
        QStringList rows;
        for (const QString& file : files(folder)) {
            const QImage picture(file);
            rows << u"%1 %2x%3"_s.arg(QDir(path(folder)).relativeFilePath(file))
                        .arg(picture.width())
                        .arg(picture.height());
            const bool isGrid = QFileInfo(file).fileName().startsWith(u"sit"_s);
            for (const int cell : isGrid ? QList{6, 8} : QList{0})
                rows.last() +=
                    u' ' +
                    nameOf(picture.pixelColor(cell ? gridCellRect(cell).center() * picture.width() / 12000
                                                   : picture.rect().center()));
            if (sources.contains(test::bytesOf(file))) rows.last() += u", as it was"_s;
        }
        return rows.join(u'\n');
    }
    static QString nameOf(const QColor& colour) {
        const bool isRed = colour.green() < 20 && colour.red() > 230;
        return isRed                 ? u"red"_s
               : colour.value() < 20 ? u"black"_s
               : colour.red() < 120  ? u"dark"_s
                                     : u"else"_s;
    }

    QTemporaryDir folder_;
    Cookbook book_;
    Problems problems_;
    Ledger ledger_{path("ledger")};
    Workshop shop_{book_,        folder_.path(),  path("art"), path("program"),
                   path("disc"), path("scratch"), ledger_,     problems_};
};

TEST_F(WorkshopTest, MakesOnlyWhatChanged) {
    write("source", "first");
    EXPECT_EQ(run(), 1);
    EXPECT_EQ(run(), 0);
    write("source", "another length");
    EXPECT_EQ(run(), 1);
    QFile::remove(path("sub/made"));
    EXPECT_EQ(run(), 1);
    QFile::remove(path("source"));
    EXPECT_EQ(run(), 1);
    Ledger(path("ledger")).sweep();
    EXPECT_FALSE(QFile::exists(path("sub/made"))) << "no longer wanted";
}

TEST_F(WorkshopTest, WhatFailedIsTriedAgain) {
    write("made", "left over");
    int tries = 0;
    for (int i = 0; i < 2; ++i) EXPECT_FALSE(shop_.make(path("made"), u"1"_s, [&] { return ++tries < 0; }));
    EXPECT_EQ(tries, 2);
    EXPECT_EQ(problems_.errors(), QStringList{path("made") + u":0: nelze vyrobit"_s});
}

/// How near \a picture is to \a source, which has its size; 0 where it has not.
double decibels(const QImage& picture, const QImage& source) {
    if (picture.size() != source.size()) return 0;
    double sum = 0;
    for (int y = 0; y < source.height(); y += 4)
        for (int x = 0; x < source.width(); x += 4)
            sum += std::pow(qGreen(picture.pixel(x, y)) - qGreen(source.pixel(x, y)), 2) * 16;
    return 10 * std::log10(255.0 * 255 * source.width() * source.height() / sum);
}

/// Three recipes: one the art has a photo of, one whose photo there shows another dish, one with its own.
class PhotosTest : public WorkshopTest {
  protected:
    PhotosTest() {
        for (const int id : {6, 7, 8}) {
            Recipe& recipe = book_.recipes[id];
            recipe.id = id;
            recipe.name = u"Jídlo %1"_s.arg(id);
            recipe.place = {u"recepty/%1.txt"_s.arg(id), 1};
        }
        write("art/dishes/06.dish", "name Jídlo 6\n");
        write("art/dishes/07.dish", "name Jídlo 5\n");
        for (const char* file : {"art/rendered/dishes/06.jpg", "art/rendered/dishes/07.jpg", "recepty/8.png"})
            draw(file, Qt::red, {1600, 1200});
        for (const char* file : {"art/rendered/pozadi/sit.jpg", "art/rendered/prvky/vino256.jpg"})
            draw(file, Qt::black, {1600, 1200});
    }
};

TEST_F(PhotosTest, AreOfTheRecipesOwnDishAndThingsAreTakenAsTheyAre) {
    draw("art/rendered/film/kapr.webp", Qt::red, {1600, 1200});
    for (const char* file :
         {"art/rendered/sponzor/4.jpg", "art/rendered/sponzor/4-siroke.jpg", "art/rendered/sponzor/5.jpg"})
        draw(file, Qt::red, {336, 144});
    for (const int id : {4, 5}) book_.gallery.emplace_back().id = id;
    book_.keywordPictures << KeywordPicture{{}, {}, u"kapr"_s, {}, 0};
    book_.toolPictures << ToolPicture{{}, u"velký nůž"_s, u"kapr"_s};
    makePhotos(shop_);
    ASSERT_EQ(errors(), "");
    test::expectText(u"fotografie"_s, pictures("disc"));
    EXPECT_TRUE(problems_.notes().first().startsWith(
        u"recepty/7.txt:1: fotografie 07.jpg ukazuje „Jídlo 5“, ne „Jídlo 7“"_s));
    book_.keywordPictures << KeywordPicture{{u"obrazky.txt"_s, 3}, {}, u"kaprik"_s, {}, 0};
    makePhotos(shop_);
    EXPECT_TRUE(problems_.errors().contains(
        u"obrazky.txt:3: obraz „kaprik“ v art/rendered/film není – mysleli jste „kapr“?"_s));
}

TEST_F(PhotosTest, OfTheCompactDiscAreSmallerThanTheirSourceAndAsFine) {
    QImage fabric(1600, 1200, QImage::Format_RGB32);
    for (int y = 0; y < fabric.height(); ++y)
        for (int x = 0; x < fabric.width(); ++x)
            fabric.setPixel(x, y,
                            qRgb(90, 120 + std::lround(50 * std::sin(x / 3.0) * std::cos(y / 5.0)), y / 5));
    ASSERT_TRUE(test::write(path("art/rendered/dishes/06.jpg"), fabric) &&
                fabric.save(path("recepty/7.jpg"), nullptr, 40));
    shop_.kind = DiscKind::Compact;
    makePhotos(shop_);
    ASSERT_EQ(errors(), "");
    const auto bytes = [&](const char* file) { return QFileInfo(path(file)).size(); };
    EXPECT_LT(bytes("disc/foto/Recepty/r6.jpg") * 3, bytes("art/rendered/dishes/06.jpg") * 2);
    EXPECT_GT(decibels(QImage(path("disc/foto/Recepty/r6.jpg")), fabric), 38);
    test::expectText(u"fotografie-male"_s, pictures("disc"));
}

/// Builds into a folder of its own from art that the test draws.
class PackingTest : public WorkshopTest {
  protected:
    PackingTest() { shop_.content = QStringLiteral(SARNE_CONTENT); }
};

TEST_F(PackingTest, ResourcesAreFoundUnderTheirNames) {
    draw("art/rendered/prvky/RamVen.png", Qt::red);
    draw("art/rendered/hlavni/pohyby/05-01.png", Qt::green);
    write("art/layout/hlavni.txt", "0 1 2 3 4\n");
    makeEffects(shop_);
    makeResources(shop_, QStringLiteral(SARNE_RCC));
    ASSERT_EQ(errors(), "");

    const QString file = path("program/Sarne.rcc");
    ASSERT_TRUE(QResource::registerResource(file, u"/packed"_s));
    EXPECT_EQ(QImage(u":/packed/obr/RamVen.png"_s).pixelColor(9, 9), QColor(Qt::red));
    EXPECT_EQ(QImage(u":/packed/pohyby/05-01.png"_s).pixelColor(9, 9), QColor(Qt::green));
    EXPECT_TRUE(QFile::exists(u":/packed/layout/hlavni.txt"_s));
    for (const int effect : {1, 101, 121})
        EXPECT_TRUE(test::bytesOf(u":/packed/zvuky/%1.wav"_s.arg(effect)).startsWith("RIFF")) << effect;
    QResource::unregisterResource(file, u"/packed"_s);
    EXPECT_TRUE(isSealed(file)) << "the program takes no other";
}

TEST_F(PackingTest, APackerThatFailsAndAMissingPictureAreErrors) {
    makeResources(shop_, path("no-such-rcc"));
    makeScreenPictures(shop_);
    for (const char* error : {"Sarne.rcc:0: nelze vyrobit", "rendered/pozadi/konec.jpg:0: obrázek chybí"})
        EXPECT_NE(errors().find(error), std::string::npos) << errors();
}

TEST_F(PackingTest, ScreenPicturesKeepTheirOrder) {
    draw("art/rendered/hlavni/pozadi.jpg", Qt::red);
    for (const char* screen : {"konec", "video", "seznam", "recept"})
        draw(("art/rendered/pozadi/" + std::string(screen) + ".jpg").c_str(), Qt::green);
    draw("art/rendered/pozadi/Sit.jpg", Qt::blue);
    draw("art/rendered/pozadi/Sit-siroke.jpg", Qt::blue);
    makeScreenPictures(shop_);
    EXPECT_EQ(errors(), "");
    EXPECT_EQ(QImage(path("program/siroke/Sit.jpg")).width(), 160);
    Database pictures;
    ASSERT_TRUE(pictures.Open(path("program/KOp.bj")));
    Recordset records = pictures.OpenQuery(u"SELECT obr FROM TabObr"_s);
    QString colours;
    for (; !records.AtEnd(); records.MoveNext()) {
        const QColor colour = QImage::fromData(records.field(u"obr"_s).toByteArray()).pixelColor(9, 9);
        colours += colour.red() > 250     ? u'r'
                   : colour.blue() > 250  ? u'b'
                   : colour.green() > 250 ? u'g'
                                          : u'-';
    }
    EXPECT_EQ(colours, u"rggggb"_s);
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
