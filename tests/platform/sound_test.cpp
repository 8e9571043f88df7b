#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QtEndian>
#include <algorithm>
#include <cmath>

#include "platform/beeper.h"
#include "platform/effectplayer.h"
#include "platform/mpvcontrol.h"
#include "platform/pulseserver.h"
#include "platform/soundlength.h"
#include "soundserver.h"
#include "support/fakeeffects.h"
#include "support/files.h"
#include "testmedia.h"

namespace sarne {
namespace {

/// What really comes out of the loudspeaker.
class SoundTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!server.start()) GTEST_SKIP() << "no PulseAudio server could be started";
    }
    void play(const QString& file) {
        music.setFileName(file);
        music.command(u"open");
        ASSERT_EQ(music.error(), 0);
        server.rewind();
        music.command(u"play");
    }
    void playLongMusic() { play(media.write(u"hudba.wav"_s, sineWav(500, 20000))); }
    TestMedia media;
    SoundServer server;
    MpvControl music;
};

// A compressed track ends and begins at samples of its own choosing, which the player must know to leave out:
// a round that were longer or shorter by them would shift the tone against itself. With Vorbis that happens,
// by some milliseconds, which is why the music of a disc is not made so.
TEST_F(SoundTest, MusicLoopsWithoutASeamAndStops) {
    constexpr double kTone = 100;  // a shift of up to 5 ms can be told
    const QString whole = media.write(u"hudba.wav"_s, sineWav(kTone, 610));
    music.setLoop(MediaLoop::On);
    for (const auto& [name, exact] :
         {std::pair("hudba.wav", true), {"hudba.opus", true}, {"hudba.flac", true}, {"hudba.ogg", false}}) {
        const QString file = media.path(QLatin1String(name));
        ASSERT_TRUE(file == whole || media.compress(whole, file));
        double seam = 1000;
        for (int attempt = 0; attempt < 3 && seam > 1; ++attempt) {  // a busy machine may stutter once
            play(file);
            runFor(3000);
            const Recording sound = server.recorded();
            EXPECT_GT(sound.lastSound() - sound.firstSound(), 2000) << name;
            seam = std::max(sound.longestGap(), exact ? sound.longestShift(kTone) : 0);
            music.command(u"stop");
            EXPECT_TRUE(server.waitForSilence());
            music.command(u"play");
            EXPECT_TRUE(server.waitForTone(kTone)) << name;
            music.command(u"close");
            EXPECT_TRUE(server.waitForSilence());
        }
        EXPECT_LT(seam, 1.0) << name;
        RecordProperty(std::string("seam_us_") + (name + 6), static_cast<int>(seam * 1000));
    }
}

TEST_F(SoundTest, SilentIsSilentWhileTimePasses) {
    music.setSilent(MediaSound::Silent);
    playLongMusic();
    runFor(800);
    EXPECT_EQ(server.recorded().peak(), 0);
    EXPECT_GT(music.position(), 200);
    music.setSilent(MediaSound::On);
    EXPECT_TRUE(server.waitForTone(500));
    music.setSilent(MediaSound::Silent);
    EXPECT_TRUE(server.waitForSilence());
}

TEST_F(SoundTest, StepsBackByAsManyDecibelsAsAreAskedFor) {
    playLongMusic();
    ASSERT_TRUE(server.waitForTone(500));
    const int usual = server.recorded().peak();
    const auto decibels = [&] {
        runFor(500);
        return 20 * std::log10(double(server.listen(500).peak()) / usual);
    };
    music.setVolume(-10);
    EXPECT_NEAR(decibels(), -10, 0.5);
    music.command(u"close");
    MpvControl quiet;  // told before it has a player
    quiet.setVolume(-20);
    quiet.setFileName(music.fileName());
    quiet.command(u"open");
    quiet.command(u"play");
    EXPECT_NEAR(decibels(), -20, 0.5);
}

TEST_F(SoundTest, TimePassesWhenTheDeviceIsPulledOut) {
    playLongMusic();
    ASSERT_TRUE(waitFor([this] { return music.position() > 300; }));
    server.kill();
    runFor(500);
    const qint64 then = music.position();
    runFor(1000);
    EXPECT_GT(music.position(), then + 500);
    EXPECT_EQ(music.mode(), MediaMode::Playing);
    music.command(u"close");
    EXPECT_EQ(music.mode(), MediaMode::NotOpen);
}

