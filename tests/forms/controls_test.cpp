#include <gtest/gtest.h>

#include <QTest>
#include <QWheelEvent>

#include "forms/checkbox.h"
#include "forms/form.h"
#include "forms/listbox.h"
#include "forms/progressbar.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

using Marks = std::vector<int>;

struct KeyForm : Form {
    explicit KeyForm(basSarne& run) : Form(run, QStringLiteral("frmKeys")) {}
    bool keyDown(QKeyEvent& event) override {
        keys << event.key();
        return true;
    }
    QList<int> keys;
};

class ListBoxTest : public testing::Test {
  protected:
    ListBoxTest() : list(*form, QStringLiteral("lstSeznam")) {
        list.place({600, 600, 3000, 10 * list.rowHeight() + 200});
        list.setMode(ListSelection::Mode::Several);
        for (int i = 0; i < 30; ++i) list.addItem(QStringLiteral("Kapr %1").arg(i), 100 + i);
        form->showForm();
        list.setFocus();
    }
    void key(int code, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&list, Qt::Key(code), modifiers);
    }
    void click(int row, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(&list, Qt::LeftButton, modifiers, list.toPixels(list.rowRect(row).center()));
    }
    Marks marked() const { return list.selection().marked(); }

    FakeSarne run;
    KeyForm* form = new KeyForm(run);
    ListBox list;
};

TEST_F(ListBoxTest, ShiftMarksRangesAndCtrlSingles) {
    click(2);
    EXPECT_EQ(marked(), Marks{2});
    click(5, Qt::ShiftModifier);
    EXPECT_EQ(marked(), (Marks{2, 3, 4, 5}));
    click(3, Qt::ShiftModifier);
    EXPECT_EQ(marked(), (Marks{2, 3}));
    click(7, Qt::ControlModifier);
    click(9, Qt::ShiftModifier | Qt::ControlModifier);
    click(8, Qt::ControlModifier);
    EXPECT_EQ(marked(), (Marks{2, 3, 7, 9}));
    EXPECT_EQ(list.listIndex(), 8);
    click(0);
    key(Qt::Key_Down, Qt::ShiftModifier);
    key(Qt::Key_Down, Qt::ControlModifier);
    key(Qt::Key_Down, Qt::ControlModifier);
    key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(marked(), (Marks{0, 1, 3}));
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(marked().size(), 30u);
}

TEST_F(ListBoxTest, TheCurrentEntryStaysInSight) {
    key(Qt::Key_End);
    EXPECT_EQ(list.listIndex(), 29);
    EXPECT_EQ(list.topIndex(), 20);
    key(Qt::Key_Down);
    EXPECT_EQ(list.listIndex(), 29);
    key(Qt::Key_PageUp);
    EXPECT_EQ(list.listIndex(), 20);
    key(Qt::Key_Home);
    EXPECT_EQ(list.topIndex(), 0);
    list.setMode(ListSelection::Mode::One);
    click(4);
    click(6, Qt::ShiftModifier);
    EXPECT_EQ(marked(), Marks{6});
}

TEST_F(ListBoxTest, TheScrollBarAndTheWheelMoveTheEntriesOnly) {
    click(3);
    const QPoint bar = list.toPixels({2900, list.twips().height() - 100});
    QTest::mouseClick(&list, Qt::LeftButton, {}, bar);
    EXPECT_EQ(list.topIndex(), 9);
    QTest::mousePress(&list, Qt::LeftButton, {}, list.toPixels({2900, list.twips().height() / 2}));
    QTest::mouseMove(&list, list.toPixels({2900, 3 * list.twips().height()}));
    QTest::mouseRelease(&list, Qt::LeftButton, {}, bar);
    EXPECT_EQ(list.topIndex(), 20);
    QWheelEvent up({5, 5}, list.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                   false);
    QCoreApplication::sendEvent(&list, &up);
    EXPECT_EQ(list.topIndex(), 17);
    EXPECT_EQ(list.listIndex(), 3);
}

TEST_F(ListBoxTest, LettersJumpWhateverTheirCaseAndAccents) {
    list.setItems({QStringLiteral("Candát"), QStringLiteral("Štika na másle"), QStringLiteral("Štika pečená"),
                   QStringLiteral("Úhoř")},
                  {1, 2, 3, 4});
    QTest::keyClicks(&list, QStringLiteral("s"));
    EXPECT_EQ(list.listIndex(), 1);
    QTest::keyClicks(&list, QStringLiteral("s"));
    EXPECT_EQ(list.listIndex(), 2);
    key(Qt::Key_Home);
    QTest::keyClicks(&list, QStringLiteral("STIKA p"));
    EXPECT_EQ(list.listIndex(), 2);
    key(Qt::Key_End);
    QTest::keyClicks(&list, QStringLiteral("cx"));
    EXPECT_EQ(list.listIndex(), 0);
    EXPECT_TRUE(form->keys.isEmpty()) << "a letter is no command while a list has the keyboard";
    key(Qt::Key_Return);
    EXPECT_EQ(form->keys, QList<int>{Qt::Key_Return});
}

TEST_F(ListBoxTest, RemovingKeepsMarksWithTheirEntries) {
    click(2);
    click(4, Qt::ControlModifier);
    list.removeItem(3);
    EXPECT_EQ(marked(), (Marks{2, 3}));
    EXPECT_EQ(list.itemData(list.listIndex()), 104);
    list.removeItem(3);
    EXPECT_EQ(list.listIndex(), -1);
    list.removeItem(77);
    EXPECT_EQ(list.listCount(), 28);
    EXPECT_EQ(list.indexOf(104), -1);
    list.scrollTo(99);
    list.clear();
    EXPECT_EQ(list.topIndex() + static_cast<int>(marked().size()), 0);
    key(Qt::Key_Down);
    click(0);
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_EQ(list.text(-1) + list.text(0), QString());
}

TEST(CheckBox, ClicksAndTheSpaceBarSwitch) {
    FakeSarne run;
    auto* form = new KeyForm(run);
    CheckBox box(*form, QStringLiteral("Chco(0)"));
    box.place({0, 0, 3000, 400});
    OptionButton first(*form, QStringLiteral("opt(0)")), second(*form, QStringLiteral("opt(1)"));
    OptionButton other(*form, QStringLiteral("optJ(0)"), 1);
    form->showForm();
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_TRUE(box.isChecked());
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_FALSE(box.isChecked());
    box.setEnabled(false);
    box.click();
    EXPECT_FALSE(box.isChecked());
    other.click();
    first.click();
    second.click();
    second.click();
    EXPECT_TRUE(second.isChecked() && other.isChecked());
    EXPECT_FALSE(first.isChecked());
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&second);
    ASSERT_TRUE(reader);
    EXPECT_EQ(reader->role(), QAccessible::RadioButton);
    EXPECT_TRUE(reader->state().checked);
}

TEST(ProgressBar, StaysWithinItsRange) {
    FakeSarne run;
    auto* form = new KeyForm(run);
    ProgressBar bar(*form, QStringLiteral("prgRecept"));
    bar.setMaximum(5);
    bar.setValue(-3);
    bar.advance();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&bar)->text(QAccessible::Value), QStringLiteral("20 %"));
    bar.setValue(100);
    bar.setMaximum(0);
    EXPECT_EQ(bar.value(), 1);
}

}  // namespace
}  // namespace sarne
