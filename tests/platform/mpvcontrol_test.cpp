#include "platform/mpvcontrol.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <clocale>
#include <utility>

#include "support/files.h"
#include "support/kept.h"
#include "testmedia.h"

namespace sarne {
namespace {

/// A player on a machine without sound, whose user writes numbers with commas, and what it has told.
class MpvControlTest : public testing::Test {
  protected:
    void SetUp() override {
        std::setlocale(LC_NUMERIC, "cs_CZ.UTF-8");
        codes.clear();
        player = std::make_unique<MpvControl>();
        QObject::connect(player.get(), &MultimediaControl::done, [this](int code) { codes.append(code); });
        QObject::connect(player.get(), &MultimediaControl::frameReady, [this] {
            ++frames;
            player->renderFrame({400, 300});
        });
        player->setNotify(MediaNotify::On);
    }
    void open(const QString& file) {
        player->setFileName(file);
        player->command(u"open");
    }
    bool waitForCode(MediaDone code) {
        return waitFor([&] { return codes.contains(static_cast<int>(code)); });
    }
    /// Does what \a way says, and what is asked for on it: commands, and
    ///   open:700            a sound of so many milliseconds, else the file of that name
    ///   at:5, loop:1, wait:0, notify:0, hold, release  as the player's functions
    ///   cut                 takes the sound out of the file
    ///   past, still, ends, becomes:stopped, never:playing, run:100
    ///                       waits until it has played on or ended or its mode is that, or for milliseconds
    ///   mode, codes, error, length, picture
    ///   place               exact where it was moved to, else in which five seconds it is
    QString told(const QString& way) {
        SetUp();
        QStringList all;
        for (const QString& one : way.split(u' ')) {
            const QString word = one.section(u':', 0, 0), what = one.section(u':', 1);
            const int number = what.toInt();
            const qint64 place = player->position();
            const auto mode = [&] {
                const int at = int(player->mode()) - int(MediaMode::NotOpen);
                return QStringList{u"none"_s, u"stopped"_s, u"playing"_s, {}, {}, u"paused"_s}.value(at);
            };
            const auto isMode = [&] { return mode() == what; };
            bool isDone = true;
            if (word == u"open" && number > 0) media.write(u"a.wav"_s, sineWav(440, number));
            if (word == u"open" && !what.isEmpty())
                player->setFileName(media.path(number ? u"a.wav"_s : what));
            if (word == u"cut") isDone = QFile::resize(player->fileName(), 44);
            if (word == u"loop") player->setLoop(MediaLoop(number));
            if (word == u"wait") player->setWait(MediaWait(1 - number));
            if (word == u"notify") player->setNotify(MediaNotify(number));
            if (word == u"hold") player->hold();
            if (word == u"release") player->release();
            if (word == u"at") player->setPosition(number);
            if (word == u"run" || word == u"still") runFor(word == u"run" ? number : 300);
            if (word == u"still") isDone = player->position() == place;
            if (word == u"past") isDone = waitFor([&] { return player->position() > place + 100; });
            if (word == u"ends") isDone = waitFor([&] { return !codes.isEmpty(); }, 20000);
            if (word == u"becomes") isDone = waitFor(isMode);
            if (word == u"never") isDone = !waitFor(isMode, 600);
            if (QStringList{u"open"_s, u"close"_s, u"play"_s, u"Play"_s, u"pause"_s, u"stop"_s, u"prev"_s,
                            u"next"_s, u"eject"_s}
                    .contains(word))
                player->command(word);
            if (!isDone) all << word + u" in vain"_s;
            if (word == u"mode") all << mode();
            if (word == u"length") all << QString::number(qRound(double(player->length()) / 100) * 100);
            if (word == u"picture") all << u"%1"_s.arg(int(!player->renderFrame({9, 9}).isNull()));
            if (word == u"error") all << u"%1 %2"_s.arg(player->error()).arg(player->errorMessage());
            if (word == u"place")
                all << (place > 0 && place == player->length() ? u"end"_s
                        : place % 1000 == 0                    ? QString::number(place)
                                                               : u"%1+"_s.arg(place / 5000 * 5000));
            if (word != u"codes") continue;
            all << u"told"_s;
            for (const int code : std::exchange(codes, {})) all.last() += u' ' + QString::number(code);
        }
        return all.join(u", "_s);
    }

