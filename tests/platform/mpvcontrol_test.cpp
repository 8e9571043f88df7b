#include "platform/mpvcontrol.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <clocale>

#include "support/files.h"
#include "testmedia.h"

namespace sarne {
namespace {

/// A player on a machine without sound, and what it has told.
class MpvControlTest : public testing::Test {
  protected:
    void SetUp() override {
        QObject::connect(&player, &MultimediaControl::done, [this](int code) { codes.append(code); });
        QObject::connect(&player, &MultimediaControl::frameReady, [this] {
            ++frames;
            player.renderFrame({400, 300});
        });
        player.setNotify(MediaNotify::On);
    }
    void open(const QString& file) {
        player.setFileName(file);
        player.command(u"open");
    }
    bool waitForCode(MediaDone code) {
        return waitFor([&] { return codes.contains(static_cast<int>(code)); });
    }

    TestMedia media;
    MpvControl player;
    QList<int> codes;
    int frames = 0;
};

TEST_F(MpvControlTest, PlaysToItsEndAndAgain) {
    open(media.write(u"a.wav"_s, sineWav(440, 700)));
    ASSERT_EQ(player.error(), 0) << qPrintable(player.errorMessage());
    EXPECT_EQ(player.mode(), MediaMode::Stopped);
    EXPECT_NEAR(player.length(), 700, 20);
    EXPECT_EQ(player.position(), 0);
    EXPECT_TRUE(player.videoSize().isEmpty());
    EXPECT_TRUE(player.renderFrame({100, 100}).isNull());

    for (int round = 0; round < 2; ++round) {
        codes.clear();
        player.command(u"prev");
        player.command(u"Play");
        EXPECT_EQ(player.mode(), MediaMode::Playing);
        EXPECT_TRUE(waitFor([&] { return player.position() > 200; }));
        ASSERT_TRUE(waitForCode(MediaDone::Successful)) << "round " << round;
        EXPECT_EQ(codes, QList<int>{1});
        EXPECT_EQ(player.mode(), MediaMode::Stopped);
        EXPECT_EQ(player.position(), player.length());
    }
    codes.clear();
    player.command(u"play");  // at the end already
    EXPECT_TRUE(codes.isEmpty());
    EXPECT_TRUE(waitForCode(MediaDone::Successful));
}

TEST_F(MpvControlTest, PausesStopsAndMoves) {
    open(media.write(u"a.wav"_s, sineWav(440, 20000)));
    player.command(u"pause");
    EXPECT_EQ(player.mode(), MediaMode::Stopped);

    player.command(u"play");
    EXPECT_TRUE(waitFor([&] { return player.position() > 100; }));
    player.command(u"pause");
    EXPECT_EQ(player.mode(), MediaMode::Paused);
    runFor(100);
    const qint64 paused = player.position();
    runFor(300);
    EXPECT_EQ(player.position(), paused);
    player.command(u"pause");
    EXPECT_EQ(player.mode(), MediaMode::Playing);
    EXPECT_TRUE(waitFor([&] { return player.position() > paused + 100; }));
    EXPECT_TRUE(codes.isEmpty()) << "pausing is no end";

    player.command(u"stop");
    EXPECT_EQ(player.mode(), MediaMode::Stopped);
    EXPECT_EQ(codes, QList<int>{4});
    runFor(100);
    const qint64 stopped = player.position();
    player.command(u"play");
    EXPECT_TRUE(waitFor([&] { return player.position() > stopped + 100; }))
        << "goes on from where it stopped";
    EXPECT_LT(player.position(), stopped + 3000);

    player.setPosition(15000);
    EXPECT_EQ(player.position(), 15000);
    EXPECT_TRUE(waitFor([&] { return player.position() > 15100; }));
    EXPECT_EQ(player.mode(), MediaMode::Playing);

    codes.clear();
    player.command(u"next");
    EXPECT_EQ(player.mode(), MediaMode::Stopped);
    EXPECT_EQ(player.position(), player.length());
    EXPECT_EQ(codes, QList<int>{4});
    player.command(u"play");
    player.command(u"prev");
    runFor(200);
    EXPECT_EQ(player.position(), 0) << "and stays there";
    codes.clear();
    player.command(u"play");
    player.command(u"play");
    EXPECT_EQ(codes, QList<int>{2});
    player.setPosition(99999);
    player.setPosition(-5);
    EXPECT_EQ(player.position(), 0);
    runFor(200);
    EXPECT_EQ(codes, QList<int>{2}) << "who has moved away from the end does not end";
    player.setPosition(99999);
    EXPECT_TRUE(waitForCode(MediaDone::Successful));

    player.setNotify(MediaNotify::Off);
    codes.clear();
    player.command(u"prev");
    player.command(u"play");
    player.setPosition(5000);
    player.command(u"close");
    runFor(100);
    EXPECT_EQ(player.mode(), MediaMode::NotOpen);
    EXPECT_EQ(player.error(), 0);
    EXPECT_EQ(player.length(), 0);
    EXPECT_TRUE(codes.isEmpty());
    player.command(u"open");
    runFor(200);
    EXPECT_EQ(player.position(), 0) << "from the start, and not by itself";
}

TEST_F(MpvControlTest, PlaysAsFastAsItIsToldTo) {
    player.setSpeed(3);
    open(media.write(u"a.wav"_s, sineWav(440, 20000)));
    const auto playedIn = [&](int milliseconds) {
        QElapsedTimer time;
        time.start();
        const qint64 from = player.position();
        runFor(milliseconds);
        return double(player.position() - from) / double(time.elapsed());
    };
    player.command(u"play");
    EXPECT_TRUE(waitFor([&] { return player.position() > 300; }));
    EXPECT_NEAR(playedIn(1000), 3, .5);
    player.setSpeed(.5);
    runFor(300);
    EXPECT_NEAR(playedIn(1000), .5, .2);
}

TEST_F(MpvControlTest, LoopsWithoutEnding) {
    player.setLoop(MediaLoop::On);
    open(media.write(u"a.wav"_s, sineWav(440, 400)));
    player.command(u"play");
    runFor(1500);
    EXPECT_EQ(player.mode(), MediaMode::Playing);
    EXPECT_TRUE(codes.isEmpty());
    player.setLoop(MediaLoop::Off);
    player.command(u"open");
    runFor(200);
    EXPECT_EQ(player.position(), 0) << "what played has left nothing playing";
    player.command(u"play");
    EXPECT_TRUE(waitForCode(MediaDone::Successful)) << "the next file does not loop";
}

TEST_F(MpvControlTest, ALoopWhoseFileIsTakenAwayEnds) {
    const QString file = media.write(u"a.wav"_s, sineWav(440, 6000));
    player.setLoop(MediaLoop::On);
    open(file);
    player.command(u"play");
    ASSERT_TRUE(QFile::resize(file, 44));
    EXPECT_TRUE(waitFor([&] { return !codes.isEmpty(); }, 20000));
    EXPECT_EQ(codes, QList<int>{8});
    EXPECT_EQ(player.mode(), MediaMode::NotOpen);
    EXPECT_EQ(player.lastError(), MediaError::InvalidFile);
}

TEST_F(MpvControlTest, OpensWithoutWaiting) {
    player.setWait(MediaWait::DontWait);
    open(media.write(u"a.wav"_s, sineWav(440, 300)));
    EXPECT_EQ(player.error(), 0);
    player.command(u"play");
    EXPECT_TRUE(waitForCode(MediaDone::Successful));

    open(media.path(u"a.wav"_s));
    player.command(u"play");
    player.command(u"open");
    EXPECT_TRUE(waitFor([&] { return player.mode() == MediaMode::Stopped; })) << "the second is not to play";
    runFor(100);
    EXPECT_EQ(player.mode(), MediaMode::Stopped);
    player.release();
    player.hold();
    player.setWait(MediaWait::Wait);
    open(media.path(u"a.wav"_s));
    EXPECT_EQ(player.mode(), MediaMode::Stopped) << "who waits does not hold";
    player.setWait(MediaWait::DontWait);

    codes.clear();
    open(media.path(u"a.wav"_s));
    player.command(u"play");
    EXPECT_FALSE(waitFor([&] { return player.mode() != MediaMode::NotOpen; }, 600)) << "it is to wait";
    player.release();
    EXPECT_TRUE(waitForCode(MediaDone::Successful));

    codes.clear();
    open(media.write(u"b.wav"_s, "no sound at all"));
    player.command(u"play");
    EXPECT_TRUE(waitForCode(MediaDone::Failed));
    EXPECT_EQ(player.lastError(), MediaError::InvalidFile);
    EXPECT_EQ(player.mode(), MediaMode::NotOpen);

    open(media.path(u"a.wav"_s));
    player.command(u"play");
    player.command(u"stop");
    EXPECT_TRUE(waitFor([&] { return player.mode() == MediaMode::Stopped; }));
    open(media.path(u"a.wav"_s));  // and leaves while it opens
}

TEST_F(MpvControlTest, CommandsWithoutAFileAreErrors) {
    for (const char16_t* name : {u"play", u"stop", u"pause", u"prev", u"next"}) {
        player.command(name);
        EXPECT_EQ(player.error(), 276) << qPrintable(QString::fromUtf16(name));
    }
    player.command(u"eject");
    EXPECT_EQ(player.lastError(), MediaError::UnknownCommand);
    player.command(u"close");
    EXPECT_EQ(player.error(), 0);
    player.command(u"open");
    EXPECT_EQ(player.lastError(), MediaError::FileNameMissing);
    open(media.path(u"chybi.wav"_s));
    EXPECT_EQ(player.lastError(), MediaError::FileNotFound);
    EXPECT_EQ(player.errorMessage(), mediaErrorText(MediaError::FileNotFound));
    player.setPosition(5);
    EXPECT_EQ(player.position(), 0);
}

TEST_F(MpvControlTest, ShowsFilmsOfTheDiscsCodecs) {
    const std::pair<const char*, const char*> codecs[] = {
        {"avi", "-c:v cinepak -pix_fmt rgb24 -c:a pcm_s16le"},
        {"avi", "-c:v msvideo1 -pix_fmt rgb555le -c:a pcm_s16le"},
        {"avi", "-c:v mjpeg -pix_fmt yuvj420p -c:a pcm_s16le"},
        {"mkv", "-c:v mpeg4 -c:a libopus -ar 48000"},
        {"webm", "-c:v libvpx -c:a libopus -ar 48000"},
        {"mp4", "-c:v libx264 -preset ultrafast -pix_fmt yuv420p -c:a aac"}};
    for (const auto& [ending, codec] : codecs) {
        const QString name = u"a.%1"_s.arg(QLatin1String(ending));
        const QString file = media.film(name, 1000, QLatin1String(codec), u"160x120"_s);
        ASSERT_FALSE(file.isEmpty()) << codec;
        frames = 0;
        codes.clear();
        open(file);
        ASSERT_EQ(player.error(), 0) << codec;
        EXPECT_EQ(player.videoSize(), QSize(160, 120)) << codec;
        EXPECT_NEAR(player.length(), 1000, 100) << codec;
        EXPECT_LT(player.position(), 50) << codec;
        player.command(u"play");
        EXPECT_TRUE(waitForCode(MediaDone::Successful)) << codec;
        EXPECT_GT(frames, 8) << codec;
        EXPECT_FALSE(player.renderFrame({640, 480}).isNull()) << "the last picture stays";
    }
}

TEST_F(MpvControlTest, ShowsThePictureOfThePlaceThatItMovesTo) {
    open(media.film(
        u"a.avi"_s, 2000,
        u"-vf drawbox=x=0:y=0:w=iw:h=ih:color=red:t=fill:enable='gte(t,1)',drawbox=x=0:y=0:w=iw:h=ih:color=blue:t=fill:enable='lt(t,1)' -c:v mjpeg -c:a pcm_s16le"_s));
    ASSERT_EQ(player.error(), 0);
    const auto shows = [&](bool red) {
        return waitFor([&] {
            const QColor colour = player.renderFrame({40, 30}).pixelColor(20, 15);
            return (red ? colour.red() : colour.blue()) > 200;
        });
    };
    EXPECT_TRUE(shows(false));
    player.setPosition(1500);
    EXPECT_EQ(player.position(), 1500);
    EXPECT_TRUE(shows(true));
    EXPECT_NEAR(double(player.position()), 1500, 50);
    player.command(u"prev");
    EXPECT_TRUE(shows(false));
    player.command(u"next");
    EXPECT_TRUE(shows(true));
    EXPECT_EQ(player.position(), player.length());
}

TEST_F(MpvControlTest, KeepsAFilmsProportions) {
    open(media.film(u"a.avi"_s, 400, u"-vf lutrgb=r=255:g=0:b=0 -c:v mjpeg"_s));
    ASSERT_EQ(player.error(), 0);
    ASSERT_TRUE(waitFor([&] { return frames > 0; }));
    const QImage wide = player.renderFrame({800, 300});
    ASSERT_EQ(wide.size(), QSize(800, 300));
    EXPECT_EQ(wide.pixelColor(190, 150), QColor(Qt::black));
    EXPECT_GT(wide.pixelColor(210, 150).red(), 200);
    EXPECT_GT(wide.pixelColor(590, 5).red(), 200);
    EXPECT_EQ(wide.pixelColor(610, 150), QColor(Qt::black));
    const QImage kept = wide;
    EXPECT_GT(player.renderFrame({320, 240}).pixelColor(2, 2).red(), 200);
    EXPECT_GT(kept.pixelColor(400, 150).red(), 200) << "a picture handed out is not drawn over";
    EXPECT_TRUE(player.renderFrame({}).isNull());
    player.command(u"close");
    EXPECT_TRUE(player.renderFrame({320, 240}).isNull());
}

TEST_F(MpvControlTest, BrokenFilesAreErrorsAndNothingWorse) {
    const auto films = brokenFilms(media);
    ASSERT_FALSE(films.empty());
    for (const BrokenFilm& broken : films) {
        open(media.write(u"b.avi"_s, broken.content));
        EXPECT_EQ(player.lastError(), MediaError::InvalidFile) << broken.what;
        EXPECT_EQ(player.mode(), MediaMode::NotOpen) << broken.what;
        EXPECT_FALSE(player.errorMessage().isEmpty()) << broken.what;
    }
    open(media.path({}));
    EXPECT_EQ(player.lastError(), MediaError::InvalidFile) << "a folder";
    EXPECT_TRUE(codes.isEmpty()) << "who waits is told by the error";

    const QByteArray whole = test::bytesOf(media.film(u"celý.avi"_s, 1000, u"-c:v mjpeg -c:a pcm_s16le"_s));
    open(media.write(u"b.avi"_s, whole.first(whole.size() / 2)));  // what is there plays
    ASSERT_EQ(player.error(), 0);
    player.command(u"play");
    EXPECT_TRUE(waitFor([&] { return codes.contains(1) || codes.contains(8); }));

    open(media.path(u"celý.avi"_s));
    EXPECT_EQ(player.error(), 0) << "the player still works";
}

TEST_F(MpvControlTest, AnotherNumberFormatOfTheUserDoesNotMatter) {
    ASSERT_TRUE(std::setlocale(LC_NUMERIC, "cs_CZ.UTF-8") || std::setlocale(LC_NUMERIC, "C.UTF-8"));
    open(media.write(u"a.wav"_s, sineWav(440, 300)));
    EXPECT_EQ(player.error(), 0);
}

TEST(MpvControlUseTest, OpeningAHundredTimesKeepsNothing) {
    const TestMedia media;
    const QString film = media.film(u"a.avi"_s, 500, u"-c:v mjpeg -c:a pcm_s16le"_s);
    const auto round = [&](MpvControl& player) {
        player.setFileName(film);
        player.command(u"open");
        ASSERT_EQ(player.error(), 0);
        player.command(u"play");
        ASSERT_FALSE(player.renderFrame({320, 240}).isNull());
        runFor(10);
        player.command(u"close");
    };
    const auto rounds = [&](int count) {  // as a screen that lives on, and as one that is made anew each time
        MpvControl player;
        for (int i = 0; i < count; ++i) round(player);
        for (int i = 0; i < count; ++i) {
            MpvControl fresh;
            round(fresh);
        }
        runFor(50);
    };
    rounds(15);
    const ProcessUse before = ProcessUse::now();
    rounds(50);
    const ProcessUse after = ProcessUse::now();
    EXPECT_LE(after.files, before.files);
    EXPECT_LE(after.threads, before.threads);
    EXPECT_LT(after.kilobytes, before.kilobytes + 500);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
