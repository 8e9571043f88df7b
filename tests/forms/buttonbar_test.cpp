#include "forms/buttonbar.h"

#include <gtest/gtest.h>

#include <QTest>

#include "forms/form.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

constexpr BarFace kFaces[] = {barface::kPrint, {"Foto", "Foto", "Zobrazí foto"}, barface::kEnd};

class ButtonBarTest : public testing::Test {
  protected:
    FakeSarne run;
    QString pressed;
    struct Screen : Form {
        Screen(basSarne& run, QString& log) : Form(run, u"frmA"_s), pressed(log) {}
        void endProgram() override { pressed += u"end"_s; }
        QString& pressed;
    };
    Form* form = new Screen(run, pressed);
    ButtonBar bar{*form, u"imgBtn"_s, kFaces, [this](int i) { pressed += QString::number(i); }};
};

TEST_F(ButtonBarTest, ButtonsHaveNamesCaptionsTipsAndACommand) {
    ASSERT_EQ(bar.count(), 3);
    EXPECT_EQ(bar[1].objectName(), u"imgBtn(1)"_s);
    EXPECT_EQ(bar[1].caption(), u"Foto"_s);
    EXPECT_EQ(bar[1].accessibleName(), u"Zobrazí foto"_s);
    EXPECT_EQ(bar[2].toolTip(), u"Konec"_s);
    form->showForm();
    bar.placeRow({0, 0, 3000, 1000});
    for (const int i : {1, 2, 0}) QTest::mouseClick(&bar[i], Qt::LeftButton);
    EXPECT_EQ(pressed, u"1end0"_s) << "what every form can do needs no command";
}

TEST_F(ButtonBarTest, AFaceFillsSixtyPercentOfItsSquareAndLeavesRoomForTheCaption) {
    bar.placeRow({0, 0, 3000, 1200});
    const QRect frame = bar[0].framePlace(), face = bar[0].facePlace();
    EXPECT_EQ(frame.width(), frame.height());
    EXPECT_NEAR(double(face.width()) * face.height() / (double(frame.width()) * frame.height()), .6, .01);
    EXPECT_EQ(frame.center().x(), bar[0].twips().width() / 2 - 1);
    EXPECT_LE(frame.bottom(), 1200 - 400);
}

TEST_F(ButtonBarTest, ShownButtonsShareTheRowAndTabReadsThem) {
    bar[1].hide();
    bar.placeRow({600, 300, 3000, 1000});
    EXPECT_EQ(bar[0].twips(), QRect(600, 300, 1500, 1000));
    EXPECT_EQ(bar[2].twips(), QRect(2100, 300, 1500, 1000));
    bar[0].place({600, 2000, 1000, 1000});
    bar[1].place({0, 2000, 500, 1000});
    EXPECT_EQ(bar.stops(), (std::vector<TwipWidget*>{&bar[2], &bar[1], &bar[0]}));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
