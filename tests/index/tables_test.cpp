#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QSet>
#include <QTest>

#include "cookbook.h"
#include "forms/button.h"
#include "forms/textview.h"
#include "screens/index/frmsponzor.h"
#include "screens/index/frmtabulky.h"
#include "support/wheel.h"

namespace sarne {
namespace {

class TablesTest : public testing::Test {
  protected:
    static QStringList content() {
        QStringList all;
        int id = 0;
        for (const char* letter : {"A", "B", "Č", "H", "Ch", "S"}) {
            for (int i = 0; i < 9; ++i)
                all << Cookbook::keyword(++id, u"%1slovo %2"_s.arg(QString::fromUtf8(letter)).arg(i),
                                         u"Text."_s);
        }
        all << u"INSERT INTO Tabulky VALUES (3, 'Ryby', 'Ryba\tMíra', 'Podle vyhlášky.')"_s
            << u"INSERT INTO RadkyTabulek VALUES (1, 3, 7, 'Kapr\t40 cm')"_s
            << u"INSERT INTO RadkyTabulek VALUES (2, 3, 0, 'Sleď\tbez míry')"_s;
        return all;
    }

    Cookbook book{content()};
    FakeSarne& run = book.run;
    FrmTabulky* form = nullptr;

    void show(std::int16_t item) {
        form = new FrmTabulky(run);
        ASSERT_TRUE(form->Zobraz(item));
    }
    TableView& table() { return *child<TableView>(*form, "picTabulka"); }
    void press(Qt::Key key) { QTest::keyClick(run.window.focusWidget(), key); }
    QString position() { return child<Label>(*form, "lblPozice")->text(); }
    QString selected() { return table().accessibleValue().section(u',', 0, 0); }
    void clickCell(int row, int column) {
        QTest::mouseClick(&table(), Qt::LeftButton, {},
                          table().toPixels(table().cellRect(row, column).center()));
    }
    Button* letter(const char* caption) {
        for (Button* button : form->findChildren<Button*>()) {
            if (button->caption() == QString::fromUtf8(caption)) return button;
        }
        return nullptr;
    }
};

TEST_F(TablesTest, LettersJumpByKeyAndMouse) {
    show(kKeywordIndexItem);
    QTest::keyClick(&table(), Qt::Key_H, Qt::NoModifier);
    EXPECT_EQ(selected(), u"Hslovo 0"_s);
    ASSERT_TRUE(letter("Ch"));
    QTest::mouseClick(letter("Ch"), Qt::LeftButton);
    EXPECT_EQ(selected(), u"Chslovo 0"_s);
    QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, u"č"_s);
    QApplication::sendEvent(&table(), &typed);
    EXPECT_EQ(selected(), u"Čslovo 0"_s);
    QTest::keyClick(&table(), Qt::Key_Z);
    EXPECT_EQ(selected(), u"Čslovo 0"_s) << "no keyword begins with it";
    EXPECT_EQ(letter("Z"), nullptr);
    QTest::keyClick(&table(), Qt::Key_X);
    EXPECT_EQ(run.exits, 1);
    QTest::keyClick(&table(), Qt::Key_C);
    EXPECT_TRUE(book.callerIsOnTop());
}

TEST_F(TablesTest, OnlyTheNameOfARowWithAKeywordIsALink) {
    show(3);
    clickCell(0, 1);
    EXPECT_EQ(position(), u"1 z 2"_s);
    clickCell(1, 0);
    EXPECT_EQ(selected(), u"Sleď"_s);
    EXPECT_EQ(run.recorded.calls, QStringList());
    press(Qt::Key_Return);
    EXPECT_EQ(run.beeps, 1) << "no keyword to open";
    clickCell(0, 0);
    EXPECT_EQ(run.recorded.calls, QStringList{u"showIndex 7"_s});
    QTest::mouseDClick(&table(), Qt::LeftButton, {}, table().toPixels(table().cellRect(0, 1).center()));
    EXPECT_EQ(run.recorded.calls.size(), 2);
}

TEST_F(TablesTest, ATablePrintsAndAMissingOneDoesNotOpen) {
    show(3);
    press(Qt::Key_Left);
    const auto* note = child<Label>(*form, "lblPoznamka");
    EXPECT_EQ(note->text(), u"Podle vyhlášky."_s);
    EXPECT_TRUE(form->rect().contains(note->geometry()));
    EXPECT_GT(note->geometry().top(), child<Label>(*form, "lblTitul")->geometry().bottom());
    EXPECT_LE(note->geometry().bottom(), table().geometry().top());
    child<Button>(*form, "imgBtnHlavni(0)")->click();
    EXPECT_EQ(run.recorded.calls, QStringList{u"printText Ryby"_s});
    EXPECT_TRUE(run.recorded.printedText.contains(u"40 cm"_s));
    EXPECT_FALSE((new FrmTabulky(run))->Zobraz(99));
    EXPECT_FALSE((new FrmTabulky(run))->Zobraz(-1));
    EXPECT_EQ(book.top(), form);
}

TEST_F(TablesTest, AnEmptyIndexIsUsable) {
    Cookbook empty({});
    auto* screen = new FrmTabulky(empty.run);
    ASSERT_TRUE(screen->Zobraz(kKeywordIndexItem));
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_PageUp, Qt::Key_Return, Qt::Key_A})
        QTest::keyClick(screen, key);
    EXPECT_EQ(empty.run.recorded.calls, QStringList());
    QTest::keyClick(screen, Qt::Key_Escape);
    EXPECT_TRUE(empty.callerIsOnTop());
}

