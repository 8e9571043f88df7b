#include "platform/displaymodes.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>

#include "testmedia.h"

namespace sarne {
namespace {

constexpr QSize full(1920, 1080);
constexpr QSize design(800, 600);

constexpr char serverConfig[] = R"(
Section "ServerFlags"
    Option "AutoAddDevices" "false"
    Option "AutoAddGPU" "false"
EndSection
Section "Device"
    Identifier "card"
    Driver "dummy"
    VideoRam 32768
EndSection
Section "Monitor"
    Identifier "monitor"
    HorizSync 5-1000
    VertRefresh 5-200
    Modeline "1920x1080" 148.5 1920 2008 2052 2200 1080 1084 1089 1125
EndSection
Section "Screen"
    Identifier "screen"
    Device "card"
    Monitor "monitor"
    DefaultDepth 24
    SubSection "Display"
        Depth 24
        Modes "1920x1080"
        Virtual 1920 1080
    EndSubSection
EndSection
)";

/// A real X server whose card shows nothing.
class DisplayModesTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!startServer()) GTEST_SKIP() << "no X server with the dummy driver could be started";
        ASSERT_EQ(current(), full);
    }
    void TearDown() override {
        qunsetenv("DISPLAY");
        server.terminate();
        if (!server.waitForFinished(5000)) server.kill();
        server.waitForFinished();
    }

    bool startServer() {
        QFile config(folder.filePath(QStringLiteral("xorg.conf")));
        if (!config.open(QIODevice::WriteOnly)) return false;
        config.write(serverConfig);
        config.close();
        server.setStandardErrorFile(QProcess::nullDevice());
        server.start(
            QStringLiteral("Xorg"),
            {QStringLiteral("-noreset"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
             QStringLiteral("-config"), config.fileName(), QStringLiteral("-logfile"),
             folder.filePath(QStringLiteral("log")), QStringLiteral("-displayfd"), QStringLiteral("1")});
        QByteArray number;
        const auto answered = [&] {
            number += server.readAllStandardOutput();
            return number.endsWith('\n') || server.state() == QProcess::NotRunning;
        };
        if (!server.waitForStarted() || !waitFor(answered, 15000) || !number.endsWith('\n')) return false;
        qputenv("DISPLAY", ":" + number.trimmed());
        return true;
    }
    static std::unique_ptr<SystemDisplayModes> modes() {
        return std::make_unique<SystemDisplayModes>(QStringLiteral(SARNE_DISPLAY_HELPER),
                                                    QStringLiteral("xcb"));
    }
    static QSize current() { return modes()->current(); }

    QTemporaryDir folder;
    QProcess server;
};

TEST_F(DisplayModesTest, SwitchesAndRestores) {
    auto display = modes();
    EXPECT_TRUE(display->canSwitch(design));
    EXPECT_FALSE(display->canSwitch({801, 600}));
    EXPECT_FALSE(display->setMode({801, 600}));
    display->restore();
    EXPECT_EQ(display->current(), full);

    EXPECT_TRUE(display->setMode(design));
    EXPECT_EQ(current(), design);
    EXPECT_TRUE(display->setMode({1024, 768}));
    display->restore();
    EXPECT_EQ(current(), full);

    EXPECT_TRUE(display->setMode(design));
    display.reset();
    EXPECT_EQ(current(), full);
}

TEST_F(DisplayModesTest, LeavesWhatTheUserChoseInTheMeantime) {
    auto display = modes();
    EXPECT_TRUE(display->setMode(design));
    const auto user = modes();
    EXPECT_TRUE(user->setMode({1280, 720}));
    display.reset();
    EXPECT_EQ(current(), QSize(1280, 720));
}

TEST_F(DisplayModesTest, AProgramThatDiesLeavesTheDisplayAsItWas) {
    enum class Death { Killed, GroupKilled, Crashed };
    for (const Death death : {Death::Killed, Death::GroupKilled, Death::Crashed}) {
        int ready[2];
        ASSERT_EQ(pipe(ready), 0);
        const pid_t program = fork();
        if (program == 0) {
            setpgid(0, 0);
            const auto display = modes();
            const char answer = display->setMode(design) ? 'y' : 'n';
            if (write(ready[1], &answer, 1) != 1) _exit(1);
            std::signal(SIGABRT, SIG_DFL);
            if (death == Death::Crashed) abort();
            pause();
            _exit(0);
        }
        char answer = 0;
        ASSERT_EQ(read(ready[0], &answer, 1), 1);
        EXPECT_EQ(answer, 'y');
        if (death == Death::Killed) {
            EXPECT_EQ(current(), design);
            kill(program, SIGKILL);
        }
        if (death == Death::GroupKilled) kill(-program, SIGKILL);
        waitpid(program, nullptr, 0);
        EXPECT_TRUE(waitFor([] { return current() == full; })) << static_cast<int>(death);
        close(ready[0]);
        close(ready[1]);
    }
}

TEST(DisplayModesElsewhereTest, WhereModesCannotBeSwitchedNothingHappens) {
    const QString helper = QStringLiteral(SARNE_DISPLAY_HELPER);
    qputenv("DISPLAY", ":987");
    SystemDisplayModes cases[] = {SystemDisplayModes(helper, QStringLiteral("wayland")),
                                  SystemDisplayModes(helper),
                                  SystemDisplayModes(helper, QStringLiteral("xcb")),
                                  SystemDisplayModes(QStringLiteral("/nonexistent"), QStringLiteral("xcb"))};
    for (SystemDisplayModes& display : cases) {
        EXPECT_FALSE(display.canSwitch(design));
        EXPECT_FALSE(display.setMode(design));
        display.restore();
        EXPECT_FALSE(display.current().isEmpty()) << "Qt knows the size";
        EXPECT_EQ(display.twipsPerPixel(), QSize(15, 15));
    }
    qunsetenv("DISPLAY");
}

}  // namespace
}  // namespace sarne
