#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRect>
#include <csignal>

#include "platform/displaymodes.h"
#include "platform/displayserver.h"
#include "platform/testmedia.h"

namespace sarne {
namespace {

constexpr QSize kFull(1920, 1080);
constexpr QSize kDesign(800, 600);

/// The program's own process on a real X server, with an empty disc.
class ProgramDisplayTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!server.start()) GTEST_SKIP() << "no X server with the dummy driver could be started";
        QDir(home.path({})).mkpath(u"App Paths"_s);
        home.write(u"App Paths/Dunvik.exe.conf"_s, "[General]\nCDPath=" + home.path({}).toUtf8());
    }
    void TearDown() override {
        program.kill();
        program.waitForFinished();
    }
    /// Starts the program and waits until its window covers \a display.
    bool start(const QRect& display = QRect({}, kFull)) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            environment.insert(QLatin1String(name), home.path({}));
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        environment.remove(u"WAYLAND_DISPLAY"_s);
        // A sanitizer would make an orderly end of a crash.
        environment.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0:handle_segv=0"_s);
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(SARNE_PROGRAM), QStringList());
        return program.waitForStarted() && waitFor([&] { return window() == display; }, 20000);
    }
    static QSize mode() {
        return SystemDisplayModes(QStringLiteral(SARNE_DISPLAY_HELPER), u"xcb"_s).current();
    }
    static QByteArray xdotool(const char* arguments) {
        QProcess tool;
        tool.start(u"xdotool"_s, QString::fromLatin1(arguments).split(u' '));
        tool.waitForFinished();
        return tool.readAllStandardOutput();
    }
    static QRect window() {
        int x = 0, y = 0, width = 0, height = 0;
        const QByteArray shell = xdotool("search --onlyvisible --name Velisa.sarn getwindowgeometry --shell");
        std::sscanf(shell.constData(), "WINDOW=%*d\nX=%d\nY=%d\nWIDTH=%d\nHEIGHT=%d", &x, &y, &width,
                    &height);
        return {x, y, width, height};
    }
    /// Types \a key until \a done.
    static bool typeUntil(const char* key, const std::function<bool()>& done) {
        for (int attempt = 0; attempt < 20; ++attempt) {
            xdotool(key);
            if (waitFor(done, 1000)) return true;
        }
        return false;
    }
    bool hasEnded() { return program.waitForFinished(0) || program.state() == QProcess::NotRunning; }

    DisplayServer server;
    TestMedia home;
    QProcess program;
};

TEST_F(ProgramDisplayTest, YesSwitchesTheDisplayAndEveryEndRestoresIt) {
    for (const int death : {0, SIGSEGV, SIGKILL}) {
        ASSERT_TRUE(start()) << death;
        runFor(500);
        EXPECT_EQ(mode(), kFull) << "nothing happens before the answer";
        ASSERT_TRUE(typeUntil("key a", [] { return mode() == kDesign; })) << death;
        EXPECT_TRUE(waitFor([] { return window() == QRect({}, kDesign); })) << "the program fills it";
        if (death != 0)
            ::kill(pid_t(program.processId()), death);
        else
            EXPECT_TRUE(typeUntil("key x sleep 0.3 key a", [this] { return hasEnded(); }));
        EXPECT_TRUE(waitFor([this] { return hasEnded(); }));
        EXPECT_EQ(program.exitStatus(), death == 0 ? QProcess::NormalExit : QProcess::CrashExit);
        EXPECT_TRUE(waitFor([] { return mode() == kFull; })) << death;
    }
}

TEST_F(ProgramDisplayTest, NoAndNoEndAtOnce) {
    ASSERT_TRUE(start());
    EXPECT_TRUE(typeUntil("key n", [this] { return hasEnded(); }));
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(mode(), kFull);
}

TEST_F(ProgramDisplayTest, OpensWhereThePointerIsMovesOnByAKeyAndLeavesADisplayThatGoes) {
    const QRect first({}, kFull);
    const QRect second(1920, 0, 1024, 768);
    ASSERT_TRUE(DisplayServer::addDisplay()) << "is xrandr installed?";
    xdotool("mousemove 2400 300");
    ASSERT_TRUE(start(second)) << "where the pointer is";
    EXPECT_TRUE(typeUntil("key F8", [&] { return window() == first; }));
    EXPECT_TRUE(typeUntil("key F8", [&] { return window() == second; }));
    ASSERT_TRUE(DisplayServer::removeDisplay());
    EXPECT_TRUE(waitFor([&] { return window() == first; })) << "the display went";
    EXPECT_FALSE(hasEnded());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
