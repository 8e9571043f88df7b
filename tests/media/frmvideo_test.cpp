#include "media/frmvideo.h"

#include "forms/colors.h"
#include "mediafixture.h"

namespace sarne {
namespace {

class VideoTest : public MediaFixture {
  protected:
    void open(int number = 3) {
        auto made = std::make_unique<FakeMultimedia>();
        player = made.get();
        player->failing = failing;
        form = new frmVideo(run, std::move(made));
        form->Zobraz(std::int16_t(number));
    }
    void start() { form->findChild<Timer*>()->fire(); }
    Button* button(int i) { return form->findChild<Button*>(u"ImgTlacitko(%1)"_s.arg(i)); }
    void click(int i) { QTest::mouseClick(button(i), Qt::LeftButton); }
    QString status() { return child<Label>(*form, "Label1")->text(); }

    QHash<QString, MediaError> failing;
    FakeMultimedia* player = nullptr;
    frmVideo* form = nullptr;
};

TEST_F(VideoTest, TheTitleStandsThereAsTheMenuHasIt) {
    for (const char* row :
         {"('181', 'Jak rybu obalit', '13')", "('182', 'Jak vykrojit filety', '3')", "('53', 'Pečeně', '3')"})
        run.database.Execute(u"INSERT INTO Menu VALUES "_s + QLatin1String(row));
    open(3);
    EXPECT_EQ(child<Label>(*form, "lblNazev")->text(), u"Jak vykrojit filety"_s);
    EXPECT_EQ(form->accessibleName(), u"Jak vykrojit filety"_s);
    EXPECT_TRUE(run.announced.contains(u"Film: Jak vykrojit filety"_s));
    press(Qt::Key_Escape);
    open(4);
    EXPECT_EQ(child<Label>(*form, "lblNazev")->text(), QString()) << "a film that no menu knows";
}

TEST_F(VideoTest, TheKnobStaysWithinTheBar) {
    open();
    auto* bar = form->findChild<SeekBar*>();
    bar->show(0, 60000);
    const QImage start = bar->grab().toImage();
    bar->show(60000, 60000);
    const QImage end = bar->grab().toImage();
    const int middle = bar->height() / 2;
    EXPECT_EQ(start.pixelColor(bar->toPixels({90, 165}).x(), middle), colors::kTitle);
    EXPECT_EQ(end.pixelColor(bar->toPixels({bar->twips().width() - 90, 165}).x(), middle), colors::kTitle);
    EXPECT_EQ(bar->positionAt(0), 0);
    EXPECT_EQ(bar->positionAt(90), 0) << "where the knob stands";
    EXPECT_EQ(bar->positionAt(bar->twips().width() - 90), 60000);
    bar->setChapters(Chapters::parse("0\tA\n60\tNic\n"));
    EXPECT_LT(bar->positionAt(bar->twips().width() - 160), 60000) << "at the end begins no chapter";
}

TEST_F(VideoTest, MarksLeadToTheirChapters) {
    ASSERT_TRUE(test::write(path("VIDEO/3.kap"), "0\tPříprava\n10.5\tŘez\n40\tKonec díla\n"));
    open();
    start();
    player->end();
    press(Qt::Key_J);
    EXPECT_EQ(player->position(), 40000) << "at the end, the last one";
    EXPECT_TRUE(player->playing());
    EXPECT_EQ(status(), u"Přehrávám"_s);

    auto* bar = form->findChild<SeekBar*>();
    const auto markAt = [&](qint64 position) {
        for (int x = 0; x < bar->twips().width(); ++x)
            if (bar->positionAt(x) == position) return bar->toPixels(QPoint(x, bar->twips().height() / 2));
        return QPoint(-1, -1);
    };
    QTest::mouseMove(bar, markAt(40000) + QPoint(1, 0));
    EXPECT_EQ(bar->toolTip(), u"Konec díla"_s);
    QTest::mouseClick(bar, Qt::LeftButton, {}, markAt(10500) + QPoint(1, 0));
    EXPECT_EQ(player->position(), 10500) << "a mark leads to its chapter's beginning";
    QTest::mouseClick(bar, Qt::RightButton, {}, {bar->width() / 4, bar->height() / 2});
    EXPECT_EQ(player->position(), 10500) << "the right button is no seek";
}

TEST_F(VideoTest, SoundIsKeptForTheNextClip) {
    open();
    EXPECT_EQ(button(0)->toolTip(), u"Vypnout zvuk"_s);
    start();
    EXPECT_EQ(player->sound, MediaSound::On);
    click(0);
    EXPECT_EQ(player->sound, MediaSound::Silent);
    EXPECT_EQ(button(0)->toolTip(), u"Zapnout zvuk"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(player->commands.mid(player->commands.size() - 2), (QStringList{u"stop"_s, u"close"_s}));
    open();
    start();
    EXPECT_EQ(player->sound, MediaSound::Silent);
    press(Qt::Key_Escape);
    run.ShowMode = true;
    open();
    start();
    EXPECT_EQ(player->sound, MediaSound::On) << "the show mode turns it on";
}

TEST_F(VideoTest, WhatCannotBePlayedIsReportedAndTheScreenCloses) {
    for (const char* command : {"open", "play"}) {
        failing = {{QString::fromUtf8(command), MediaError::InvalidFile}};
        run.messages.clear();
        open();
        start();
        EXPECT_EQ(run.messages, QStringList{u"16: "_s + mediaErrorText(MediaError::InvalidFile)});
        EXPECT_EQ(run.FormStack.top(), below);
    }
    failing.clear();
    run.messages.clear();
    open(99);
    start();
    EXPECT_EQ(player->commands.value(0), u"open "_s + run.MediaRoot + u"VIDEO\\99.AVI"_s)
        << "the player says that there is no such file";
    EXPECT_EQ(player->wait, MediaWait::DontWait);
    player->lastCode = MediaError::InvalidFile;
    player->breakOff(MediaDone::Failed);
    EXPECT_EQ(run.messages.size(), 1) << "also when that turns out later";
    EXPECT_EQ(run.FormStack.top(), below);
    form = new frmVideo(run, nullptr);
    form->Zobraz(99);
    start();
    EXPECT_EQ(run.FormStack.top(), below) << "no player, no video";
}

TEST_F(VideoTest, LeavingBeforeTheFileIsOpenOpensNothing) {
    open();
    press(Qt::Key_Escape);
    QTest::qWait(40);
    EXPECT_EQ(run.FormStack.top(), below);
}

TEST_F(VideoTest, SettingsOverAVideoKeepTheKeyboard) {
    open();
    start();
    Form* settings = run.openAbove("frmNastavHudbu");
    settings->place({3000, 2100, 6000, 4800});
    QTest::mouseClick(form, Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(run.window.focusForm(), settings) << "what shows of the video hands the keyboard on";
    press(Qt::Key_Escape);
    EXPECT_TRUE(form->isLoaded());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
