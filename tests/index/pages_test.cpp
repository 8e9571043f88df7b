#include <gtest/gtest.h>

#include <QTest>

#include "cookbook.h"
#include "forms/button.h"
#include "forms/textview.h"
#include "screens/index/frmindex.h"
#include "screens/index/frmstranka.h"
#include "support/files.h"
#include "support/pictures.h"

namespace sarne {
namespace {

/// Keywords 1 and 2 lead to each other, 3 to a keyword that is not there, and on.
QStringList keywords() {
    const QString filler = u"slovo "_s.repeated(700);
    return {Cookbook::keyword(1, u"Kapr"_s, u"Kapr se *2 vaří* s kmínem."_s),
            Cookbook::keyword(2, u"Vaření"_s, filler + u"Vaří se *1 kapr* i jiné ryby."_s),
            Cookbook::keyword(3, u"Lín"_s, u"Ten *999 nikam* nevede, #5 pípne# a @7 video@ hraje."_s)};
}

class KeywordTest : public testing::Test {
  protected:
    Cookbook book{keywords()};
    FakeSarne& run = book.run;
    frmIndex* form = nullptr;

    void show(std::int16_t keyword) {
        form = new frmIndex(run);
        ASSERT_TRUE(form->Zobraz(keyword));
    }
    TextView& view() { return *child<TextView>(*form, "picText"); }
    void clickLink(int link) {
        const QRect place = view().pieces().linkRect(link).translated(0, -view().scrolled());
        QTest::mouseClick(&view(), Qt::LeftButton, {}, view().toPixels(place.center()));
    }
    bool shows(const char* words) {
        return view().drawnText().simplified().startsWith(QString::fromUtf8(words));
    }
};

TEST_F(KeywordTest, KeywordsThatLeadToEachOtherAreRetraced) {
    show(1);
    clickLink(0);
    EXPECT_TRUE(shows("slovo slovo"));
    QTest::keyClick(&view(), Qt::Key_Tab);
    const int offset = view().scrolled();
    EXPECT_GT(offset, 0) << "the phrase is brought into sight";
    QTest::keyClick(&view(), Qt::Key_Return);
    EXPECT_TRUE(shows("Kapr se"));
    EXPECT_EQ(view().scrolled(), 0);
    EXPECT_EQ(run.FormStack.count(), 2) << "all in one screen";

    QTest::keyClick(&view(), Qt::Key_Escape);
    EXPECT_TRUE(shows("slovo slovo"));
    EXPECT_EQ(view().scrolled(), offset) << "where it was left";
    EXPECT_EQ(view().pieces().focused(), 0);
    child<Button>(*form, "imgBtnHlavni(2)")->click();
    EXPECT_TRUE(shows("Kapr se"));
    QTest::keyClick(form, Qt::Key_C);
    EXPECT_TRUE(book.callerIsOnTop());
}

TEST_F(KeywordTest, AMissingKeywordLeavesTheText) {
    EXPECT_FALSE((new frmIndex(run))->Zobraz(999));
    EXPECT_TRUE(book.callerIsOnTop());
    show(3);
    clickLink(0);
    EXPECT_TRUE(shows("Ten nikam"));
    EXPECT_EQ(run.beeps, 1);
    QTest::keyClick(&view(), Qt::Key_Escape);
    EXPECT_TRUE(book.callerIsOnTop()) << "it was no visit";
}

TEST_F(KeywordTest, TabGoesThroughThePhrasesAndTheBarInACircle) {
    show(3);
    QStringList stops;
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(run.window.focusWidget(), Qt::Key_Tab);
        const auto link = view().pieces().focused();
        stops << (link ? QString::number(*link) : run.window.focusWidget()->objectName().right(2).left(1));
    }
    EXPECT_EQ(stops.join(u' '), u"0 1 2 0 1 2 3 4 0"_s) << "phrases, the five buttons, the phrases again";
    QTest::keyClick(run.window.focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(run.window.focusWidget(), child(*form, "imgBtnHlavni(4)"));
}

TEST_F(KeywordTest, BesideTheTextStandWhatIsKnownOfRecipesAndFilm) {
    run.database.Execute(u"INSERT INTO UkazkyHesel VALUES (1, '', '', 6, '7,12,')"_s);
    run.database.Execute(u"INSERT INTO UkazkyHesel VALUES (2, '', '', 99999, '7,')"_s);  // no film
    show(3);
    const int whole = view().twips().width();
    form->goBack();
    show(1);
    EXPECT_LT(view().twips().right() + TextView::kArrowRoom,
              child<Button>(*form, "cmdRecepty")->twips().left());
    EXPECT_EQ(child<Button>(*form, "cmdRecepty")->caption(), u"Recepty: 2"_s);
    child<Button>(*form, "cmdRecepty")->click();
    child<Button>(*form, "cmdFilm")->click();
    EXPECT_EQ(run.recorded.calls, (QStringList{u"showList 7,12, recepty"_s, u"showVideo 6"_s}));

    clickLink(0);
    EXPECT_EQ(child<Button>(*form, "cmdRecepty")->caption(), u"Recepty: 1"_s) << "the next keyword's own";
    EXPECT_FALSE(child<Button>(*form, "cmdFilm")->isVisible());
    EXPECT_LT(view().twips().width(), whole);
    form->goBack();
    EXPECT_TRUE(child<Button>(*form, "cmdFilm")->isVisible()) << "going back shows what stood there";
}

TEST_F(KeywordTest, APictureOfTheDiscStandsAboveItsCaption) {
    run.database.Execute(u"INSERT INTO UkazkyHesel VALUES (1, 'foto\\hesla\\kapr.png', 'Kapr', 0, '')"_s);
    ASSERT_TRUE(test::write(book.folder.filePath(u"foto/hesla/kapr.png"_s), test::plain({8, 6}, Qt::red)));
    run.MediaRoot = book.folder.path() + u'/';
    show(1);
    const auto* picture = child<PictureBox>(*form, "picHeslo");
    const auto* caption = child<Label>(*form, "lblHeslo");
    EXPECT_TRUE(picture->isVisible());
    EXPECT_EQ(caption->text(), u"Kapr"_s);
    EXPECT_GT(caption->twips().top(), picture->twips().bottom());
    EXPECT_FALSE(child<Button>(*form, "cmdRecepty")->isVisible()) << "no recipe uses the word";
    form->goBack();
    QFile::remove(book.folder.filePath(u"foto/hesla/kapr.png"_s));
    show(1);
    EXPECT_FALSE(child<PictureBox>(*form, "picHeslo")->isVisible());
    EXPECT_FALSE(child<Label>(*form, "lblHeslo")->isVisible()) << "no caption of nothing";
}

class PageTest : public testing::Test {
  protected:
    Cookbook book{{Cookbook::page(10, u"Jak na to"_s, u"slovo "_s.repeated(2000), {}),
                   Cookbook::page(300, u"Recept"_s, u"\\b Recept\\b0\\par Text."_s, u"frmRecept"_s),
                   Cookbook::page(30, u"Stránky"_s, u"Text."_s, u"frmStranka"_s),
                   u"INSERT INTO Nastav VALUES (1, 'Zvuky', 1)"_s,
                   u"INSERT INTO Nastav VALUES (2, 'Hudba', 1)"_s,
                   u"INSERT INTO Nastav VALUES (3, 'Hlas', 1)"_s}};
    FakeSarne& run = book.run;
    frmStranka* form = nullptr;

