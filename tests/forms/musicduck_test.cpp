#include "forms/musicduck.h"

#include <gtest/gtest.h>

#include "support/fakemultimedia.h"

namespace sarne {
namespace {

/// A WAV file of silence: 16 bits at 8000 samples a second.
QByteArray silence(int milliseconds) {
    QByteArray wav(44, '\0');
    wav[28] = char(16000 & 0xff);
    wav[29] = char(16000 >> 8);
    return wav + QByteArray(milliseconds * 16, '\0');
}

class MusicDuckTest : public testing::Test {
  protected:
    void pass(int milliseconds) {
        for (int i = 0; i < milliseconds; i += duck.timer().interval()) duck.timer().fire();
    }

    FakeMultimedia music;
    MusicDuck duck{music};
};

TEST_F(MusicDuckTest, StepsBackWhileANameIsSpokenAndComesBackOverASecond) {
    duck.speaking(silence(1000));
    pass(150);
    EXPECT_NEAR(music.decibels, -10, 0.01);
    pass(800);
    EXPECT_NEAR(music.decibels, -10, 0.01);
    pass(550);
    EXPECT_NEAR(music.decibels, -5, 0.6);
    duck.speaking(silence(500));
    pass(150);
    EXPECT_NEAR(music.decibels, -10, 0.01) << "the next name follows at once";
    pass(1400);
    EXPECT_EQ(music.decibels, 0);
    EXPECT_FALSE(duck.timer().isEnabled());
}

TEST_F(MusicDuckTest, ComesBackAtOnceWhenTheScreenGoesAndStaysForWhatIsNoSound) {
    duck.speaking(silence(1000));
    pass(100);
    duck.release();
    EXPECT_EQ(music.decibels, 0);
    duck.speaking(silence(1000));
    pass(1);
    EXPECT_GT(music.decibels, -3) << "from where it was";
    duck.release();
    for (const QByteArray& none : {QByteArray(), QByteArray("RIFF..."), QByteArray(100, '\0')})
        duck.speaking(none);
    EXPECT_FALSE(duck.timer().isEnabled());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