class GalleryTest : public testing::Test {
  protected:
    static QStringList content() {
        return {
            Cookbook::picture(9, 9, u"Ryby"_s),
            Cookbook::picture(91, 9, u"Mořské ryby"_s),
            Cookbook::picture(1, 1, u"O kuchařce"_s),
            Cookbook::area(9, {100, 150, 200, 150}, u"Kapr"_s, {}, u"*12"_s),
            Cookbook::area(9, {400, 150, 200, 150}, u"Kuchání"_s, {}, u"@3"_s),
            Cookbook::area(9, {100, 450, 200, 150}, u"Do moře"_s, {}, u">91"_s),
            Cookbook::area(9, {400, 450, 200, 150}, u"Kámen"_s, {}, u"#"_s),
            Cookbook::area(9, {-500, 0, 100, 100}, u"Mimo"_s, {}, u"*1"_s),
            Cookbook::area(1, {10, 100, 200, 800}, u"Fotografie"_s,
                           test::rtf(u"Fotografie\\par\r\n\\par\r\nFotografie k receptům, *5 kapr*. "_s), {}),
            Cookbook::area(1, {300, 300, 300, 300}, u"Hlas"_s, test::rtf(u"Hlas."_s), {}),
            Cookbook::area(1, {850, 300, 100, 100}, u"Nic"_s, {}, {})};
    }

    Cookbook book{content()};
    FakeSarne& run = book.run;
    frmSponzor* form = nullptr;

    void show(std::int16_t topic, const char* text = "") {
        form = new frmSponzor(run);
        ASSERT_TRUE(form->Zobraz(topic, QString::fromUtf8(text)));
    }
    AreaButton* area(int i) { return form->findChild<AreaButton*>(u"lblOblast(%1)"_s.arg(i)); }
    void click(int i) { QTest::mouseClick(area(i), Qt::LeftButton); }
    void press(Qt::Key key) { QTest::keyClick(run.window.focusWidget(), key); }
    QString focused() {
        auto* one = qobject_cast<AreaButton*>(run.window.focusWidget());
        return one ? one->caption() : QString();
    }
    QString title() { return child<Label>(*form, "lblTitul")->text(); }
};

