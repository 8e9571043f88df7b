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
    void clickMusic() { QTest::mouseClick(form->findChild<Button*>(u"imgBtnHlavni(4)"_s), Qt::LeftButton); }
};

TEST_F(PageTest, MusicThatWasNeverOpenIsOpenedOrTellsWhyNot) {
    run.SoundFlags = {true, false, true, false, true};
    run.MediaRoot = LogicalPaths::fromNativeFolder(book.folder.path());
    const QString file = book.folder.filePath(u"ZVUKY/Vina.WAV"_s);
    ASSERT_TRUE(test::write(file));
    show();
    run.player.failing[u"open"_s] = MediaError::InvalidFile;
    clickMusic();
    EXPECT_FALSE(run.player.playing());
    EXPECT_EQ(run.messages, QStringList{u"16: "_s + mediaErrorText(MediaError::InvalidFile)});
    clickMusic();
    run.player.failing.clear();
    clickMusic();
    EXPECT_TRUE(run.player.playing());
    EXPECT_EQ(run.player.fileName(), file) << "the track that the settings chose";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
