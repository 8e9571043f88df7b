#include <QClipboard>
#include <QDeadlineTimer>

#include "recipe/recipefixture.h"
#include "screens/recipe/toolgrid.h"
#include "support/files.h"
#include "support/pictures.h"

namespace sarne {
namespace {

QString nth(const char* name, int index) {
    return u"%1(%2)"_s.arg(QString::fromLatin1(name)).arg(index);
}

class ScreenTest : public RecipeTest {
  protected:
    void makeFile(const QString& name, const QByteArray& content) {
        ASSERT_TRUE(test::write(folder.filePath(name), content));
    }
    void makePicture(const QString& name, QRgb color) {
        ASSERT_TRUE(test::write(folder.filePath(name), test::plain({80, 60}, color)));
    }
    QColor pixelOf(QWidget& widget) {
        const QImage shot = form->grab().toImage();
        return shot.pixelColor(widget.geometry().center());
    }
    void section(int index) { click(qPrintable(nth("imgBtn", index))); }
};

TEST_F(ScreenTest, SaysThatThePhotoIsBeingReadUntilItIsThere) {
    makePicture(u"foto/velke/R6.BMP"_s, qRgb(200, 30, 40));
    makePicture(u"foto/Podklad/r6.bmp"_s, qRgb(20, 230, 40));
    form->Skryj();
    form = new frmRecept(run, lookedAt);
    form->Zobraz(6);
    EXPECT_EQ(shown(), u"Moment prosím, načítám foto ..."_s);
    QApplication::processEvents();
    EXPECT_EQ(shown(), QString());
    EXPECT_EQ(pixelOf(view()), QColor(200, 30, 40));
    EXPECT_EQ(form->grab().toImage().pixelColor(300, 570), QColor(20, 230, 40)) << "the recipe's own ground";
    click("picRecept");
    EXPECT_EQ(run.recorded.calls.last(), u"showPhotos 0"_s);
    EXPECT_EQ(run.recorded.photos.photoIds, std::vector<std::int16_t>{6});
    section(1);
    click("picRecept");
    EXPECT_EQ(run.recorded.calls.size(), 1) << "a text opens no photo";
    section(0);
    EXPECT_EQ(shown(), QString()) << "the photo is read once";
}

TEST_F(ScreenTest, ToolsStandAsPicturesBesideTheirListWhereThereAreThree) {
    auto& beside = at<PictureBox>("picVedle");
    for (const char* tool : {"ciska", "panev", "varecka"}) {
        section(6);
        EXPECT_FALSE(beside.isVisible());
        makePicture(u"foto/pomucky/%1.png"_s.arg(QLatin1String(tool)), qRgb(200, 30, 40));
    }
    section(6);
    EXPECT_EQ(beside.drawnText(), u"číška\npánev\nvařečka"_s);
    const QImage shot = beside.grab().toImage();
    EXPECT_EQ(shot.pixelColor(shot.width() / 4, shot.height() / 4), QColor(200, 30, 40));
    section(1);
    EXPECT_FALSE(beside.isVisible());
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
    makeFile(u"zvuky/č5.wav"_s, "RIFF...");
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
    makeFile(u"zvuky/č5.wav"_s, second);
    playedBy(true, false);
    const QDeadlineTimer deadline(5000);
    while (run.player.decibels > -10 && !deadline.hasExpired()) QApplication::processEvents();
    EXPECT_EQ(run.player.decibels, -10) << "the music steps back";
}

TEST_F(ScreenTest, CtrlCPutsTheRecipeOnTheClipboard) {
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(run.FormStack.top(), form);
    EXPECT_FALSE(form->collectedText().isEmpty());
    EXPECT_EQ(QApplication::clipboard()->text().remove(u'\r'), form->collectedText().remove(u'\r'));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
