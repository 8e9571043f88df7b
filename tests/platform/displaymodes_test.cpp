#include "platform/displaymodes.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <utility>

#include "displayserver.h"
#include "support/files.h"
#include "testmedia.h"

namespace sarne {
namespace {

constexpr QSize full(1920, 1080);
constexpr QSize design(800, 600);

class DisplayModesTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!server.start()) GTEST_SKIP() << "no X server with the dummy driver could be started";
        ASSERT_EQ(current(), full);
    }
    static std::unique_ptr<SystemDisplayModes> modes() {
        return std::make_unique<SystemDisplayModes>(QStringLiteral(SARNE_DISPLAY_HELPER), u"xcb"_s);
    }
    static QSize current() { return modes()->current(); }

    DisplayServer server;
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
    EXPECT_EQ(server.screenSize(), design) << "the screen fits the monitor";
    EXPECT_TRUE(display->setMode({1024, 768}));
    display->restore();
    EXPECT_EQ(current(), full);
    EXPECT_EQ(server.screenSize(), full);

    EXPECT_TRUE(display->setMode(design));
    display.reset();
    EXPECT_EQ(current(), full);
}

TEST_F(DisplayModesTest, AKilledHelperIsReplaced) {
    const auto helpers = [] {
        QList<int> all;
        for (const QByteArray& child :
             test::bytesOf(u"/proc/self/task/%1/children"_s.arg(getpid())).split(' ')) {
            if (test::bytesOf(u"/proc/%1/comm"_s.arg(QString::fromLatin1(child))).startsWith("sarne-obnov"))
                all << child.toInt();
        }
        return all;
    };
    const auto killHelper = [&] {
        for (const int helper : helpers()) kill(helper, SIGKILL);
    };
    auto display = modes();
    EXPECT_TRUE(display->setMode(design));
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGPIPE}) kill(helpers().value(0), signal);
    runFor(100);
    EXPECT_EQ(current(), design);
    EXPECT_EQ(helpers().size(), 1) << "who clears up is not sent away with the others";
    killHelper();
    display->restore();
    EXPECT_EQ(current(), full);
    EXPECT_TRUE(display->setMode(design));
    killHelper();
    display.reset();
    EXPECT_EQ(current(), full) << "the second helper's end does not bring the small mode back";
}

TEST_F(DisplayModesTest, LeavesWhatTheUserChoseInTheMeantime) {
    auto display = modes();
    EXPECT_TRUE(display->setMode(design));
    const auto user = modes();
    EXPECT_TRUE(user->setMode({1280, 720}));
    display.reset();
    EXPECT_EQ(current(), QSize(1280, 720));
}

/// A helper that notes what it is asked; told to go away ("can 1 1"), it does so once, or always.
class NotingHelper {
  public:
    explicit NotingHelper(bool alwaysGoes) {
        const QByteArray here = folder_.path().toUtf8();
        EXPECT_TRUE(test::write(
            path(), "#!/bin/sh\ncd " + here +
                        "\necho begin >> log\nwhile read line; do echo $line >> log; case $line in"
                        " size) echo 1024 768;;"
                        " 'can 1 1') if [ -e gone ]; then echo yes; else " +
                        (alwaysGoes ? "" : "touch gone;") +
                        " exit; fi;;"
                        " 'set 2 2') echo no;;"
                        " *) echo yes;;"
                        " esac >&0; done\necho end >> log\n"));
        QFile::setPermissions(path(), QFile::ReadOwner | QFile::ExeOwner);
    }
    QString path() const { return folder_.filePath(u"pomocník"_s); }
    /// What was noted since the last call.
    QString log() {
        const QString all = QString::fromUtf8(test::bytesOf(folder_.filePath(u"log"_s)));
        return all.mid(std::exchange(read_, all.size())).simplified();
    }

  private:
    QTemporaryDir folder_;
    qsizetype read_ = 0;
};

TEST(DisplayModesElsewhereTest, AsksItsHelper) {
    NotingHelper helper(false);
    auto display = std::make_unique<SystemDisplayModes>(helper.path(), u"xcb"_s);
    display->prepare();
    EXPECT_TRUE(waitFor([&] { return helper.log() == u"begin"_s; }));
    EXPECT_EQ(display->current(), QSize(1024, 768));
    EXPECT_TRUE(display->canSwitch({3, 4}));
    EXPECT_FALSE(display->setMode({2, 2}));
    display->restore();
    EXPECT_EQ(helper.log(), u"size can 3 4 size set 2 2"_s) << "nothing is restored that was not changed";
    EXPECT_TRUE(display->setMode(design));
    EXPECT_TRUE(display->setMode({640, 480}));
    EXPECT_TRUE(display->setMode({1024, 768}));
    display->restore();
    EXPECT_EQ(helper.log(), u"size set 800 600 size set 640 480 size restore"_s);
    EXPECT_TRUE(display->setMode(design));
    EXPECT_TRUE(display->canSwitch({1, 1}));
    display->restore();
    EXPECT_EQ(helper.log(), u"size set 800 600 can 1 1 begin can 1 1 size set 1024 768 forget"_s)
        << "it knew of nothing";
    EXPECT_TRUE(display->setMode(design));
    display.reset();
    EXPECT_EQ(helper.log(), u"size set 800 600 size restore end"_s);
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_FALSE(SystemDisplayModes(helper.path(), u"xcb"_s).canSwitch(design));
    qunsetenv("WAYLAND_DISPLAY");
}

TEST(DisplayModesElsewhereTest, AHelperThatFallsOverIsStartedThreeTimes) {
    NotingHelper helper(true);
    SystemDisplayModes display(helper.path(), u"xcb"_s);
    for (int i = 0; i < 3; ++i) EXPECT_FALSE(display.canSwitch({1, 1}));
    EXPECT_EQ(helper.log(), u"begin can 1 1 begin can 1 1 begin can 1 1"_s);
}

TEST(DisplayModesElsewhereTest, AHelperThatHangsDoesNotKeepTheProgram) {
    const QTemporaryDir folder;
    const QString helper = folder.filePath(u"sarne-obnov"_s);
    ASSERT_TRUE(test::write(helper, "#!/bin/sh\nexec sleep 60\n"));
    QFile::setPermissions(helper, QFile::ReadOwner | QFile::ExeOwner);
    auto display = std::make_unique<SystemDisplayModes>(helper, u"xcb"_s);
    EXPECT_FALSE(display->setMode(design));
    EXPECT_FALSE(display->canSwitch(design));
    display.reset();  // the test's time limit is the assertion: sixty seconds a helper would be too many
}

TEST(DisplayModesElsewhereTest, WhereModesCannotBeSwitchedNothingHappens) {
    const QString helper = QStringLiteral(SARNE_DISPLAY_HELPER);
    qputenv("DISPLAY", ":987");
    SystemDisplayModes cases[] = {SystemDisplayModes(helper, u"wayland"_s), SystemDisplayModes(helper),
                                  SystemDisplayModes(helper, u"xcb"_s),
                                  SystemDisplayModes(u"/nonexistent"_s, u"xcb"_s)};
    for (SystemDisplayModes& display : cases) {
        EXPECT_FALSE(display.canSwitch(design));
        EXPECT_FALSE(display.setMode(design));
        display.restore();
        EXPECT_TRUE(display.current().isEmpty()) << "nothing is read where nothing can be switched";
        EXPECT_EQ(display.twipsPerPixel(), QSize(15, 15));
    }
    qunsetenv("DISPLAY");
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
