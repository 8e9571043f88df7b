#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QTest>

#include "cookbook.h"
#include "forms/button.h"
#include "screens/index/frmtabulky.h"

namespace sarne {
namespace {

QString u(const char* text) {
    return QString::fromUtf8(text);
}

class TablesTest : public testing::Test {
  protected:
    static QStringList content() {
        QStringList all;
        int id = 0;
        for (const char* letter : {"A", "B", "Č", "H", "Ch", "S"}) {
            for (int i = 0; i < 9; ++i)
                all << Cookbook::keyword(++id, QStringLiteral("%1slovo %2").arg(u(letter)).arg(i),
                                         u("Text."));
        }
        all << u("INSERT INTO Tabulky VALUES (3, 'Ryby', 'Ryba\tMíra', 'Podle vyhlášky.')")
            << u("INSERT INTO RadkyTabulek VALUES (1, 3, 7, 'Kapr\t40 cm')")
            << u("INSERT INTO RadkyTabulek VALUES (2, 3, 0, 'Sleď\tbez míry')");
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
            if (button->caption() == u(caption)) return button;
        }
        return nullptr;
    }
};

TEST_F(TablesTest, KeysGoThroughTheIndex) {
    show(kKeywordIndexItem);
    EXPECT_EQ(position(), QString());
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(position(), u("2 z 54"));
    EXPECT_EQ(run.announced.last(), table().accessibleValue());
    press(Qt::Key_PageDown);
    EXPECT_GT(table().rows().top(), 0);
    press(Qt::Key_End);
    EXPECT_EQ(selected(), u("Sslovo 8"));
    EXPECT_FALSE(table().rowRect(53).isEmpty());
    press(Qt::Key_Home);
    EXPECT_EQ(selected(), u("Aslovo 0"));
    press(Qt::Key_Return);
    EXPECT_EQ(run.recorded.calls, QStringList{u("showIndex 1")});
}

TEST_F(TablesTest, LettersJumpByKeyAndMouse) {
    show(kKeywordIndexItem);
    QTest::keyClick(&table(), Qt::Key_H, Qt::NoModifier);
    EXPECT_EQ(selected(), u("Hslovo 0"));
    ASSERT_TRUE(letter("Ch"));
    QTest::mouseClick(letter("Ch"), Qt::LeftButton);
    EXPECT_EQ(selected(), u("Chslovo 0"));
    QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, u("č"));
    QApplication::sendEvent(&table(), &typed);
    EXPECT_EQ(selected(), u("Čslovo 0"));
    QTest::keyClick(&table(), Qt::Key_Z);
    EXPECT_EQ(selected(), u("Čslovo 0")) << "no keyword begins with it";
    EXPECT_EQ(letter("Z"), nullptr);
    QTest::keyClick(&table(), Qt::Key_X);
    EXPECT_EQ(run.exits, 1);
    QTest::keyClick(&table(), Qt::Key_C);
    EXPECT_TRUE(book.callerIsOnTop());
}

TEST_F(TablesTest, TheKeyboardReachesEveryLetter) {
    show(kKeywordIndexItem);
    QStringList reached;
    for (int i = 0; i < 6; ++i) {
        press(Qt::Key_Right);
        reached << qobject_cast<Button*>(run.window.focusWidget())->caption();
    }
    EXPECT_EQ(reached.join(u' '), u("A B Č H Ch S"));
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), u("Sslovo 0"));
    press(Qt::Key_Right);
    EXPECT_EQ(run.window.focusWidget(), child(*form, "imgBtnHlavni(0)"));
}

TEST_F(TablesTest, AClickAnywhereInARowOfTheIndexOpensIt) {
    show(kKeywordIndexItem);
    clickCell(2, 1);
    EXPECT_EQ(run.recorded.calls, QStringList{u("showIndex 3")});
    EXPECT_EQ(position(), u("3 z 54"));
}

TEST_F(TablesTest, ArrowsScrollByARowAndByHalfAPage) {
    show(kKeywordIndexItem);
    const auto arrow = [this](int i) {
        QTest::mouseClick(form->findChild<Button*>(QStringLiteral("imgSipky(%1)").arg(i)), Qt::LeftButton);
        return table().rows().top();
    };
    EXPECT_EQ(arrow(0), 1);
    const int half = arrow(3) - 1;
    EXPECT_EQ(half, table().halfPage());
    EXPECT_EQ(arrow(1), half);
    EXPECT_EQ(arrow(2), 0);
    EXPECT_EQ(table().rows().selected(), RowPaging::kNone) << "scrolling selects nothing";
    show(3);
    EXPECT_FALSE(child(*form, "imgSipky(0)")->isVisible()) << "everything is seen";
}

TEST_F(TablesTest, OnlyTheNameOfARowWithAKeywordIsALink) {
    show(3);
    clickCell(0, 1);
    EXPECT_EQ(position(), u("1 z 2"));
    clickCell(1, 0);
    EXPECT_EQ(selected(), u("Sleď"));
    EXPECT_EQ(run.recorded.calls, QStringList());
    press(Qt::Key_Return);
    EXPECT_EQ(run.beeps, 1) << "no keyword to open";
    clickCell(0, 0);
    EXPECT_EQ(run.recorded.calls, QStringList{u("showIndex 7")});
    QTest::mouseDClick(&table(), Qt::LeftButton, {}, table().toPixels(table().cellRect(0, 1).center()));
    EXPECT_EQ(run.recorded.calls.size(), 2);
}

TEST_F(TablesTest, ATablePrintsAndAMissingOneDoesNotOpen) {
    show(3);
    press(Qt::Key_Left);
    const auto* note = child<Label>(*form, "lblPoznamka");
    EXPECT_EQ(note->text(), u("Podle vyhlášky."));
    EXPECT_TRUE(form->rect().contains(note->geometry()));
    EXPECT_GT(note->geometry().top(), child<Label>(*form, "lblTitul")->geometry().bottom());
    EXPECT_LE(note->geometry().bottom(), table().geometry().top());
    child<Button>(*form, "imgBtnHlavni(0)")->click();
    EXPECT_EQ(run.recorded.calls, QStringList{u("printText Ryby")});
    EXPECT_TRUE(run.recorded.printedText.contains(u("40 cm")));
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

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
