#include <gtest/gtest.h>

#include <QListView>
#include <QTest>

#include "forms/form.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

TEST(ListBox, TellsWhatIsMarkedAndIsEmptyWithoutEntries) {
    FakeSarne run;
    auto* form = new Form(run, u"frmA"_s);
    ListBox list(*form, u"lstSeznam"_s);
    list.setItems({u"Candát"_s, u"Štika na másle"_s}, {1, 2});
    form->showForm();
    EXPECT_EQ(list.listIndex(), -1) << "nothing is chosen for the user";
    EXPECT_EQ(list.view().model()->index(1, 0).data(Qt::AccessibleDescriptionRole), u"2 z 2"_s);
    list.setFocus();
    QTest::keyClicks(&list.view(), u"stika n"_s);
    EXPECT_EQ(list.marked(), std::vector<int>{1});
    QTest::keyClick(&list.view(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list.marked().size(), 2u);
    list.setItems({}, {});
    QTest::keyClick(&list.view(), Qt::Key_Down);
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_TRUE(list.marked().empty() && list.text(0).isEmpty() && list.itemData(7) == 0);
}

TEST(Label, LightsUpOnlyUnderAMouseThatHasComeToIt) {
    FakeSarne run;
    Form form(run, u"frmA"_s);
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
