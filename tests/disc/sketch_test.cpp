#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSet>

#include "disc/dishsketch.h"
#include "disc/dishwords.h"

namespace sarne::disc {
namespace {

QImage sketch(const char* text) {
    return sketchDish(QString::fromUtf8(text));
}

TEST(DishLineTest, TellsWordsNumbersAndNamedValues) {
    const DishLine line(
        QStringLiteral("fillet white smoked 4.0 1.5 skin mackerel at 2.4 -2.6 turn -30 # why"));
    EXPECT_EQ(line.thing, QStringLiteral("fillet"));
    EXPECT_EQ(line.words, (QStringList{QStringLiteral("white"), QStringLiteral("smoked")}));
    EXPECT_EQ(line.numbers, (QList<double>{4, 1.5}));
    EXPECT_EQ(line.point(QStringLiteral("at"), {}), QPointF(2.4, -2.6));
    EXPECT_DOUBLE_EQ(line.value(QStringLiteral("turn"), 0), -30);
    EXPECT_EQ(line.text(QStringLiteral("skin")), QStringLiteral("mackerel"));
    EXPECT_DOUBLE_EQ(line.value(QStringLiteral("size"), 7), 7);
}

TEST(DishSketchTest, DrawsAThingWhereTheCameraSeesIt) {
    const QImage middle = sketch("camera high 60 far 14\ntable pale\nplate r 3 col 2040c0");
    ASSERT_EQ(middle.size(), QSize(1600, 1200));
    const QColor plate = middle.pixelColor(800, 600);
    EXPECT_GT(plate.blue(), plate.red() + 60);
    const QColor table = middle.pixelColor(60, 600);
    EXPECT_LT(table.blue(), table.red());
    // What stands further to the right appears further to the right.
    const QImage right = sketch("camera high 60 far 14\ntable pale\nplate r 1 col 2040c0 at 3 0");
    EXPECT_LT(right.pixelColor(800, 600).blue(), right.pixelColor(800, 600).red());
    EXPECT_GT(right.pixelColor(1300, 600).blue(), right.pixelColor(1300, 600).red() + 60);
}

TEST(DishSketchTest, BearsWhatItDoesNotKnow) {
    EXPECT_TRUE(sketch("").isNull());
    EXPECT_TRUE(sketch("name Nic\ntable oak").isNull());
    for (const char* odd :
         {"camera", "camera high high", "camera far 0\nplate r", "camera far 14\nwhat 3 at\nfish\nplate oval",
          "camera far 14\npotato count 3 within", "camera far -5\nbowl r 0\nliquid\nsprinkle"})
        EXPECT_FALSE(sketch(odd).isNull()) << odd;
}

TEST(DishSketchTest, NoTwoDishesLookAlike) {
    const QDir dishes(QStringLiteral(SARNE_ART "/dishes"));
    QSet<QByteArray> seen;
    for (const char* name : {"01", "04", "15", "20", "25", "35", "46", "48"}) {
        QFile file(dishes.filePath(QLatin1String(name) + QStringLiteral(".dish")));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        const QImage small = sketchDish(QString::fromUtf8(file.readAll()))
                                 .scaled(8, 6, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        ASSERT_FALSE(small.isNull()) << name;
        seen.insert(QByteArray(reinterpret_cast<const char*>(small.constBits()), small.sizeInBytes()));
    }
    EXPECT_EQ(seen.size(), 8);
}

}  // namespace
}  // namespace sarne::disc
