#include <gtest/gtest.h>

#include "support/fakeannouncer.h"
#include "support/fakebeeper.h"
#include "support/fakedisplaymodes.h"
#include "support/fakeeffects.h"
#include "support/fakemultimedia.h"
#include "support/fakesettings.h"
#include "support/fakesleepinhibitor.h"

namespace sarne {
namespace {

// Other folders' tests trust the stand-ins: what they do by themselves is kept in step with the real ones
// here.
TEST(FakeMultimediaTest, MusicStartsAgainAtItsEndUntilItIsStopped) {
    FakeMultimedia player;
    QObject::connect(&player, &MultimediaControl::done, &player, [&player](int code) {
        if (code != static_cast<int>(MediaDone::Successful)) return;
        player.command(u"prev");
        player.command(u"play");
    });
    player.setFileName(QStringLiteral("/hudba.wav"));
    player.command(u"open");
    player.setNotify(MediaNotify::On);
    player.command(u"play");
    player.end();
    EXPECT_TRUE(player.playing());
    EXPECT_EQ(player.position(), 0);
    player.command(u"Stop");
    EXPECT_EQ(player.mode(), MediaMode::Stopped);
    EXPECT_EQ(player.commands,
              QStringList({QStringLiteral("open /hudba.wav"), QStringLiteral("play"), QStringLiteral("prev"),
                           QStringLiteral("play"), QStringLiteral("stop")}));
}

TEST(FakeMultimediaTest, FailsWhereTheTestSays) {
    FakeMultimedia player;
    player.failing.insert(QStringLiteral("open"), MediaError::FileNotFound);
    player.command(u"open");
    EXPECT_EQ(player.error(), 275);
    EXPECT_FALSE(player.errorMessage().isEmpty());
    EXPECT_EQ(player.mode(), MediaMode::NotOpen);
    player.command(u"play");
    EXPECT_EQ(player.lastError(), MediaError::NotOpen);
}

TEST(FakeDisplayModesTest, RestoresTheFirstSize) {
    FakeDisplayModes display;
    EXPECT_TRUE(display.setMode({800, 600}));
    EXPECT_TRUE(display.setMode({640, 480}));
    display.restore();
    EXPECT_EQ(display.current(), QSize(1920, 1080));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
