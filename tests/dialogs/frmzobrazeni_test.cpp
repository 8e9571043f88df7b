#include "dialogs/frmzobrazeni.h"

#include <gtest/gtest.h>
#include <QKeyEvent>

#include "forms/checkbox.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

class ZobrazeniTest : public testing::Test {
  protected:
    void press(QWidget& form, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&form, &event);
    }

    FakeSarne sarne;
    Form& screen = *new Form(sarne, u"frmStranka"_s);
    Eyes& eyes = sarne.window.eyes();
};

TEST_F(ZobrazeniTest, EveryChoiceHoldsAtOnceByKeyboardAlone) {
    sarne.PushScreen(screen);
    screen.showForm();
    auto* form = new frmZobrazeni(sarne);
    form->Zobraz();
    press(*form, Qt::Key_Right);
    press(*form, Qt::Key_Right);
    press(*form, Qt::Key_Space);
    EXPECT_EQ(eyes.textPercent(), 150);
    press(*form, Qt::Key_Down);
    press(*form, Qt::Key_Space);
    press(*form, Qt::Key_Down);
    press(*form, Qt::Key_Space);
    EXPECT_TRUE(eyes.isCalm());
    EXPECT_TRUE(eyes.hasContrast());
    press(*form, Qt::Key_Escape);
    EXPECT_EQ(sarne.FormStack.top(), &screen);
    auto* again = new frmZobrazeni(sarne);
    again->Zobraz();
    EXPECT_TRUE(child<CheckBox>(*again, "optVelikost(2)")->isChecked());
    EXPECT_TRUE(child<CheckBox>(*again, "chkKontrast")->isChecked());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