TEST_F(SoundTest, EffectsCutEachOtherOff) {
    MixerEffectPlayer effects;
    effects.prepare();
    effects.play(sineWav(1000, 10000));
    EXPECT_TRUE(server.waitForTone(1000));
    effects.play(sineWav(2500, 10000));
    EXPECT_TRUE(server.waitForTone(2500)) << "and no longer the first";
    effects.play({});  // changes nothing
    runFor(300);
    EXPECT_TRUE(server.waitForTone(2500));
    effects.stop();
    EXPECT_TRUE(server.waitForSilence());

    ToneBeeper beeper(effects);
    server.rewind();
    beeper.beep();
    EXPECT_TRUE(waitFor([this] { return server.recorded().peak() > 3000; }));
    runFor(600);
    const Recording beep = server.recorded();
    EXPECT_LT(beep.lastSound() - beep.firstSound(), 250) << "a beep is short";
}

TEST_F(SoundTest, CompressedEffectsSoundAndTellTheirLength) {
    const QString whole = media.write(u"cely.wav"_s, sineWav(1000, 1600));
    MixerEffectPlayer effects;
    for (const char* name : {"cely.wav", "efekt.ogg", "efekt.opus", "efekt.flac"}) {
        const QString file = media.path(QLatin1String(name));
        ASSERT_TRUE(file == whole || media.compress(whole, file));
        const QByteArray image = test::bytesOf(file);
        EXPECT_NEAR(double(soundLength(image)), 1600, 10) << name;
        EXPECT_EQ(soundLength(image.left(12)), 0) << name;
        effects.play(image);
        EXPECT_TRUE(server.waitForTone(1000)) << name;
        EXPECT_TRUE(server.waitForSilence()) << name;
    }
}

TEST_F(SoundTest, BrokenEffectsPlayNothing) {
    MixerEffectPlayer effects;
    const QByteArray good = sineWav(1000, 600);
    QByteArray endless = good;
    endless.replace(40, 4, "\xFF\xFF\xFF\x7F");
    QByteArray noChannels = good;
    noChannels.replace(22, 2, QByteArray(2, '\0'));
    for (const QByteArray& broken :
         {QByteArray("RIFF"), good.left(30), good.left(44), QByteArray(5000, 'x'), noChannels})
        effects.play(broken);
    EXPECT_EQ(server.listen(500).peak(), 0);
    for (int at = 4; at < 44; ++at) {  // whatever is in its header: no crash, no hang
        QByteArray odd = good;
        odd[at] = static_cast<char>(0xFF);
        effects.play(odd);
        runFor(5);
    }
    effects.play(endless);
    effects.stop();
    runFor(200);
    effects.play(good);
    EXPECT_TRUE(server.waitForTone(1000));
}

TEST_F(SoundTest, EffectsFindADeviceThatComesBack) {
    MixerEffectPlayer effects;
    effects.play(sineWav(1000, 600));
    EXPECT_TRUE(server.waitForTone(1000));
    server.kill();
    effects.play(sineWav(1000, 100));
    runFor(300);
    ASSERT_TRUE(server.start());
    server.rewind();
    effects.play(sineWav(1000, 600));
    EXPECT_TRUE(server.waitForTone(1000));
}

TEST_F(SoundTest, EffectsOutliveAServerThatHasNothingToPlayOn) {
    if (effectDrivers()) GTEST_SKIP() << "a build without libpulse";
    MixerEffectPlayer effects;
    effects.play(sineWav(1000, 600));
    EXPECT_TRUE(server.waitForTone(1000));
    ASSERT_TRUE(server.pullDevice());
    MixerEffectPlayer others;
    for (MixerEffectPlayer* player : {&effects, &others}) player->play(sineWav(1000, 100));
    runFor(500);
    ASSERT_TRUE(server.plugDevice());
    for (MixerEffectPlayer* player : {&effects, &others}) {
        player->play(sineWav(1000, 600));
        EXPECT_TRUE(server.waitForTone(1000));
        EXPECT_TRUE(server.waitForSilence());
    }
}

