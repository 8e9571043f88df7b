#include "forms/readaloud.h"

#include <gtest/gtest.h>

#include "forms/checkbox.h"
#include "forms/entrylist.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/textview.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

class ReadAloudTest : public testing::Test {
  protected:
    void press(int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&form, &event);
    }
    void pass(int milliseconds) {
        Timer& timer = sarne.reader.duck().timer();
        for (int i = 0; i < milliseconds && timer.isEnabled(); i += timer.interval()) timer.fire();
    }

    FakeSarne sarne;
    Form& form = *new Form(sarne, QStringLiteral("frmText"));
};

TEST_F(ReadAloudTest, WrappedLinesRunOnAndListsAreReadAsFarAsTheyShow) {
    TextView text(form, QStringLiteral("picText"));
    text.place({100, 100, 1500, 4000});
    text.drawRichText(QStringLiteral("{\\rtf1\\plain Podkovy osolíme a necháme stát.\\par Pečeme.}"));
    EntryList list(form, QStringLiteral("lstSeznam"), QAccessible::List);
    list.place({100, 5000, 5000, 1000});
    list.setEntries(
        2,
        [](int row) {
            return AccessiblePart{row == 0 ? u"Kapr"_s : u"Lín"_s, {}, QRect(0, 0, 9, row == 0 ? 9 : 0)};
        },
        {});
    OptionButton choice(form, QStringLiteral("opt"));
    choice.place({100, 7000, 5000, 400});
    choice.setCaption(QStringLiteral("150 %"));
    form.showForm();
    ASSERT_GT(text.readable().lines().size(), 2U);
    EXPECT_EQ(form.textToRead(), QStringLiteral("Podkovy osolíme a necháme stát.\nPečeme.\nKapr\n150 %"));
}

TEST_F(ReadAloudTest, TheMusicStepsBackUntilTheTextHasEnded) {
    sarne.speech.find();
    sarne.reader.read(QStringLiteral("Kapr"));
    pass(60000);
    EXPECT_NEAR(sarne.player.decibels, -10, 0.01);
    sarne.speech.end();
    EXPECT_FALSE(sarne.reader.isReading());
    pass(2000);
    EXPECT_EQ(sarne.player.decibels, 0);
}

TEST_F(ReadAloudTest, TheKeyAndAnotherScreenStopIt) {
    Label label(form, u"lblText"_s);
    label.setText(u"Kapr"_s);
    sarne.PushScreen(form);
    form.showForm();
    press(Qt::Key_F9);
    EXPECT_FALSE(sarne.reader.isOffered() || sarne.reader.isReading()) << "there is no voice yet";
    EXPECT_FALSE(sarne.reader.duck().timer().isEnabled()) << "the music plays on";
    sarne.speech.find();
    EXPECT_TRUE(sarne.reader.isReading());
    press(Qt::Key_F9);
    EXPECT_EQ(sarne.speech.stops, 1);
    sarne.reader.read(u"Kapr"_s);
    sarne.PushScreen(*new Form(sarne, u"frmDalsi"_s));
    EXPECT_EQ(sarne.speech.stops, 2);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
