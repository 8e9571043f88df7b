#include "media/frmnastavhudbu.h"

#include <QtEndian>

#include "db/soundsettings.h"
#include "mediafixture.h"

namespace sarne {
namespace {

class SettingsTest : public MediaFixture {
  protected:
    void SetUp() override {
        MediaFixture::SetUp();
        playMusic();
        open();
    }
    void open() {
        form = new frmNastavHudbu(run);
        form->Zobraz();
    }
    CheckBox* box(int i) { return form->findChild<CheckBox*>(u"chkNastav(%1)"_s.arg(i)); }
    OptionButton* track(int i) { return form->findChild<OptionButton*>(u"opthudba(%1)"_s.arg(i)); }
    void click(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }
    void confirm(int i = 0) { click(form->findChild<QWidget*>(u"cmdOkEnd(%1)"_s.arg(i))); }
    QString stored() {
        QString bits;
        for (const SoundSetting& setting : readSoundSettings(run.database)) bits += setting.on ? u'1' : u'0';
        return bits;
    }
    QStringList commands(std::initializer_list<const char*> names) {
        QStringList list;
        for (const char* name : names) list << QString::fromUtf8(name);
        return list;
    }

    frmNastavHudbu* form = nullptr;
};

TEST_F(SettingsTest, WithoutChangesNothingIsWrittenAndTheMusicPlaysOn) {
    std::vector<bool> same;
    for (const SoundSetting& setting : readSoundSettings(run.database)) same.push_back(setting.on);
    EXPECT_EQ(storeSoundSettings(run.database, same), 0);
    for (const char* sameTrack : {"HUDBA.WAV", "hudba.wav", "zvuky/../HUDBA.WAV"}) {
        run.player.setFileName(path(sameTrack));
        confirm();
        EXPECT_EQ(run.player.commands, QStringList()) << sameTrack;
        EXPECT_TRUE(run.player.playing());
        open();
    }
}

TEST_F(SettingsTest, MusicStopsAndStartsAtOnce) {
    click(box(1));
    EXPECT_FALSE(track(1)->isEnabled()) << "no music, no track to choose";
    EXPECT_FALSE(box(4)->isEnabled());
    confirm();
    EXPECT_EQ(run.player.commands, commands({"stop"}));
    EXPECT_EQ(stored(), u"10010"_s);
    open();
    click(box(1));
    EXPECT_TRUE(track(1)->isEnabled());
    confirm();
    EXPECT_TRUE(run.player.playing()) << "the same track goes on";
    run.player.commands.clear();
    open();
    click(track(1));
    EXPECT_TRUE(box(4)->isChecked()) << "the switch mirrors the choice";
    confirm();
    EXPECT_EQ(run.player.commands,
              (QStringList{u"stop"_s, u"close"_s, u"open "_s + path("zvuky/Vina.WAV"), u"play"_s}));
    EXPECT_EQ(stored(), u"11011"_s);
    EXPECT_TRUE(run.SoundFlags[kWineSounds]);
    open();
    EXPECT_TRUE(track(1)->isChecked());
    click(box(4));
    EXPECT_TRUE(track(0)->isChecked());
}

TEST_F(SettingsTest, TheSwitchesAreStoredInOneTransaction) {
    const auto transactions = [&] {  // the file itself counts them
        return qFromBigEndian<quint32>(test::bytesOf(path("Sarne.drc")).constData() + 24);
    };
    const quint32 before = transactions();
    for (const int i : {0, 2, 3}) click(box(i));
    confirm();
    EXPECT_EQ(stored(), u"01100"_s);
    EXPECT_EQ(transactions(), before + 1);
}

TEST_F(SettingsTest, ATrackThatCannotBeOpenedIsReportedAndTheSwitchesAreKept) {
    run.player.failing[u"open"_s] = MediaError::InvalidFile;
    click(track(1));
    click(box(2));
    confirm();
    EXPECT_EQ(run.messages, QStringList{u"16: "_s + mediaErrorText(MediaError::InvalidFile)});
    EXPECT_FALSE(run.player.commands.contains(u"play"_s));
    EXPECT_EQ(stored(), u"11111"_s);
}

TEST_F(SettingsTest, ATrackFoundBrokenLaterIsReportedThenAndOnlyOnce) {
    const auto told = u"16: "_s + mediaErrorText(MediaError::InvalidFile);
    run.player.opensLater = true;
    click(track(1));
    confirm();
    open();
    click(track(0));
    confirm();
    EXPECT_EQ(run.messages, QStringList());
    run.player.failToOpen(MediaError::InvalidFile);
    EXPECT_EQ(run.messages, QStringList()) << "the player waits for its report to be heard";
    QTest::qWait(0);
    EXPECT_EQ(run.messages, QStringList{told});
    run.player.opensLater = false;
    open();
    click(track(1));
    confirm();
    EXPECT_TRUE(run.player.playing());
    QTest::qWait(0);
    run.player.breakOff(MediaDone::Failed);
    QTest::qWait(0);
    EXPECT_EQ(run.messages, QStringList{told}) << "a track that broke off stays silent";
}

TEST_F(SettingsTest, AMissingTrackIsReportedByThePlayerThatLooksForIt) {
    QFile::remove(path("zvuky/Vina.WAV"));
    click(track(1));
    confirm();
    EXPECT_TRUE(run.player.fileName().endsWith(u"zvuky\\vina.wav"_s));
}

TEST_F(SettingsTest, AShortTableIsReadAsFarAsItGoes) {
    confirm(1);
    run.database.Execute(u"DELETE * FROM Nastav WHERE ID > 2"_s);
    open();
    EXPECT_TRUE(box(1)->isVisible());
    EXPECT_FALSE(box(2)->isVisible());
    click(box(0));
    confirm();
    EXPECT_EQ(stored(), u"01"_s);
}

TEST_F(SettingsTest, SaysWhatIsMissing) {
    const auto said = [&] { return child<Label>(*form, "lblChybi")->text(); };
    EXPECT_EQ(said(), QString());
    confirm(1);
    run.MediaRoot = u"Q:\\"_s;
    open();
    EXPECT_TRUE(said().contains(u"Složka s hudbou"_s));
    confirm(1);
    run.database.Close();
    open();
    EXPECT_TRUE(said().contains(u"Kuchařku se nepodařilo otevřít"_s));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
