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

TEST_F(VideoTest, PlaysAndGivesTheMusicBack) {
    playMusic();
    open();
    EXPECT_EQ(status(), u"Chvilku prosím počkejte, otevírám soubor s videem...."_s);
    EXPECT_FALSE(run.player.playing());
    EXPECT_TRUE(player->commands.isEmpty()) << "the form shows before the file is opened";
    start();
    EXPECT_EQ(player->commands, (QStringList{u"open "_s + path("VIDEO/3.AVI"), u"play"_s}));
    EXPECT_EQ(status(), u"Přehrávám"_s);
    EXPECT_EQ(button(1)->frame(), Button::Frame::Pressed);
    EXPECT_EQ(run.awake.size(), 1);
    player->end();
    EXPECT_EQ(status(), u"Přehrávání skončeno"_s);
    EXPECT_EQ(button(1)->frame(), Button::Frame::Raised);
    click(1);
    EXPECT_TRUE(player->playing()) << "a clip that has ended plays again";
    press(Qt::Key_Escape);
    EXPECT_EQ(player->commands.mid(player->commands.size() - 2), (QStringList{u"stop"_s, u"close"_s}));
    EXPECT_TRUE(run.player.playing());
    EXPECT_EQ(run.awake.last(), QString());
    EXPECT_EQ(run.FormStack.top(), below);
}

TEST_F(VideoTest, TheTitleStandsThereAsTheMenuHasIt) {
    for (const char* row :
         {"('181', 'Jak rybu obalit', '13')", "('182', 'Jak vykrojit filety', '3')", "('53', 'Pečeně', '3')"})
        run.database.Execute(u"INSERT INTO Menu VALUES "_s + QLatin1String(row));
    open(3);
    EXPECT_EQ(child<Label>(*form, "lblNazev")->text(), u"Jak vykrojit filety"_s);
    press(Qt::Key_Escape);
    open(4);
    EXPECT_EQ(child<Label>(*form, "lblNazev")->text(), QString()) << "a film that no menu knows";
    form->Skryj();
    form->Skryj();
    EXPECT_EQ(run.FormStack.top(), below) << "it has gone already";
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
}

TEST_F(VideoTest, TransportButtons) {
    open();
    start();
    click(3);
    EXPECT_EQ(player->mode(), MediaMode::Paused);
    EXPECT_EQ(button(3)->frame(), Button::Frame::Pressed);
    press(Qt::Key_Space);
    EXPECT_EQ(player->mode(), MediaMode::Playing) << "pause pressed again plays on";
    EXPECT_EQ(button(3)->frame(), Button::Frame::Raised);
    click(3);
    click(2);
    EXPECT_EQ(button(3)->frame(), Button::Frame::Raised) << "stopped is not paused";
    EXPECT_EQ(player->mode(), MediaMode::Stopped);
    player->commands.clear();
    click(3);
    EXPECT_EQ(player->commands, QStringList{u"pause"_s}) << "a stopped clip stays so";
    EXPECT_EQ(player->mode(), MediaMode::Stopped);
    player->commands.clear();
    for (const int i : {4, 5, 1}) click(i);
    EXPECT_EQ(player->commands, (QStringList{u"prev"_s, u"next"_s, u"prev"_s, u"play"_s}));
    player->setPosition(20000);
    press(Qt::Key_Left);
    EXPECT_EQ(player->position(), 15000);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(player->position(), 25000);
    press(Qt::Key_J);
    EXPECT_EQ(player->position(), 0) << "without chapters the film is one part";
    for (const char* step : {"imgKapitola(0)", "imgKapitola(2)"})
        EXPECT_FALSE(child<Button>(*form, step)->isEnabled()) << step;
    auto* bar = form->findChild<SeekBar*>();
    bar->show(0, 60000);
    QTest::mouseClick(bar, Qt::LeftButton, {}, {bar->width() / 2, bar->height() / 2});
    EXPECT_NEAR(double(player->position()), 30000, 200);
    QTest::mouseClick(bar, Qt::RightButton, {}, {bar->width() / 4, bar->height() / 2});
    EXPECT_NEAR(double(player->position()), 30000, 200) << "the right button is no seek";
}

TEST_F(VideoTest, StepsByChapter) {
    ASSERT_TRUE(test::write(path("VIDEO/3.kap"), "0\tPříprava\n10.5\tŘez\n40\tKonec díla\n"));
    open();
    start();
    const auto title = [&] { return child<Label>(*form, "lblKapitola")->text(); };
    const auto chapter = [&](int i) { return child<Button>(*form, qPrintable(u"imgKapitola(%1)"_s.arg(i))); };
    press(Qt::Key_PageDown);
    EXPECT_EQ(player->position(), 10500);
    EXPECT_EQ(title(), u"Řez"_s);
    QTest::mouseClick(chapter(2), Qt::LeftButton);
    EXPECT_EQ(player->position(), 40000);
    press(Qt::Key_PageUp);
    EXPECT_EQ(player->position(), 10500);
    QTest::mouseClick(chapter(0), Qt::LeftButton);
    EXPECT_EQ(player->position(), 0);
    EXPECT_EQ(title(), u"Příprava"_s);
    EXPECT_TRUE(player->playing());

    player->setPosition(30000);
    QTest::mouseClick(chapter(1), Qt::LeftButton);
    EXPECT_EQ(player->position(), 10500) << "the chapter that is on";
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
}

TEST_F(VideoTest, PlaysSlowlyAndAsBefore) {
    open();
    press(Qt::Key_J);  // before anything is open
    EXPECT_TRUE(player->commands.isEmpty());
    start();
    auto* slow = child<Button>(*form, "imgKapitola(3)");
    QTest::mouseClick(slow, Qt::LeftButton);
    EXPECT_EQ(player->speed, .5);
    EXPECT_EQ(slow->frame(), Button::Frame::Pressed);
    press(Qt::Key_P);
    EXPECT_EQ(player->speed, 1);
    EXPECT_EQ(slow->frame(), Button::Frame::Raised);
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

TEST_F(VideoTest, TheVideoFillsTheScreenAndBack) {
    open();
    start();
    auto* area = form->findChild<VideoArea*>();
    const QRect place = area->twips();
    QTest::mouseDClick(area, Qt::LeftButton);
    EXPECT_EQ(area->twips(), QRect(0, 0, 12000, 9000));
    press(Qt::Key_Escape);
    EXPECT_EQ(area->twips(), place);
    press(Qt::Key_Return);
    EXPECT_EQ(area->twips().width(), 12000);
    press(Qt::Key_Return);
    EXPECT_EQ(area->twips(), place);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(player->mode(), MediaMode::Paused) << "a button that shows the focus is pressed";
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
