#include "forms/room.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

#include "forms/control.h"
#include "support/fakesarne.h"
#include "support/kept.h"
#include "support/pictures.h"

namespace sarne {
namespace {

/// A wide ground whose design area is red and whose sides are green.
QImage wideGround() {
    QImage image = test::plain({336, 144}, Qt::green);
    for (int y = 0; y < 144; ++y) {
        for (int x = 72; x < 264; ++x) image.setPixelColor(x, y, Qt::red);
    }
    return image;
}

/// A full-screen form that paints a room and remembers where it was clicked.
class RoomForm final : public Form {
  public:
    RoomForm(basSarne& run, Room room) : Form(run, u"frmRoom"_s), room_(std::move(room)) {}
    QPoint clicked;
    QRectF all() const { return covered(); }

  protected:
    void paint(QPainter& painter) override { paintRoom(painter, room_); }
    void mousePressEvent(QMouseEvent* event) override { clicked = toTwips(event->position()); }

  private:
    Room room_;
};

class RoomTest : public testing::Test {
  protected:
    QImage shot(const Room& room, QSize window) {
        run.window.resize(window);
        form = new RoomForm(run, room);
        control = new Control(*form, u"thing"_s);
        control->place({6000, 4500, 600, 600});
        form->showForm();
        QApplication::processEvents();
        return run.window.grab().toImage();
    }
    static QColor at(const QImage& image, int x, int y) {
        return image.pixelColor((QPointF(x, y) * image.devicePixelRatio()).toPoint());
    }

    FakeSarne run;
    RoomForm* form = nullptr;
    Control* control = nullptr;
};

TEST_F(RoomTest, AWideGroundFillsTheDisplayAndItsMiddleIsTheDesignArea) {
    QTemporaryDir folder;
    const QString file = folder.filePath(u"siroke.jpg"_s);
    ASSERT_TRUE(wideGround().scaled(3360, 1440).save(file, "JPEG", 95));
    const Picture design = Picture::fromImage(test::plain({160, 120}, Qt::blue));
    for (const Picture& wide : {Picture::fromImage(wideGround()), Picture::fromFile(file)}) {
        // The second width cannot be cut out of the picture's pixels, and is painted.
        for (const QSize window : {QSize(1920, 1080), QSize(1921, 1080)}) {
            const QImage image = shot(Room(design, wide), window);
            for (const int green : {3, 234, 1685, 1917})
                EXPECT_GT(at(image, green, 500).green(), 240) << green;
            for (const int red : {246, 1673})
                EXPECT_GT(at(image, red, 5 + 1069 * (red > 960)).red(), 240) << red;
        }
    }
    shot(Room(design, Picture::fromFile(file)), {1920, 1080});
    EXPECT_EQ(control->mapTo(&run.window, QPoint()), QPoint(960, 540)) << "the design stays in the middle";

    QTest::mouseClick(form, Qt::LeftButton, {}, {10, 540});
    EXPECT_EQ(form->clicked, QPoint(-1917, 4500)) << "the side belongs to the form";
    EXPECT_NEAR(form->all().left(), -2000, 1);
    EXPECT_NEAR(form->all().width(), 16000, 1);
}

TEST_F(RoomTest, ComposedBeforehandItLooksTheSameWhereverItIsDrawn) {
    const Picture design = Picture::fromImage(test::plain({160, 120}, Qt::blue));
    const QRectF display(-2000, 0, 16000, 9000);
    const QImage expected = shot(Room(design, Picture::fromImage(wideGround())), {1920, 1080});
    const QSize odd(1921, 1080);  // cannot be cut out
    Room painted(design, Picture::fromImage(wideGround()));
    const QImage asPainted = shot(painted, odd);
    painted.prepare(odd, form->all());
    EXPECT_EQ(shot(painted, odd), asPainted);
    for (const QSize& foreseen : {QSize(1920, 1080), QSize(960, 540)}) {
        Room room({}, Picture::fromImage(wideGround()));
        room.prepare(foreseen, display);
        room.setDesign(design);
        EXPECT_EQ(shot(room, {1920, 1080}), expected) << foreseen.width();
        EXPECT_EQ(at(shot(room, {800, 600}), 0, 0), QColor(Qt::blue)) << "the design's picture came later";
    }
}

/// Colours of places all over \a image, each component as one digit.
QString sampled(const QImage& image) {
    QStringList rows;
    for (int y = 0; y < 7; ++y) {
        QStringList row;
        for (int x = 0; x < 13; ++x) {
            const QColor is = image.pixelColor(x * (image.width() - 1) / 12, y * (image.height() - 1) / 6);
            row << u"%1%2%3"_s.arg((is.red() + 8) / 17, 0, 16)
                       .arg((is.green() + 8) / 17, 0, 16)
                       .arg((is.blue() + 8) / 17, 0, 16);
        }
        rows << row.join(u' ');
    }
    return rows.join(u'\n');
}

TEST_F(RoomTest, CoversEveryDisplayWithWhatThereIs) {
    // Four corners of different colours tell what is mirrored, and which way.
    QImage corners = test::plain({160, 120}, QColor(200, 100, 50));
    QPainter painter(&corners);
    painter.fillRect(0, 0, 40, 40, QColor(50, 200, 50));
    painter.fillRect(120, 0, 40, 40, QColor(50, 50, 200));
    painter.fillRect(0, 80, 40, 40, QColor(200, 200, 50));
    painter.end();
    const Picture design = Picture::fromImage(corners), wide = Picture::fromImage(wideGround());
    QTemporaryDir folder;
    const QString broken = folder.filePath(u"x.png"_s);
    ASSERT_TRUE(test::write(broken, corners) && QFile::resize(broken, 60));
    const std::pair<const char*, Room> rooms[] = {{"design", Room(design)},
                                                  {"both", Room(design, wide)},
                                                  {"wide", Room({}, wide)},
                                                  {"covering", Room::covering(design)},
                                                  {"broken", Room(Picture::fromFile(broken))},
                                                  {"empty", Room()}};
    QStringList all;
    for (const auto& [name, room] : rooms)
        for (const QSize window : {QSize(800, 600), QSize(1921, 1080), QSize(600, 800), QSize(1440, 600)}) {
            const QString shown = sampled(shot(room, window));
            const bool isKnown = all.contains(shown);
            all << u"%1 in %2 x %3"_s.arg(QLatin1String(name)).arg(window.width()).arg(window.height())
                << (isKnown ? u"as one above"_s : shown);
            form->unload();
            QApplication::sendPostedEvents(form, QEvent::DeferredDelete);
        }
    if (run.window.devicePixelRatioF() == 1) test::expectText(u"mistnosti"_s, all.join(u'\n'));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
