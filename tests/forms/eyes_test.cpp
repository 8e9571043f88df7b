#include "forms/eyes.h"

#include <gtest/gtest.h>

#include "forms/button.h"
#include "forms/label.h"
#include "forms/largertext.h"
#include "support/onascreen.h"

namespace sarne {
namespace {

using EyesTest = test::OnAScreen;

TEST_F(EyesTest, ADialogGrowsWithItsTextsAsFarAsTheDisplayGoes) {
    const struct {
        QRect place;
        QSize pixels;
    } cases[] = {{{3000, 3000, 6000, 3000}, {600, 300}},   // half as large again
                 {{6000, 6000, 6000, 3000}, {600, 300}},   // whole, also from a corner
                 {{1500, 1500, 10000, 6000}, {800, 480}},  // as wide as the display
                 {{0, 0, 12000, 9000}, {800, 600}}};
    for (const auto& c : cases) {
        Form dialog(sarne, u"frmMessage"_s);
        dialog.place(c.place);
        Button button(dialog, u"cmdBtn(0)"_s);
        button.place({300, 300, 1500, 600});
        eyes.setTextPercent(150);
        EXPECT_EQ(dialog.size(), c.pixels);
        EXPECT_TRUE(sarne.window.rect().contains(dialog.geometry()));
        const double twip = double(c.pixels.width()) / c.place.width();
        EXPECT_NEAR(button.width(), 1500 * twip, 1) << "all within it is as much larger";
        EXPECT_NEAR(button.toTwips(button.rect().center()).x(), 750, 30);
        eyes.setTextPercent(100);
        EXPECT_EQ(dialog.size(), c.place.size() / 15);
    }
}

TEST_F(EyesTest, ATextGrowsAsFarAsItsRoomAndNeverShrinks) {
    const TextFont font{u"Arial"_s, 12};
    const QString text = u"Nákupní seznam"_s;
    const QSize designed = Label::measure(text, font), larger = Label::measure(text, {font.name, 18});
    const auto grown = [&](QSize room, int flags = 0) {
        return RoomToGrow().of(font, 1.5, text, room, flags);
    };
    EXPECT_EQ(grown(larger), 1.5);
    EXPECT_EQ(grown(designed), 1);
    EXPECT_EQ(grown({100, 100}), 1);
    const double some = grown({larger.width() * 9 / 10, larger.height()});
    EXPECT_GT(some, 1.2);
    EXPECT_LT(some, 1.5);
    EXPECT_EQ(grown({larger.width() * 3 / 4, 3 * larger.height()}, Qt::TextWordWrap), 1.5);
}

TEST_F(EyesTest, EveryChangeIsToldOnce) {
    int told = 0;
    QObject::connect(&eyes, &Eyes::changed, [&told] { ++told; });
    const auto percents = [&](std::initializer_list<int> asked) {
        QStringList got;
        for (const int percent : asked) {
            eyes.setTextPercent(percent);
            got << QString::number(eyes.textPercent());
        }
        return got.join(u' ');
    };
    EXPECT_EQ(percents({90, 110, 113, 137, 138, 999}), u"100 100 125 125 150 150"_s);
    EXPECT_EQ(told, 2);
    EXPECT_FALSE(eyes.stepText(1));
    EXPECT_TRUE(eyes.stepText(-1));
    EXPECT_EQ(eyes.textPercent(), 125);
    for (const bool is : {true, true, false}) {
        eyes.setCalm(is);
        eyes.setContrast(is);
        EXPECT_EQ(eyes.isCalm() && eyes.hasContrast(), is);
    }
    EXPECT_EQ(told, 3 + 4);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
