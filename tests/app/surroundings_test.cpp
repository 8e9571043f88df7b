#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include "app/kepteyes.h"
#include "app/language.h"
#include "app/windowplace.h"
#include "db/userfile.h"
#include "forms/eyes.h"

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

TEST(Language, QtsOwnTextsAreCzechWhateverTheUsersLanguage) {
    installLanguage({u"xx-XX"_s, u"en-US"_s});
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Zrušit"_s);
    EXPECT_EQ(QCoreApplication::translate("QPrintDialog", "Print"), u"Tisk"_s);
}

TEST(KeptEyes, WhatTheUserChoosesOutlivesTheRunAndTheDesktopsWishes) {
    QTemporaryDir folder;
    const QString file = folder.filePath(u"vlastni.db"_s);
    {
        UserFile kept(file);
        Eyes eyes;
        KeptEyes keeping(eyes, kept);
        keeping.follow({true, true});
        EXPECT_TRUE(eyes.isCalm());
        EXPECT_TRUE(kept.value(u"Calm"_s).isEmpty()) << "a wish is no choice";
        EXPECT_TRUE(eyes.stepText(1));
        eyes.setContrast(false);
        EXPECT_EQ(kept.value(u"TextPercent"_s), u"125"_s);
        EXPECT_EQ(kept.value(u"Contrast"_s), u"0"_s);
    }
    UserFile kept(file);
    Eyes eyes;
    KeptEyes keeping(eyes, kept);
    EXPECT_EQ(eyes.textPercent(), 125);
    keeping.follow({true, true});
    EXPECT_TRUE(eyes.isCalm()) << "follows the desktop";
    EXPECT_FALSE(eyes.hasContrast()) << "the user has said otherwise";
    keeping.follow({false, true});
    EXPECT_FALSE(eyes.isCalm());
}

TEST(Eyes, TextsHaveThreeSizes) {
    Eyes eyes;
    EXPECT_FALSE(eyes.stepText(-1));
    eyes.setTextPercent(140);
    EXPECT_EQ(eyes.textPercent(), 150);
    EXPECT_FALSE(eyes.stepText(1));
    eyes.setTextPercent(-5);
    EXPECT_EQ(eyes.textScale(), 1);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
