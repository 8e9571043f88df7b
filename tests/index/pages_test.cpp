#include <gtest/gtest.h>

#include <QTest>

#include "cookbook.h"
#include "forms/button.h"
#include "screens/index/frmstranka.h"
#include "support/files.h"

namespace sarne {
namespace {

class PageTest : public testing::Test {
  protected:
    Cookbook book{{Cookbook::page(10, u"Jak na to"_s, u"slovo "_s.repeated(2000), {}),
                   u"INSERT INTO Nastav VALUES (1, 'Zvuky', 1), (2, 'Hudba', 1), (3, 'Hlas', 1)"_s}};
    FakeSarne& run = book.run;
    frmStranka* form = nullptr;

    void show() {
        form = new frmStranka(run);
        ASSERT_TRUE(form->Zobraz(u"10"_s));
    }
    Button& bar(int button) { return *form->findChild<Button*>(u"imgBtnHlavni(%1)"_s.arg(button)); }
    void click(int button) { QTest::mouseClick(&bar(button), Qt::LeftButton); }
    int stored(int id) {
        Recordset rows = run.database.OpenTable(u"Nastav"_s);
        rows.Seek(u"="_s, id);
        return rows.field(u"hodnota"_s).toInt();
    }
};

TEST_F(PageTest, TheSoundButtonSwitchesTheMusicAndTheStoredSwitch) {
    run.SoundFlags = {true, true, true, false, false};
    run.MediaRoot = LogicalPaths::fromNativeFolder(book.folder.path());
    const QString track = book.folder.filePath(u"HUDBA.WAV"_s);
    ASSERT_TRUE(test::write(track));
    run.player.setFileName(track);
    run.player.command(u"open");
    run.player.command(u"play");
    show();
    EXPECT_EQ(bar(4).toolTip(), u"Vypnout hudbu"_s);
    click(4);
    EXPECT_FALSE(run.player.playing());
    EXPECT_EQ(run.SoundFlags, (std::array<bool, 5>{true, false, true, false, false}));
    EXPECT_EQ(stored(2), 0);
    EXPECT_EQ(stored(1) + stored(3), 2);
    EXPECT_EQ(bar(4).toolTip(), u"Zapnout hudbu"_s);
    EXPECT_EQ(bar(4).frame(), Button::Frame::Pressed);
    click(4);
    EXPECT_TRUE(run.player.playing());
    EXPECT_EQ(stored(2), 1);
    EXPECT_FALSE(run.player.commands.contains(u"close"_s)) << "it goes on where it was";
}

TEST_F(PageTest, MusicThatWasNeverOpenIsOpenedOrTellsWhyNot) {
    run.SoundFlags = {true, false, true, false, true};
    run.MediaRoot = LogicalPaths::fromNativeFolder(book.folder.path());
    const QString file = book.folder.filePath(u"ZVUKY/Vina.WAV"_s);
    ASSERT_TRUE(test::write(file));
    show();
    run.player.failing[u"open"_s] = MediaError::InvalidFile;
    click(4);
    EXPECT_FALSE(run.player.playing());
    EXPECT_EQ(run.messages, QStringList{u"16: "_s + mediaErrorText(MediaError::InvalidFile)});
    click(4);
    run.player.failing.clear();
    click(4);
    EXPECT_TRUE(run.player.playing());
    EXPECT_EQ(run.player.fileName(), file) << "the track that the settings chose";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
