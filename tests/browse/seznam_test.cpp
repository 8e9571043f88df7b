#include "browse/browsefixture.h"
#include "forms/button.h"
#include "forms/holdrepeat.h"
#include "forms/label.h"
#include "screens/browse/frmseznam.h"
#include "screens/browse/frmseznam_layout.h"

namespace sarne {
namespace {

class SeznamTest : public BrowseTest {
  protected:
    frmSeznam& open(const char* ids, const char* source) {
        list = new frmSeznam(run);
        list->Zobraz(QString::fromLatin1(ids), QString::fromLatin1(source));
        return *list;
    }
    QWidget* control(const char* name) const { return child(*list, name); }
    Button* button(const char* name) const { return list->findChild<Button*>(QString::fromLatin1(name)); }
    Label* row(int number) const { return list->findChild<Label*>(u"lblSeznam(%1)"_s.arg(number)); }
    QString position() const { return child<Label>(*list, "lblPozice")->text(); }
    QString wine() const { return child<Label>(*list, "lblVino")->text(); }
    bool wineShows() const { return child<Label>(*list, "lblVino")->isVisible(); }
    int selected() const { return list->pages().selectedEntry(); }

    Timer& held(const char* arrow) const { return button(arrow)->findChild<HoldRepeat*>()->timer(); }
    QString panelText() const { return child<PictureBox>(*list, "picFoto")->drawnText(); }
    frmRychlyRecept* quick() const { return run.window.findChild<frmRychlyRecept*>(); }
    QString quickText() const { return child<PictureBox>(*quick(), "Picture1")->drawnText(); }