TEST_F(SoundTest, AServerThatDoesNotAnswerIsNotPlayedOn) {
    if (effectDrivers()) GTEST_SKIP() << "a build without libpulse";
    EXPECT_TRUE(pulseServerHasDevice() || pulseServerHasDevice()) << "on a busy machine it may be late once";
    server.freeze();
    EXPECT_FALSE(pulseServerHasDevice());
    server.wake();
    EXPECT_TRUE(waitFor([] { return pulseServerHasDevice(); }));
    server.kill();
    EXPECT_TRUE(pulseServerHasDevice()) << "without a server sound goes other ways";
}

TEST(SoundLengthTest, IsWhatTheHeaderSays) {
    const auto number = [](auto value, auto toBytes) {
        QByteArray bytes(sizeof value, '\0');
        toBytes(value, bytes.data());
        return bytes;
    };
    const auto little = [&](auto value) {
        return number(value, [](auto v, char* to) { qToLittleEndian(v, to); });
    };
    const auto wav = [&](quint32 bytesPerSecond, int size) {
        return QByteArray(28, 'x') + little(bytesPerSecond) + QByteArray(size + 12, 'x');
    };
    const auto ogg = [&](const QByteArray& codec, quint64 samples) {
        return "OggS" + QByteArray(2, 'x') + little(quint64{7}) + codec + "OggSxx" + little(samples);
    };
    const QByteArray vorbis = "\x01vorbis" + little(quint32{0}) + 'x' + little(quint32{8000});
    const QByteArray flac = "fLaC" + QByteArray(14, 'x') +
                            number(quint64{44100} << 44 | quint64{0xF} << 36 | 88200,
                                   [](auto v, char* to) { qToBigEndian(v, to); });
    constexpr int kDay = 24 * 3600;
    const std::pair<QByteArray, int> lengths[] = {{wav(1000, 0), 0},
                                                  {wav(1000, 1), 1},
                                                  {wav(0, 5), 0},
                                                  {wav(1, kDay), kDay * 1000},
                                                  {wav(1, kDay + 1), 0},  // nobody has such a file
                                                  {ogg(vorbis, 16000), 2000},
                                                  {ogg("OpusHead", 48000), 1000},
                                                  {ogg("speex", 48000), 0},
                                                  {ogg(vorbis, 16000).chopped(1), 0},
                                                  {flac, 2000},
                                                  {flac.chopped(1), 0}};
    for (const auto& [file, length] : lengths)
        EXPECT_EQ(soundLength(file), length) << file.left(40).constData();
}

TEST(BeeperTest, AShortToneDiesAway) {
    FakeEffects effects;
    ToneBeeper beeper(effects);
    beeper.beep();
    beeper.beep();
    ASSERT_EQ(effects.played.size(), 2);
    const QByteArray image = effects.played.last();
    EXPECT_EQ(image, effects.played.first());
    // One channel of 22,050 samples of 16 bits a second, an eighth of a second long.
    EXPECT_EQ(image.first(44), QByteArray::fromHex("52494646ac15000057415645666d7420100000000100010022560000"
                                                   "44ac0000020010006461746188150000"));
    std::vector<qint16> samples(size_t(image.size() - 44) / 2);
    qFromLittleEndian<qint16>(image.constData() + 44, qsizetype(samples.size()), samples.data());
    int waves = 0;
    for (size_t i = 1; i < samples.size(); ++i) waves += samples[i - 1] < 0 && samples[i] >= 0;
    EXPECT_EQ(waves, 92) << "740 a second";
    const auto loudest = [&](size_t from, size_t count) {
        return *std::max_element(samples.begin() + from, samples.begin() + from + count);
    };
    EXPECT_NEAR(loudest(0, 30), 8950, 60);
    EXPECT_NEAR(loudest(samples.size() / 2, 30), 4470, 60);
    EXPECT_LT(loudest(samples.size() - 30, 30), 120);
}

TEST(SoundlessTest, EffectsWithoutADeviceAreSilentAndQuick) {
    QElapsedTimer time;
    time.start();
    {
        MixerEffectPlayer effects;
        effects.prepare();
        for (int i = 0; i < 100; ++i) effects.play(sineWav(1000, 100));
        EXPECT_LT(time.elapsed(), 1000);
        effects.stop();
    }
    EXPECT_LT(time.elapsed(), 5000);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