TEST_F(GalleryTest, AreasLeadWhereTheySay) {
    show(9);
    EXPECT_EQ(form->findChildren<AreaButton*>().size(), 4) << "what lies outside the picture is none";
    EXPECT_EQ(area(0)->twips(), QRect(1200, 1350, 2400, 1350));
    click(0);
    click(1);
    EXPECT_EQ(run.recorded.calls, (QStringList{u"showIndex 12"_s, u"showVideo 3"_s}));
    click(3);
    EXPECT_EQ(run.beeps, 1);
    click(2);
    EXPECT_EQ(title(), u"Mořské ryby"_s);
    EXPECT_EQ(child<Label>(*form, "lblPozice")->text(), u"2 z 2"_s);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(form->findChildren<AreaButton*>().isEmpty());
    press(Qt::Key_PageDown);
    EXPECT_EQ(title(), u"Ryby"_s) << "the pictures go round";
    EXPECT_FALSE(form->cardIsOpen());
}

TEST_F(GalleryTest, TheKeyboardReachesEveryArea) {
    show(9);
    QSet<QString> byTab;
    for (int i = 0; i < 12; ++i) {
        byTab << focused();
        press(Qt::Key_Tab);
    }
    EXPECT_TRUE(byTab.contains({u"Kapr"_s, u"Kuchání"_s, u"Do moře"_s, u"Kámen"_s}));
    area(0)->setFocus();
    QStringList byArrow;
    for (Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Left, Qt::Key_Up}) {
        press(key);
        byArrow << focused();
    }
    EXPECT_EQ(byArrow.join(u' '), u"Kuchání Kámen Do moře Do moře Kapr"_s);
    press(Qt::Key_Space);
    EXPECT_EQ(run.recorded.calls, QStringList{u"showIndex 12"_s});
}

TEST_F(GalleryTest, ATextOpensOnACardAndClosesBackToItsArea) {
    show(1);
    click(0);
    ASSERT_TRUE(form->cardIsOpen());
    auto* card = child<TextView>(*form, "picText");
    EXPECT_TRUE(card->drawnText().contains(u"Fotografie k"_s));
    EXPECT_FALSE(area(1)->isVisible()) << "nothing shows through the card";
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(run.recorded.calls, QStringList{u"showIndex 5"_s});
    press(Qt::Key_Escape);
    EXPECT_FALSE(form->cardIsOpen());
    EXPECT_EQ(focused(), u"Fotografie"_s);
    EXPECT_EQ(book.top(), form);

    click(1);
    EXPECT_TRUE(card->drawnText().startsWith(u"Hlas."_s));
    QTest::mouseClick(child<Button>(*form, "imgZavri"), Qt::LeftButton);
    EXPECT_FALSE(form->cardIsOpen());
    EXPECT_EQ(book.top(), form);
    click(1);
    QTest::mouseClick(form, Qt::LeftButton, {}, form->toPixels({11700, 6000}));
    EXPECT_FALSE(form->cardIsOpen()) << "a click beside the card closes it";
    click(2);
    EXPECT_FALSE(form->cardIsOpen());
    EXPECT_EQ(run.beeps, 1);
    press(Qt::Key_Escape);
    EXPECT_TRUE(book.callerIsOnTop());
}

TEST_F(GalleryTest, OpensAtTheWantedPictureOrTheFirst) {
    const struct {
        std::int16_t topic;
        const char* text;
        const char* title;
    } cases[] = {{9, "", "Ryby"}, {9, "91", "Mořské ryby"}, {9, "1", "Ryby"}, {9, "x", "Ryby"}};
    for (const auto& c : cases) {
        show(c.topic, c.text);
        EXPECT_EQ(title(), QString::fromUtf8(c.title)) << c.text;
        run.PopScreen(*form);
    }
    EXPECT_FALSE((new frmSponzor(run))->Zobraz(13, {}));
    EXPECT_TRUE(book.callerIsOnTop());
}

TEST_F(GalleryTest, APicturePrintsAsItsTexts) {
    show(1);
    child<Button>(*form, "imgBtnHlavni(0)")->click();
    EXPECT_EQ(run.recorded.calls, QStringList{u"printText O kuchařce"_s});
    EXPECT_EQ(run.recorded.printedText.count(u"Fotografie"_s), 2) << "a card's heading is its name";
    EXPECT_FALSE(run.recorded.printedText.contains(u'@') || run.recorded.printedText.contains(u'*'));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
