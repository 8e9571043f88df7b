#include "app/windowplace.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

namespace sarne {
namespace {

TEST(WindowPlaceTest, TheDisplayIsTheOneThatHoldsThePoint) {
    const QList<QRect> displays{{0, 0, 1920, 1080}, {1920, 200, 1280, 720}};
    EXPECT_EQ(displayAt(displays, {5, 5}), 0);
    EXPECT_EQ(displayAt(displays, {1920, 200}), 1);
    EXPECT_EQ(displayAt(displays, {2500, 10}), 1) << "beside them all: the nearest one";
    EXPECT_EQ(displayAt({}, {5, 5}), -1);
}

TEST(WindowPlaceTest, AWindowIsOfTheDesignsShapeAndNoLargerThanItsRoom) {
    EXPECT_EQ(windowWithin({0, 0, 1920, 1080}), QRect(420, 135, 1080, 810));
    EXPECT_EQ(windowWithin({100, 0, 1000, 700}).size(), QSize(800, 600));
    EXPECT_EQ(windowWithin({0, 0, 640, 400}), QRect(53, 0, 533, 400));
}

TEST(WindowPlaceTest, FillsTheDisplayOrStandsInItsMiddle) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    QWidget window;
    WindowPlace whole(window, WindowKind::FullScreen);
    whole.show();
    EXPECT_TRUE(window.isFullScreen());
    EXPECT_EQ(window.geometry(), screen->geometry());
    QTest::keyClick(&window, Qt::Key_F8);
    EXPECT_TRUE(window.isFullScreen()) << "there is no other display";
    QWidget other;
    WindowPlace part(other, WindowKind::Window);
    part.show();
    EXPECT_TRUE(other.isVisible() && !other.isFullScreen());
    EXPECT_EQ(other.geometry(), windowWithin(screen->availableGeometry()));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