    static constexpr int kRows = seznam::kRows;
    Form* below = run.openAbove("frmHlavni");
    frmSeznam* list = nullptr;
};

TEST_F(SeznamTest, AShortListFillsItsSheetWithLargerRows) {
    open("3,1,2,", "Recepty");
    EXPECT_EQ(row(2)->twips(), seznam::rowBar(2, seznam::kLargePitch));
    for (int number = 1; number <= kRows; ++number)
        EXPECT_EQ(row(number)->isVisible(), number <= kRows / 2) << number;
    row(1)->setText(u"Hranolky z tolstolobika za půl hodiny"_s);
    const QRect bar = row(1)->twips();
    row(1)->autoSize(seznam::row(1).width());
    EXPECT_GT(row(1)->twips().height(), bar.height() / 2) << "two lines";
    EXPECT_LE(row(1)->twips().height(), bar.height()) << "and both whole";
    for (const char* photo : {"foto/Male/r1.bmp", "foto/Male/r2.bmp"}) writePhoto(photo);
    list->Zobraz(u"1,2,"_s, u"Recepty"_s);
    EXPECT_EQ(row(2)->twips(), seznam::rowBar(2, seznam::kCardPitch)) << "each with its photo";
    EXPECT_EQ(list->grab().toImage().pixelColor(seznam::cardPhoto(2).center() / 15), QColor(Qt::red));
    list->Zobraz(u"1,2,3,4,5,6,7,8,"_s, u"Recepty"_s);
    EXPECT_EQ(row(8)->twips(), seznam::rowBar(8)) << "the same list filled anew";
    EXPECT_TRUE(row(kRows)->isVisible());
}

TEST_F(SeznamTest, ArrowsScrollOnceOrWhileHeld) {
    open("", "recepty");
    const int half = kRows / 2;
    const struct {
        const char* arrow;
        int top;
    } clicks[] = {{"imgSipky(0)", 1}, {"imgSipky(3)", 1 + half}, {"imgSipky(1)", half}, {"imgSipky(2)", 0}};
    for (const auto& [arrow, top] : clicks) {
        click(button(arrow));
        EXPECT_EQ(list->pages().top(), top) << arrow;
        EXPECT_FALSE(button(arrow)->hasFocus()) << "the keyboard stays with the list";
        EXPECT_FALSE(button(arrow)->caption().isEmpty()) << "a sign where the face is missing";
    }
    QTest::mousePress(button("imgSipky(0)"), Qt::LeftButton);
    Timer& timer = held("imgSipky(0)");
    EXPECT_EQ(timer.interval(), 500);
    for (int tick = 0; tick < 100; ++tick) timer.fire();
    EXPECT_EQ(timer.interval(), 50);
    EXPECT_EQ(list->pages().top(), kRecipes - kRows);
    EXPECT_EQ(row(kRows)->text(), u"Recept 050"_s);
    QTest::mouseRelease(button("imgSipky(0)"), Qt::LeftButton);
    EXPECT_FALSE(timer.isEnabled());
    QTest::mousePress(button("imgSipky(2)"), Qt::LeftButton);
    Form* over = run.openAbove("frmRecept");
    EXPECT_FALSE(held("imgSipky(2)").isEnabled()) << "a screen over the list ends it, too";
    run.PopScreen(*over);
    EXPECT_EQ(list->pages().top(), kRecipes - kRows);
}

TEST_F(SeznamTest, ThePanelShowsPhotoOrWines) {
    writePhoto("foto/Male/r1.bmp");
    writePhoto("foto/Male/r2.bmp");
    open("", "recepty");
    click(row(1));
    EXPECT_EQ(panelText(), QString()) << "a photo that is there needs no name";
    EXPECT_FALSE(wineShows());
    click(button("imgBtn(1)"));
    EXPECT_TRUE(wineShows());
    EXPECT_EQ(wine(), u"Recept 001 Víno \r\nRyzlink rýnský\r\nPálava"_s);
    click(row(2));
    EXPECT_EQ(wine(), u"Recept 002 Víno "_s) << "the panel stays what it is";
    click(button("imgBtn(1)"));
    EXPECT_FALSE(wineShows());
    click(button("imgBtn(1)"));
    click(button("imgBtn(0)"));
    EXPECT_FALSE(wineShows());
}

TEST_F(SeznamTest, TheNextListShowsThePanelThatTheLastOneLeft) {
    frmSeznam::Panel panel = frmSeznam::Panel::Photo;
    list = new frmSeznam(run, &panel);
    list->Zobraz({}, u"recepty"_s);
    click(row(1));
    click(button("imgBtn(1)"));
    list->goBack();
    list = new frmSeznam(run, &panel);
    list->Zobraz({}, u"recepty"_s);
    EXPECT_FALSE(wineShows()) << "nothing is chosen";
    click(row(2));
    EXPECT_TRUE(wineShows());
}

TEST_F(SeznamTest, TheWinesFitIntoThePanel) {
    open("1,", "recepty");
    for (int more = 0; more < 5; ++more) run.database.Execute(u"INSERT INTO SpojVino VALUES (1, 1)"_s);
    click(row(1));
    click(button("imgBtn(1)"));
    EXPECT_EQ(wine().count(u'\n'), 7);
    const QRect panel = child<PictureBox>(*list, "picFoto")->twips();
    const auto* label = child<Label>(*list, "lblVino");
    EXPECT_TRUE(panel.contains(label->twips()));
    const TextFont smallest{u"Times New Roman"_s, 11};
    EXPECT_GE(label->twips().height(), Label::measure(wine(), smallest, label->twips().width()).height());
}

TEST_F(SeznamTest, AMissingOrBrokenPhotoLeavesItsNameInThePlace) {
    ASSERT_TRUE(test::write(folder.filePath(u"foto/Male/r2.bmp"_s), "BM" + QByteArray(60, '\x7f')));
    writePhoto("foto/Male/r3.bmp", {300, 200});
    ASSERT_TRUE(QFile::resize(folder.filePath(u"foto/Male/r3.bmp"_s), 1000));
    open("", "recepty");
    for (int number = 1; number <= 3; ++number) {
        click(row(number));
        EXPECT_EQ(panelText(), u"Recept 00%1"_s.arg(number));
        EXPECT_EQ(position(), u"%1 z 50"_s.arg(number));
    }
    EXPECT_EQ(run.messages, QStringList());
}

TEST_F(SeznamTest, TheKeyboardReachesEverything) {
    open("", "recepty");
    key(Qt::Key_Down);
    key(Qt::Key_PageDown);
    EXPECT_EQ(selected(), kRows);
    EXPECT_EQ(list->pages().top(), kRows);
    key(Qt::Key_End);
    EXPECT_EQ(position(), u"50 z 50"_s);
    key(Qt::Key_PageUp);
    key(Qt::Key_Up);
    EXPECT_EQ(selected(), 50 - kRows - 2);
    key(Qt::Key_Home);
    EXPECT_EQ(selected(), 0);
    key(Qt::Key_Tab);
    key(Qt::Key_Right);
    EXPECT_TRUE(button("imgBtn(2)")->hasFocus());
    key(Qt::Key_Enter);
    key(Qt::Key_Backtab);
    key(Qt::Key_Return);
    EXPECT_TRUE(wineShows());
    key(Qt::Key_Left);
    key(Qt::Key_Left);
    EXPECT_TRUE(button("imgBtnHlavni(4)")->hasFocus()) << "round the end";
    key(Qt::Key_Return);
    key(Qt::Key_F1);
    EXPECT_EQ(run.recorded.calls,
              (QStringList{u"showRecipe 1"_s, u"showMusicSettings"_s, u"showHelpFor frmSeznam"_s}));
    type('x');
    EXPECT_EQ(run.exits, 1);
    key(Qt::Key_Escape);
    EXPECT_EQ(run.FormStack.top(), below);
}

TEST_F(SeznamTest, LettersJumpAndCGoesBack) {
    run.database.Execute(u"UPDATE Recepty SET Nazev = 'Štika' WHERE ID IN (30, 40)"_s);
    run.database.Execute(u"UPDATE Recepty SET Nazev = 'Arašídy' WHERE ID = 1"_s);
    open("", "recepty");
    type('s');
    EXPECT_EQ(selected(), 29);
    EXPECT_GT(list->pages().selectedRow(), 0);
    run.time.time += 5000;
    type('s');
    EXPECT_EQ(selected(), 39);
    type('q');
    EXPECT_EQ(selected(), 39);
    run.time.time += 5000;
    for (const char letter : {'s', 't', 'i'}) type(letter);
    EXPECT_EQ(selected(), 29) << "the rest of the word does not jump on";
    run.time.time += 5000;
    for (const char letter : {'a', 'r'}) {
        type(letter);
        EXPECT_EQ(selected(), 0) << "the first entry is found by a word, too, and not left for those that "
                                    "begin with its second letter";
    }
    type('c');
    EXPECT_EQ(run.FormStack.top(), below);
}

TEST_F(SeznamTest, AHelpTopicOpensItsPageAndNoPhoto) {
    writePhoto("foto/Male/r5.bmp");
    open("", "Help");
    for (const char* hidden : {"imgBtn(0)", "imgBtn(1)", "ImgTlacitko(0)", "ImgTlacitko(1)"})
        EXPECT_FALSE(control(hidden)->isVisible()) << hidden;
    const QImage before = control("picFoto")->grab().toImage();
    click(row(2));
    EXPECT_EQ(position(), u"2 z 2"_s);
    EXPECT_EQ(control("picFoto")->grab().toImage(), before) << "page 5 is not recipe 5";
    click(control("picFoto"));
    key(Qt::Key_Space);
    EXPECT_EQ(run.recorded.calls, QStringList());
    key(Qt::Key_Return);
    doubleClick(row(1));
    EXPECT_EQ(run.recorded.calls, (QStringList{u"showPage 5"_s, u"showPage 310"_s}));
    click(button("imgBtnHlavni(0)"));
    EXPECT_EQ(run.recorded.calls.last(), u"showPrintSelection 2 'help'"_s);
}

TEST_F(SeznamTest, QuickRecipesStandForTheRecipesTheyShow) {
    writePhoto("foto/Male/r29.bmp");
    open("", "RychleRecepty");
    EXPECT_FALSE(control("imgBtn(0)")->isVisible());
    click(row(2));
    EXPECT_EQ(quickText(), u"Ze skříně"_s) << "no photo of recipe 32";
    click(row(1));
    EXPECT_EQ(quickText(), QString());
    click(button("imgBtn(1)"));
    EXPECT_EQ(wine(), u"Za deset minut Víno \r\nRyzlink rýnský\r\nPálava"_s);
    EXPECT_FALSE(quick()->isVisible());
    click(button("imgBtn(1)"));
    EXPECT_TRUE(quick()->isVisible());
    click(button("imgBtn(2)"));
    doubleClick(row(3));
    EXPECT_EQ(run.recorded.calls, QStringList{u"showRecipe 29"_s}) << "the third leads nowhere";
    click(button("imgBtnHlavni(0)"));
    ASSERT_EQ(run.recorded.printEntries.size(), 2u);
    EXPECT_EQ(run.recorded.printEntries[1].item, 32);
    EXPECT_EQ(run.recorded.printEntries[1].text, u"Ze skříně"_s);
}

TEST_F(SeznamTest, TheQuickRecipesWindowGivesTheKeyboardBack) {
    open("", "RychleRecepty");
    EXPECT_FALSE(quick()->isAncestorOf(run.window.focusWidget()));
    key(Qt::Key_Tab);
    click(row(2));
    quick()->setFocus();
    EXPECT_TRUE(button("imgBtn(2)")->hasFocus());
    click(quick());
    click(child(*quick(), "Picture1"));
    QTest::mouseMove(child(*quick(), "Picture1"), QPoint(5, 5));
    EXPECT_TRUE(button("imgBtn(2)")->hasFocus());
    EXPECT_EQ(selected(), 1);
    key(Qt::Key_Down);
    EXPECT_EQ(selected(), 2);
    Form* over = run.openAbove("frmNastavHudbu");
    over->place({3000, 2100, 4000, 4800});
    click(child(*quick(), "Picture1"));
    quick()->setFocus();
    EXPECT_EQ(run.window.focusForm(), over) << "also below another form";
    run.PopScreen(*over);
    list->goBack();
    EXPECT_EQ(run.window.forms(), std::vector<Form*>{below}) << "the window goes with the list";
}

TEST_F(SeznamTest, PhotosAndPrintGetTheEntries) {
    open("7,9,11,", "recepty");
    click(row(2));
    click(control("picFoto"));
    EXPECT_EQ(run.recorded.photos.photoIds, (std::vector<std::int16_t>{7, 9, 11}));
    EXPECT_EQ(run.recorded.photos.startPosition, 1);
    EXPECT_FALSE(run.recorded.photos.slideShow);
    key(Qt::Key_Space);
    EXPECT_TRUE(run.recorded.photos.slideShow);
    EXPECT_EQ(run.recorded.photos.slideInterval, 4000);
    click(button("imgBtnHlavni(0)"));
    ASSERT_EQ(run.recorded.printEntries.size(), 3u);
    EXPECT_EQ(run.recorded.printEntries[2].item, 11);
    EXPECT_EQ(run.recorded.printEntries[2].text, u"Recept 011"_s);
}

TEST_F(SeznamTest, GoingBackLandsWhereTheUserWas) {
    open("", "recepty");
    key(Qt::Key_Down);
    key(Qt::Key_PageDown);
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    frmSeznam* first = list;
    const int top = first->pages().top(), place = first->pages().selectedRow();
    Form* recipe = run.openAbove("frmRecept");
    open("", "Help");
    key(Qt::Key_End);
    EXPECT_EQ(first->pages().top(), top) << "the list below is another one";
    list->goBack();
    run.PopScreen(*recipe);
    list = first;
    EXPECT_EQ(list->pages().top(), top);
    EXPECT_EQ(list->pages().selectedRow(), place);
    EXPECT_TRUE(wineShows());
    EXPECT_TRUE(button("imgBtn(1)")->hasFocus());
    key(Qt::Key_Down);
    EXPECT_EQ(list->pages().selectedRow(), place + 1);
}

TEST_F(SeznamTest, AnEmptyListAndAClosedDatabaseAreHarmless) {
    open("5", "recepty");
    EXPECT_EQ(list->pages().count(), 0);
    for (const Qt::Key pressed : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Space})
        key(pressed);
    type('k');
    wheel(list, 1);
    key(Qt::Key_Return);
    EXPECT_EQ(run.messages.size(), 1);
    list->goBack();
    run.database.Close();
    open("", "RychleRecepty");
    key(Qt::Key_Down);
    EXPECT_EQ(selected(), -1);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
