#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QTemporaryDir>
#include <QTranslator>
#include <QWidget>
#include <QWindow>
#include <optional>

#include "app/kepteyes.h"
#include "app/language.h"
#include "app/windowplace.h"
#include "db/userfile.h"
#include "forms/eyes.h"
#include "onevent.h"
#include "support/kept.h"

namespace sarne {
namespace {

TEST(WindowPlaceTest, TheDisplayIsTheOneThatHoldsThePoint) {
    const QList<QRect> displays{{0, 0, 1920, 1080}, {1920, 200, 1280, 720}};
    EXPECT_EQ(displayAt(displays, {5, 5}), 0);
    EXPECT_EQ(displayAt(displays, {1920, 200}), 1);
    EXPECT_EQ(displayAt(displays, {2500, 10}), 1) << "beside them all: the nearest one";
    EXPECT_EQ(displayAt({displays[1], displays[0], displays[0]}, {5, 5}), 1) << "of two alike the first";
    EXPECT_EQ(displayAt({}, {5, 5}), -1);
}

TEST(WindowPlaceTest, AWindowIsOfTheDesignsShapeAndNoLargerThanItsRoom) {
    EXPECT_EQ(windowWithin({0, 0, 1920, 1080}), QRect(420, 135, 1080, 810));
    EXPECT_EQ(windowWithin({100, 0, 1000, 700}).size(), QSize(800, 600));
    EXPECT_EQ(windowWithin({0, 0, 640, 400}), QRect(53, 0, 533, 400));
}

/// The two displays are those of displays.json.
TEST(WindowPlaceTest, FillsADisplayOrStandsInItsMiddle) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    ASSERT_EQ(screens.size(), 2);
    const auto expected = [&](WindowKind kind, int display) {
        return kind == WindowKind::FullScreen ? screens[display]->geometry()
                                              : windowWithin(screens[display]->availableGeometry());
    };
    for (const WindowKind kind : {WindowKind::FullScreen, WindowKind::Window}) {
        QWidget window;
        int passed = 0;
        const test::OnEvent watch(QEvent::KeyPress, [&](const QObject*) { ++passed; });
        QCursor::setPos(screens[1]->geometry().center());
        WindowPlace place(window, kind);
        place.settle();
        EXPECT_FALSE(window.isVisible());
        EXPECT_EQ(window.geometry(), expected(kind, 1)) << "where the pointer is";
        place.show();
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(window.isFullScreen(), kind == WindowKind::FullScreen);
        const auto press = [&](QObject* on, Qt::Key key, Qt::KeyboardModifiers modifiers = {},
                               bool again = false) {
            QKeyEvent event(QEvent::KeyPress, key, modifiers, {}, again);
            QCoreApplication::sendEvent(on, &event);
            return window.geometry();
        };
        QWindow* window1 = window.windowHandle();
        for (const int display : {0, 1, 0}) EXPECT_EQ(press(window1, Qt::Key_F8), expected(kind, display));
        EXPECT_EQ(window.isFullScreen(), kind == WindowKind::FullScreen);
        EXPECT_EQ(passed, 0) << "the key means nothing else";
        EXPECT_EQ(press(window1, Qt::Key_F8, Qt::ShiftModifier), expected(kind, 0));
        EXPECT_EQ(press(window1, Qt::Key_F8, {}, true), expected(kind, 0)) << "held down";
        EXPECT_EQ(press(window1, Qt::Key_F7), expected(kind, 0));
        EXPECT_EQ(press(&window, Qt::Key_F8), expected(kind, 0)) << "the window alone";

        const QRect elsewhere(30, 40, 500, 300);
        const auto changed = [&](int display) {
            window.setGeometry(elsewhere);
            Q_EMIT screens[display]->geometryChanged({});
            return window.geometry();
        };
        EXPECT_EQ(changed(0), kind == WindowKind::FullScreen ? expected(kind, 0) : elsewhere) << "a new mode";
        EXPECT_EQ(changed(1), elsewhere) << "of the other display";
        const auto gone = [&](int display) {
            window.setGeometry(elsewhere);
            Q_EMIT qApp->screenRemoved(screens[display]);
            QCoreApplication::sendPostedEvents(&place);
            return window.geometry();
        };
        EXPECT_EQ(gone(1), elsewhere);
        EXPECT_EQ(gone(0), expected(kind, 1)) << "to where the pointer is";
    }
}

TEST(Language, TheFirstOfTheUsersThatThereIsElseCzech) {
    // The texts of the language xx are here Qt's German ones.
    const struct {
        QStringList wanted;
        const char* cancel;
    } cases[] = {{{}, "Zrušit"},
                 {{u"en-US"_s}, "Zrušit"},
                 {{u"yy"_s, u"xx-XX"_s, u"cs-CZ"_s}, "Abbrechen"},
                 {{u"cs-CZ"_s, u"xx"_s}, "Zrušit"}};
    for (const auto& c : cases) {
        installLanguage(c.wanted);
        EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString::fromUtf8(c.cancel));
        qDeleteAll(qApp->findChildren<QTranslator*>());
    }
}

TEST(KeptEyes, WhatTheUserChoosesOutlivesTheRunAndTheDesktopsWishes) {
    QTemporaryDir folder;
    QStringList diary;
    struct Run {
        UserFile file;
        Eyes eyes;
        KeptEyes keeping{eyes, file};
        explicit Run(const QString& name) : file(name) {}
    };
    std::optional<Run> run;
    const auto does = [&](const char* what, const std::function<void()>& act) {
        act();
        const auto kept = [&](const char* value) { return run->file.value(QLatin1String(value)); };
        diary << u"%1 ⇒ %2 % calm %3 contrast %4, kept '%5' '%6' '%7'"_s.arg(QLatin1String(what))
                     .arg(run->eyes.textPercent())
                     .arg(run->eyes.isCalm())
                     .arg(run->eyes.hasContrast())
                     .arg(kept("TextPercent"), kept("Calm"), kept("Contrast"));
    };
    const auto again = [&] { run.emplace(folder.filePath(u"vlastni.db"_s)); };
    const auto wished = [&](bool calm, bool contrast) {
        return [&, calm, contrast] { run->keeping.follow({calm, contrast}); };
    };
    does("run", again);
    does("wished calm contrast", wished(true, true));
    does("larger", [&] { run->eyes.stepText(1); });
    does("no contrast", [&] { run->eyes.setContrast(false); });
    does("run", again);
    does("wished calm contrast", wished(true, true));
    does("wished contrast", wished(false, true));
    does("calm", [&] { run->eyes.setCalm(true); });
    does("contrast", [&] { run->eyes.setContrast(true); });
    does("wished nothing", wished(false, false));
    does("run", again);
    does("smaller", [&] { run->eyes.stepText(-1); });
    does("not calm", [&] { run->eyes.setCalm(false); });
    does("run", again);
    test::expectText(u"oci"_s, diary.join(u'\n'));
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