    void show(const char* id) {
        form = new frmStranka(run);
        ASSERT_TRUE(form->Zobraz(QString::fromUtf8(id)));
    }
    Button& bar(int button) { return *form->findChild<Button*>(u"imgBtnHlavni(%1)"_s.arg(button)); }
    void click(int button) { QTest::mouseClick(&bar(button), Qt::LeftButton); }
    int stored(int id) {
        Recordset rows = run.database.OpenTable(u"Nastav"_s);
        rows.Seek(u"="_s, id);
        return rows.field(u"hodnota"_s).toInt();
    }
};

TEST_F(PageTest, TheTitleIsNotSaidTwice) {
    show("10");
    EXPECT_EQ(child<Label>(*form, "lblTitul")->text(), u"Jak na to"_s);
    show("300");
    EXPECT_EQ(child<Label>(*form, "lblTitul")->text(), u"Nápověda"_s);
    EXPECT_FALSE((new frmStranka(run))->Zobraz(u"11"_s));
    EXPECT_EQ(book.top(), form) << "a page that is not there changes nothing";
}

TEST_F(PageTest, TheSoundButtonSwitchesTheMusicAndTheStoredSwitch) {
    run.SoundFlags = {true, true, true, false, false};
    run.MediaRoot = LogicalPaths::fromNativeFolder(book.folder.path());
    const QString track = book.folder.filePath(u"HUDBA.WAV"_s);
    ASSERT_TRUE(test::write(track));
    run.player.setFileName(track);
    run.player.command(u"open");
    run.player.command(u"play");
    show("10");
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
    show("10");
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

TEST_F(PageTest, TheHelpOfThePageDoesNotOpenItselfAgain) {
    show("10");
    QTest::keyClick(&bar(0), Qt::Key_F1);
    EXPECT_EQ(run.recorded.calls, QStringList{u"showHelpFor frmStranka"_s});
    show("30");
    QTest::keyClick(&bar(0), Qt::Key_F1);
    EXPECT_EQ(run.recorded.calls.size(), 1);
    EXPECT_EQ(run.beeps, 1);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
