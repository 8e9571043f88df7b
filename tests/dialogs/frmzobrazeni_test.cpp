#include "dialogs/frmzobrazeni.h"

#include <gtest/gtest.h>

#include "forms/checkbox.h"
#include "support/onascreen.h"

namespace sarne {
namespace {

using ZobrazeniTest = test::OnAScreen;

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
