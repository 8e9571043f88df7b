#include "media/frmvideo.h"

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
    int fiftieth = 0;
    while (bar->positionAt(fiftieth) < 50 * 60000) ++fiftieth;
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->toPixels({fiftieth, bar->twips().height() / 2}));
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
