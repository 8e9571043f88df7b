#include <gtest/gtest.h>

#include <QListView>
#include <QTest>

#include "forms/form.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

struct KeyForm : Form {
    explicit KeyForm(basSarne& run) : Form(run, u"frmKeys"_s) {}
    bool keyDown(QKeyEvent& event) override {
        keys << event.key();
        return true;
    }
    QList<int> keys;
};

TEST(ListBox, LettersJumpWhateverTheirCaseAndAccentsAndOtherKeysGoToTheForm) {
    FakeSarne run;
    auto* form = new KeyForm(run);
    ListBox list(*form, u"lstSeznam"_s);
    list.place({600, 600, 3000, 3000});
    list.setItems({u"Candát"_s, u"Štika na másle"_s, u"Štika pečená"_s, u"Úhoř"_s}, {1, 2, 3, 4});
    form->showForm();
    list.setFocus();
    EXPECT_EQ(list.listIndex(), -1) << "nothing is chosen for the user";
    QTest::keyClicks(&list.view(), u"s"_s);
    EXPECT_EQ(list.listIndex(), 1);
    QTest::keyClicks(&list.view(), u"s"_s);
    EXPECT_EQ(list.listIndex(), 2);
    list.view().keyboardSearch({});  // a pause
    list.setListIndex(0);
    QTest::keyClicks(&list.view(), u"STIKA p"_s);
    EXPECT_EQ(list.listIndex(), 2);
    EXPECT_EQ(list.marked(), std::vector<int>{2});
    EXPECT_TRUE(form->keys.isEmpty()) << "a letter is no command while a list has the keyboard";
    const QList<int> others{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab,
                            Qt::Key_Left,   Qt::Key_Right, Qt::Key_Delete, Qt::Key_F1,  Qt::Key_F12};
    for (const int key : others) QTest::keyClick(&list.view(), Qt::Key(key));
    EXPECT_EQ(form->keys, others);
    QTest::keyClick(&list.view(), Qt::Key_X, Qt::AltModifier);
    EXPECT_EQ(form->keys.last(), Qt::Key_X);
    int doubles = 0;
    QObject::connect(&list, &Control::doubleClicked, [&doubles] { ++doubles; });
    QTest::mouseDClick(list.view().viewport(), Qt::LeftButton, {}, {5, list.view().viewport()->height() - 5});
    EXPECT_EQ(doubles, 1) << "beside the entries, too";
    EXPECT_EQ(list.view().model()->index(1, 0).data(Qt::AccessibleDescriptionRole), u"2 z 4"_s);
    QTest::keyClick(&list.view(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list.marked().size(), 4u);
    list.setItems({}, {});
    QTest::keyClick(&list.view(), Qt::Key_Down);
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_TRUE(list.marked().empty() && list.text(0).isEmpty() && list.itemData(7) == 0);
}

TEST(Label, LightsUpOnlyUnderAMouseThatHasComeToIt) {
    FakeSarne run;
    KeyForm form(run);
    Label label(form, u"lblSeznam(1)"_s);
    label.place({300, 300, 1500, 450});
    label.setClickable(true);
    form.show();
    const auto ground = [&] { return form.grab().toImage().pixelColor(label.geometry().center()); };
    const QColor resting = ground();
    QEnterEvent appeared({5, 5}, {5, 5}, {5, 5});
    QApplication::sendEvent(&label, &appeared);
    EXPECT_EQ(ground(), resting) << "what appears below a resting mouse stays dark";
    QTest::mouseMove(&label, {6, 6});
    EXPECT_NE(ground(), resting);
    QEvent gone(QEvent::Leave);
    QApplication::sendEvent(&label, &gone);
    EXPECT_EQ(ground(), resting);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
