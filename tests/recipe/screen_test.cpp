#include <QDeadlineTimer>

#include "recipe/recipefixture.h"
#include "screens/recipe/toolgrid.h"
#include "support/files.h"
#include "support/pictures.h"

namespace sarne {
namespace {

using ScreenTest = RecipeTest;

TEST_F(ScreenTest, SaysThatThePhotoIsBeingReadUntilItIsThere) {
    ASSERT_TRUE(test::write(folder.filePath(u"foto/velke/R6.BMP"_s), test::plain({80, 60}, Qt::red)));
    form->Skryj();
    form = new frmRecept(run, lookedAt);
    form->Zobraz(6);
    EXPECT_EQ(shown(), u"Moment prosím, načítám foto ..."_s);
    QApplication::processEvents();
    EXPECT_EQ(shown(), QString());
    EXPECT_EQ(form->grab().toImage().pixelColor(view().geometry().center()), QColor(Qt::red));
    click("imgBtn(1)");
    click("picRecept");
    EXPECT_EQ(run.recorded.calls.size(), 0) << "a text opens no photo";
}

TEST(ToolGridTest, FillsItsRoomWithPicturesOfOneSizeThatDoNotMeet) {
    const QRect room(100, 200, 5800, 5900);
    for (int count = 1; count <= kMostTools; ++count) {
        const auto places = toolPlaces(room, count, 300);
        ASSERT_EQ(places.size(), count);
        QRegion taken;
        for (const auto& [picture, name] : places) {
            EXPECT_EQ(picture.size(), places[0].picture.size());
            EXPECT_TRUE(room.contains(picture | name) && !taken.intersects(picture | name)) << count;
            taken += picture | name;
        }
        EXPECT_GT(4 * places[0].picture.width() * places[0].picture.height() * count,
                  room.width() * room.height())
            << count;
    }
}

TEST_F(ScreenTest, TheNameIsSpokenWhenItsSwitchIsOnOrForShow) {
    const QString file = folder.filePath(u"zvuky/č5.wav"_s);
    ASSERT_TRUE(test::write(file, "RIFF..."));
    const auto playedBy = [&](bool on, bool show) {
        run.SoundFlags[kSpokenNames] = on;
        run.ShowMode = show;
        const qsizetype before = run.sounds.played.size();
        form->Skryj();
        open(5);
        return run.sounds.played.size() - before;
    };
    EXPECT_EQ(playedBy(false, false), 0);
    EXPECT_EQ(playedBy(true, false), 1);
    EXPECT_EQ(playedBy(false, true), 1);
    EXPECT_EQ(run.sounds.played.last(), QByteArray("RIFF..."));
    EXPECT_EQ(run.EffectWave, QByteArray("RIFF...")) << "kept while it sounds";
    QByteArray second(16044, '\0');
    second.replace(28, 2, "\x80\x3e");  // bytes a second
    ASSERT_TRUE(test::write(file, second));
    playedBy(true, false);
    const QDeadlineTimer deadline(5000);
    while (run.player.decibels > -10 && !deadline.hasExpired()) QApplication::processEvents();
    EXPECT_EQ(run.player.decibels, -10) << "the music steps back";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
