#include "media/frmvideo.h"

#include <QFile>
#include <QRegularExpression>

#include "media/videoarea.h"
#include "wholeprogram.h"

namespace sarne {
namespace {

const QString kEnded = QStringLiteral("Přehrávání skončeno");

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

TEST_F(ProgramVideoTest, FilmsThatCannotBeShownAreReportedAndLeft) {
    start("11010");
    Form* const below = program->FormStack.top();
    const auto films = brokenFilms(media);
    ASSERT_FALSE(films.empty());
    for (const BrokenFilm& broken : films) {
        media.write(QStringLiteral("VIDEO/2.AVI"), broken.content);
        messages.clear();
        program->screens().showVideo(2);
        EXPECT_TRUE(waitFor([&] { return program->FormStack.top() == below; })) << broken.what;
        EXPECT_EQ(messages, QStringList{mediaErrorText(MediaError::InvalidFile)}) << broken.what;
        EXPECT_TRUE(waitFor([&] { return platform->music.mode() == MediaMode::Playing; })) << broken.what;
    }
    messages.clear();
    program->screens().showVideo(77);
    EXPECT_TRUE(waitFor([&] { return program->FormStack.top() == below; }));
    EXPECT_EQ(messages, QStringList{mediaErrorText(MediaError::FileNotFound)});

    QFile whole(media.path(QStringLiteral("VIDEO/1.AVI")));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    media.write(QStringLiteral("VIDEO/2.AVI"), whole.read(whole.size() / 4));
    showFilm(2);
    EXPECT_TRUE(waitFor([&] { return status() == kEnded; }, 15000)) << "what is there plays";
}

TEST_F(ProgramVideoTest, AHundredOpeningsKeepNothing) {
    start("11010");
    const auto open = [&](int times) {
        for (int i = 0; i < times; ++i) {
            showFilm(1);
            auto* area = top<frmVideo>()->findChild<VideoArea*>();
            ASSERT_TRUE(
                waitFor([&] { return qGray(area->grab().toImage().pixel(area->rect().center())) > 0; }));
            press(Qt::Key_Escape);
            runFor(10);
        }
        runFor(300);
    };
    open(25);
    const ProcessUse before = ProcessUse::now();
    // What leaks grows every time; memory that the players' threads share out anew does so once in a while.
    ProcessUse last = before;
    qint64 leastGrowth = std::numeric_limits<qint64>::max();
    for (int block = 0; block < 4; ++block) {
        open(25);
        const ProcessUse now = ProcessUse::now();
        leastGrowth = std::min(leastGrowth, now.pages - last.pages);
        last = now;
    }
    RecordProperty("least_growth_kb", static_cast<int>(leastGrowth));
    EXPECT_LT(leastGrowth, 500);
    EXPECT_LT(last.kilobytes, before.kilobytes + 1000);
    EXPECT_LE(last.files, before.files);
    EXPECT_LE(last.threads, before.threads);
}

TEST_F(ProgramVideoTest, AFilmOfAnHourIsSoughtAtOnce) {
    start("10010");
    ASSERT_FALSE(
        media
            .film(QStringLiteral("VIDEO/3.AVI"), 3600000,
                  QStringLiteral("-vf drawbox=x=0:y=0:w=iw:h=ih:color=red:t=fill:enable='gte(t,2700)' "
                                 "-c:v mjpeg -c:a pcm_u8 -ar 8000"),
                  QStringLiteral("64x48"), 2)
            .isEmpty());
    showFilm(3);
    auto* area = top<frmVideo>()->findChild<VideoArea*>();
    const auto red = [&] {
        const QColor colour = area->grab().toImage().pixelColor(area->rect().center());
        return colour.red() > 200 && colour.green() < 60;
    };
    const auto* time = top<frmVideo>()->findChild<Label*>(QStringLiteral("lblCas"));
    EXPECT_TRUE(waitFor([&] { return time->text().endsWith(QStringLiteral(" / 60:00")); }));
    EXPECT_FALSE(red());
    auto* bar = top<frmVideo>()->findChild<SeekBar*>();
    QElapsedTimer clock;
    clock.start();
    QTest::mouseClick(bar, Qt::LeftButton, {}, {bar->width() * 50 / 60, bar->height() / 2});
    EXPECT_TRUE(waitFor(red));
    RecordProperty("seek_ms", static_cast<int>(clock.elapsed()));
    // A pixel of the bar is some seconds.
    const QRegularExpression there(QStringLiteral("^(49:5|50:0). / 60:00$"));
    EXPECT_TRUE(waitFor([&] { return there.match(time->text()).hasMatch(); })) << time->text().toStdString();
    EXPECT_EQ(status(), QStringLiteral("Přehrávám"));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
