#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QResource>
#include <QTemporaryDir>

#include "core/sealedfile.h"
#include "db/database.h"
#include "disc/resources.h"
#include "disc/screenpictures.h"
#include "disc/sounds/makesounds.h"

namespace sarne::disc {
namespace {

/// Builds into a folder of its own from art that the test draws.
class PackingTest : public testing::Test {
  protected:
    QString path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }

    void draw(const char* file, const QColor& colour) {
        QDir().mkpath(QFileInfo(path(file)).path());
        QImage picture(160, 120, QImage::Format_RGB32);
        picture.fill(colour);
        ASSERT_TRUE(picture.save(path(file)));
    }

    void write(const char* file, const char* text) {
        QDir().mkpath(QFileInfo(path(file)).path());
        QFile out(path(file));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly) && out.write(text) >= 0);
    }

    std::string errors() const { return problems_.errors().join(u'\n').toStdString(); }

    QTemporaryDir folder_;
    Cookbook book_;
    Problems problems_;
    Ledger ledger_{folder_.filePath(QStringLiteral("ledger"))};
    Workshop shop_{book_,        QStringLiteral(SARNE_CONTENT),
                   path("art"),  path("program"),
                   path("disc"), path("scratch"),
                   ledger_,      problems_};
};

TEST_F(PackingTest, ResourcesAreFoundUnderTheirNames) {
    draw("art/rendered/prvky/RamVen.png", Qt::red);
    draw("art/rendered/hlavni/pohyby/05-01.png", Qt::green);
    write("art/layout/hlavni.txt", "0 1 2 3 4\n");
    makeEffects(shop_);
    makeResources(shop_, QStringLiteral(SARNE_RCC));
    ASSERT_FALSE(problems_.hasErrors()) << problems_.errors().join(u'\n').toStdString();

    const QString file = path("program/Sarne.rcc");
    ASSERT_TRUE(QResource::registerResource(file, QStringLiteral("/packed")));
    EXPECT_EQ(QImage(QStringLiteral(":/packed/obr/RamVen.png")).pixelColor(9, 9), QColor(Qt::red));
    EXPECT_EQ(QImage(QStringLiteral(":/packed/pohyby/05-01.png")).pixelColor(9, 9), QColor(Qt::green));
    EXPECT_TRUE(QFile::exists(QStringLiteral(":/packed/layout/hlavni.txt")));
    for (const int effect : {1, 101, 121}) {
        QFile sound(QStringLiteral(":/packed/zvuky/%1.wav").arg(effect));
        ASSERT_TRUE(sound.open(QIODevice::ReadOnly)) << effect;
        EXPECT_EQ(sound.read(4), "RIFF");
    }
    QResource::unregisterResource(file, QStringLiteral("/packed"));
    EXPECT_TRUE(isSealed(file)) << "the program takes no other";
}

TEST_F(PackingTest, APackerThatFailsIsAnError) {
    makeResources(shop_, path("no-such-rcc"));
    EXPECT_NE(errors().find("Sarne.rcc:0: nelze vyrobit"), std::string::npos) << errors();
}

TEST_F(PackingTest, AMissingPictureIsAnErrorThatNamesItsFile) {
    makeScreenPictures(shop_);
    EXPECT_NE(errors().find("rendered/pozadi/konec.jpg:0: obrázek chybí"), std::string::npos) << errors();
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
    Recordset records = pictures.OpenQuery(QStringLiteral("SELECT obr FROM TabObr"));
    ASSERT_EQ(records.RecordCount(), 6);
    const auto current = [&] { return QImage::fromData(records.field(QStringLiteral("obr")).toByteArray()); };
    EXPECT_GT(current().pixelColor(9, 9).red(), 250);
    records.MoveNext();
    EXPECT_FALSE(current().isNull());
    records.MoveLast();
    EXPECT_GT(current().pixelColor(9, 9).blue(), 250);
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
