#include <algorithm>

#include "wholeprogram.h"

namespace sarne {
namespace {

using ProgramSoundTest = AudibleProgram;

TEST_F(ProgramSoundTest, TheChosenTrackPlaysAtOnceAfterItsEndAndAfterARestart) {
    const auto playsOn = [&](double tone) {
        EXPECT_TRUE(server.waitForTone(tone));
        const Recording sound = server.listen(2500);  // more than two rounds
        EXPECT_GT(sound.share(tone), 0.95) << tone;
        EXPECT_GT(sound.lastSound() - sound.firstSound(), 2200);
        EXPECT_LT(sound.longestGap(), 100);
    };
    start("11010");
    playsOn(kMusicTone);
    set({"opthudba(1)"});
    playsOn(kWineTone);
    end();
    EXPECT_TRUE(server.waitForSilence());
    start();
    playsOn(kWineTone);
    set({"chkNastav(4)"});
    playsOn(kMusicTone);
    EXPECT_EQ(messages, QStringList{QStringLiteral("Chcete ukončit program?")});
}

TEST_F(ProgramSoundTest, ButtonsSoundAtOnceAndCutEachOtherOff) {
    start("10010");
    runFor(500);
    std::vector<double> delays;  // upper bounds: the recorder has its own
    for (const int button : {2, 3, 2, 3, 2, 3, 5}) {
        server.rewind();
        pointAt(button);
        EXPECT_TRUE(waitFor([&] { return server.recorded().share(effectTone(button)) > 0.5; }));
        delays.push_back(server.recorded().firstSound());
        EXPECT_TRUE(server.waitForTone(effectTone(button))) << "and no longer the last one";
        QTest::mouseMove(program->FormStack.top(), {795, 5});
        EXPECT_TRUE(server.waitForSilence()) << "leaving the button ends its effect";
    }
    std::sort(delays.begin(), delays.end());
    RecordProperty("effect_delay_ms", static_cast<int>(delays[delays.size() / 2]));
    EXPECT_LT(delays.front(), 200);

    pointAt(2);
    EXPECT_TRUE(server.waitForTone(effectTone(2)));
    pointAt(3);
    EXPECT_TRUE(server.waitForTone(effectTone(3)));
}

TEST_F(ProgramSoundTest, AVideoTakesTheMusicsPlaceAndGivesItBack) {
    ASSERT_FALSE(media
                     .film(QStringLiteral("VIDEO/2.AVI"), 60000, QStringLiteral("-c:v mjpeg"),
                           QStringLiteral("64x48"), 5)
                     .isEmpty());
    start("11010");
    EXPECT_TRUE(server.waitForTone(kMusicTone));
    showFilm(2);
    EXPECT_TRUE(server.waitForTone(kFilmTone));
    server.rewind();
    set({"opthudba(1)"});
    runFor(1000);
    EXPECT_GT(server.recorded().share(kFilmTone), 0.95) << "a track chosen meanwhile waits";
    set({"chkNastav(3)"});
    EXPECT_TRUE(server.waitForSilence()) << "the videos' sound is off at once";
    EXPECT_EQ(status(), QStringLiteral("Přehrávám"));
    press(Qt::Key_Escape);
    EXPECT_TRUE(server.waitForTone(kWineTone));
    showFilm(2);
    EXPECT_TRUE(server.waitForSilence()) << "and stays off";
}

TEST_F(ProgramSoundTest, ADevicePulledOutSilencesAndEndsNothing) {
    start("11010");
    EXPECT_TRUE(server.waitForTone(kMusicTone));
    ASSERT_TRUE(server.pullDevice());
    runFor(1000);
    EXPECT_EQ(platform->music.mode(), MediaMode::Playing);
    pointAt(2);
    set({"opthudba(1)"});
    EXPECT_TRUE(waitFor([&] { return platform->music.mode() == MediaMode::Playing; }));
    showFilm(1);
    EXPECT_TRUE(waitFor([&] { return status() == QStringLiteral("Přehrávání skončeno"); }, 15000));
    press(Qt::Key_Escape);

    ASSERT_TRUE(server.plugDevice());
    EXPECT_TRUE(server.waitForTone(kWineTone)) << "the music goes on by itself";
    set({"opthudba(0)"});
    EXPECT_TRUE(server.waitForTone(kMusicTone));
    set({"chkNastav(1)"});
    EXPECT_TRUE(server.waitForSilence());
    pointAt(3);
    EXPECT_TRUE(server.waitForTone(effectTone(3)));
    end();
    EXPECT_EQ(messages, QStringList{QStringLiteral("Chcete ukončit program?")}) << "nobody was told";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
