#include <QRegularExpression>
#include <algorithm>

#include "media/frmvideo.h"
#include "media/videoarea.h"
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
    EXPECT_EQ(messages, QStringList{u"Chcete ukončit program?"_s});
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
    ASSERT_FALSE(media.film(u"VIDEO/2.AVI"_s, 60000, u"-c:v mjpeg"_s, u"64x48"_s, 5).isEmpty());
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
    EXPECT_EQ(status(), u"Přehrávám"_s);
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
    EXPECT_TRUE(waitFor([&] { return status() == u"Přehrávání skončeno"_s; }, 15000));
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
    EXPECT_EQ(messages, QStringList{u"Chcete ukončit program?"_s}) << "nobody was told";
}

const QString kEnded = u"Přehrávání skončeno"_s;

using ProgramVideoTest = WholeProgram;

TEST_F(ProgramVideoTest, WithoutASoundDeviceEverythingElseIsTheSame) {
    start("11010");
    EXPECT_TRUE(waitFor([&] { return platform->music.position() > 300; })) << "time passes";
    pointAt(2);
    set({"opthudba(1)"});
    EXPECT_TRUE(waitFor([&] { return platform->music.mode() == MediaMode::Playing; }));
    showFilm(1);
    EXPECT_TRUE(waitFor([&] { return status() == kEnded; }, 15000));
    press(Qt::Key_Escape);
    end();
    EXPECT_EQ(messages.size(), 1) << messages.join(u'|').toStdString();
}

TEST_F(ProgramVideoTest, AFilmOfAnHourIsSoughtAtOnce) {
    start("10010");
    ASSERT_FALSE(media
                     .film(u"VIDEO/3.AVI"_s, 3600000,
                           u"-vf drawbox=x=0:y=0:w=iw:h=ih:color=red:t=fill:enable='gte(t,2700)' "
                           "-c:v mjpeg -c:a pcm_u8 -ar 8000"_s,
                           u"64x48"_s, 2)
                     .isEmpty());
    showFilm(3);
    auto* area = top<frmVideo>()->findChild<VideoArea*>();
    const auto red = [&] {
        const QColor colour = area->grab().toImage().pixelColor(area->rect().center());
        return colour.red() > 200 && colour.green() < 60;
    };
    const auto* time = top<frmVideo>()->findChild<Label*>(u"lblCas"_s);
    EXPECT_TRUE(waitFor([&] { return time->text().endsWith(u" / 60:00"_s); }));
    EXPECT_FALSE(red());
    auto* bar = top<frmVideo>()->findChild<SeekBar*>();
    QElapsedTimer clock;
    clock.start();
    int fiftieth = 0;
    while (bar->positionAt(fiftieth) < 50 * 60000) ++fiftieth;
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->toPixels({fiftieth, bar->twips().height() / 2}));
    EXPECT_TRUE(waitFor(red));
    RecordProperty("seek_ms", static_cast<int>(clock.elapsed()));
    // A pixel of the bar is some seconds.
    const QRegularExpression there(u"^(49:5|50:0). / 60:00$"_s);
    EXPECT_TRUE(waitFor([&] { return there.match(time->text()).hasMatch(); })) << time->text().toStdString();
    EXPECT_EQ(status(), u"Přehrávám"_s);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
