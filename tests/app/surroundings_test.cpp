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
#include <functional>
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

/// The two displays are those of displays.json; the pointer is on the second one.
TEST(WindowPlaceTest, FillsADisplayOrStandsInItsMiddle) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    ASSERT_EQ(screens.size(), 2);
    QStringList told;
    for (const WindowKind kind : {WindowKind::FullScreen, WindowKind::Window}) {
        QWidget window;
        int passed = 0;
        const test::OnEvent watch(QEvent::KeyPress, [&](const QObject*) { ++passed; });
        QCursor::setPos(screens[1]->geometry().center());
        WindowPlace place(window, kind);
        const auto press = [&](QObject* on, Qt::Key key, Qt::KeyboardModifiers modifiers = {},
                               bool again = false) {
            QKeyEvent event(QEvent::KeyPress, key, modifiers, {}, again);
            QCoreApplication::sendEvent(on, &event);
        };
        const auto key = [&] { press(window.windowHandle(), Qt::Key_F8); };
        const auto elsewhere = [&] { window.setGeometry(30, 40, 500, 300); };
        const auto changes = [&](int display) { Q_EMIT screens[display]->geometryChanged({}); };
        const auto goes = [&](int display) {
            Q_EMIT qApp->screenRemoved(screens[display]);
            QCoreApplication::sendPostedEvents(&place);
        };
        const std::pair<const char*, std::function<void()>> steps[] = {
            {"settled", [&] { place.settle(); }},
            {"shown", [&] { place.show(); }},
            {"F8", key},
            {"F8 again", key},
            {"and again", key},
            {"Shift+F8", [&] { press(window.windowHandle(), Qt::Key_F8, Qt::ShiftModifier); }},
            {"F8 held down", [&] { press(window.windowHandle(), Qt::Key_F8, {}, true); }},
            {"F7", [&] { press(window.windowHandle(), Qt::Key_F7); }},
            {"F8 for the widget", [&] { press(&window, Qt::Key_F8); }},
            {"elsewhere", elsewhere},
            {"the second display changes", [&] { changes(1); }},
            {"its display changes", [&] { changes(0); }},
            {"elsewhere", elsewhere},
            {"the second display goes", [&] { goes(1); }},
            {"its display goes", [&] { goes(0); }}};
        for (const auto& [what, act] : steps) {
            act();
            const QRect at = window.geometry();
            told << u"%1: %2,%3 %4x%5%6%7, %8 keys passed on"_s.arg(QLatin1String(what))
                        .arg(at.x())
                        .arg(at.y())
                        .arg(at.width())
                        .arg(at.height())
                        .arg(window.isVisible() ? u""_s : u" hidden"_s,
                             window.isFullScreen() ? u" full"_s : u""_s)
                        .arg(passed);
        }
    }
    test::expectText(u"okno"_s, told.join(u'\n'));
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

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