    TestMedia media;
    std::unique_ptr<MpvControl> player;
    QList<int> codes;
    int frames = 0;
};

TEST_F(MpvControlTest, PlaysPausesMovesAndEndsAsItIsTold) {
    media.write(u"bad"_s, "no sound at all");
    test::expectCases(u"prehravac"_s, [this](const QString& way) { return told(way); });
}

TEST_F(MpvControlTest, PlaysAsFastAsItIsToldTo) {
    player->setSpeed(3);
    open(media.write(u"a.wav"_s, sineWav(440, 20000)));
    const auto playedIn = [&](int milliseconds) {
        QElapsedTimer time;
        time.start();
        const qint64 from = player->position();
        runFor(milliseconds);
        return double(player->position() - from) / double(time.elapsed());
    };
    player->command(u"play");
    EXPECT_TRUE(waitFor([&] { return player->position() > 300; }));
    EXPECT_NEAR(playedIn(1000), 3, .5);
    player->setSpeed(.5);
    runFor(300);
    EXPECT_NEAR(playedIn(1000), .5, .2);
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
        ASSERT_EQ(player->error(), 0) << codec;
        EXPECT_EQ(player->videoSize(), QSize(160, 120)) << codec;
        EXPECT_NEAR(player->length(), 1000, 100) << codec;
        EXPECT_LT(player->position(), 50) << codec;
        player->command(u"play");
        EXPECT_TRUE(waitForCode(MediaDone::Successful)) << codec;
        EXPECT_GT(frames, 8) << codec;
        EXPECT_FALSE(player->renderFrame({640, 480}).isNull()) << "the last picture stays";
    }
}

TEST_F(MpvControlTest, ShowsThePictureOfThePlaceThatItMovesTo) {
    open(media.film(
        u"a.avi"_s, 2000,
        u"-vf drawbox=x=0:y=0:w=iw:h=ih:color=red:t=fill:enable='gte(t,1)',drawbox=x=0:y=0:w=iw:h=ih:color=blue:t=fill:enable='lt(t,1)' -c:v mjpeg -c:a pcm_s16le"_s));
    ASSERT_EQ(player->error(), 0);
    const auto shows = [&](bool red) {
        return waitFor([&] {
            const QColor colour = player->renderFrame({40, 30}).pixelColor(20, 15);
            return (red ? colour.red() : colour.blue()) > 200;
        });
    };
    EXPECT_TRUE(shows(false));
    player->setPosition(1500);
    EXPECT_EQ(player->position(), 1500);
    EXPECT_TRUE(shows(true));
    EXPECT_NEAR(double(player->position()), 1500, 50);
    player->command(u"prev");
    EXPECT_TRUE(shows(false));
    player->command(u"next");
    EXPECT_TRUE(shows(true));
    EXPECT_EQ(player->position(), player->length());
}

TEST_F(MpvControlTest, KeepsAFilmsProportions) {
    open(media.film(u"a.avi"_s, 400, u"-vf lutrgb=r=255:g=0:b=0 -c:v mjpeg"_s));
    ASSERT_EQ(player->error(), 0);
    ASSERT_TRUE(waitFor([&] { return frames > 0; }));
    const QImage wide = player->renderFrame({800, 300});
    ASSERT_EQ(wide.size(), QSize(800, 300));
    EXPECT_EQ(wide.pixelColor(190, 150), QColor(Qt::black));
    EXPECT_GT(wide.pixelColor(210, 150).red(), 200);
    EXPECT_GT(wide.pixelColor(590, 5).red(), 200);
    EXPECT_EQ(wide.pixelColor(610, 150), QColor(Qt::black));
    const QImage kept = wide;
    EXPECT_GT(player->renderFrame({320, 240}).pixelColor(2, 2).red(), 200);
    EXPECT_GT(kept.pixelColor(400, 150).red(), 200) << "a picture handed out is not drawn over";
    EXPECT_TRUE(player->renderFrame({}).isNull());
    player->command(u"close");
    EXPECT_TRUE(player->renderFrame({320, 240}).isNull());
}

TEST_F(MpvControlTest, BrokenFilesAreErrorsAndNothingWorse) {
    const auto films = brokenFilms(media);
    ASSERT_FALSE(films.empty());
    for (const BrokenFilm& broken : films) {
        open(media.write(u"b.avi"_s, broken.content));
        EXPECT_EQ(player->lastError(), MediaError::InvalidFile) << broken.what;
        EXPECT_EQ(player->mode(), MediaMode::NotOpen) << broken.what;
        EXPECT_FALSE(player->errorMessage().isEmpty()) << broken.what;
    }
    open(media.path({}));
    EXPECT_EQ(player->lastError(), MediaError::InvalidFile) << "a folder";
    EXPECT_TRUE(codes.isEmpty()) << "who waits is told by the error";

    const QByteArray whole = test::bytesOf(media.film(u"celý.avi"_s, 1000, u"-c:v mjpeg -c:a pcm_s16le"_s));
    open(media.write(u"b.avi"_s, whole.first(whole.size() / 2)));  // what is there plays
    ASSERT_EQ(player->error(), 0);
    player->command(u"play");
    EXPECT_TRUE(waitFor([&] { return codes.contains(1) || codes.contains(8); }));

    open(media.path(u"celý.avi"_s));
    EXPECT_EQ(player->error(), 0) << "the player still works";
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
