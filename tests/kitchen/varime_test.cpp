#include <gtest/gtest.h>

#include "kitchen/cooked.h"
#include "kitchenbook.h"
#include "screens/kitchen/frmvarime.h"

namespace sarne {
namespace {

const QDate kDay(2026, 10, 11);

class VarimeTest : public testing::Test {
  protected:
    frmVarime& open(const Serving& serving) {
        auto* screen = new frmVarime(run_, run_.file(), [](const QString&, int) {});
        EXPECT_TRUE(screen->Zobraz(5, serving, kDay));
        return *screen;
    }
    KitchenRun run_;
};

TEST_F(VarimeTest, LargerTextsTakeMorePagesAndTheStepStays) {
    frmVarime& screen = open({4, UnitSystem::Weights});
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Right}) press(screen, key);
    const CookingPage before = screen.shown();
    const int pages = screen.pageCount();
    const QPointer<QWidget> at = run_.window.focusWidget();
    run_.window.eyes().setTextPercent(150);
    EXPECT_GE(screen.pageCount(), pages);
    EXPECT_EQ(screen.shown().step, before.step);
    EXPECT_EQ(screen.shown().part, 0);
    EXPECT_EQ(run_.window.focusWidget(), at) << "whoever changes the size elsewhere keeps the keyboard";
    run_.window.eyes().setTextPercent(100);
    EXPECT_EQ(screen.pageCount(), pages);
}

TEST_F(VarimeTest, KeepsTheDisplayAwakeAndWhatWasCooked) {
    frmVarime& screen = open({4, UnitSystem::Weights});
    EXPECT_FALSE(run_.awake.last().isEmpty());
    press(screen, Qt::Key_Return);
    while (screen.shown().kind != CookingPage::Kind::Done) press(screen, Qt::Key_Space);
    press(screen, Qt::Key_Space);  // "Uvařeno!"
    EXPECT_EQ(cookedDays(run_.file(), 5).size(), 1u);
    press(screen, Qt::Key_Escape);
    EXPECT_TRUE(run_.awake.last().isEmpty());
    EXPECT_FALSE(run_.FormStack.contains(screen));
}

TEST_F(VarimeTest, AtTheEndALineGoesBelowTheNoteAndStarsAreGiven) {
    ASSERT_TRUE(run_.database.Execute(u"UPDATE Recepty SET Vlastni = 'méně soli ' WHERE ID = 5"_s));
    frmVarime& screen = open({4, UnitSystem::Weights});
    while (screen.shown().kind != CookingPage::Kind::Done) press(screen, Qt::Key_PageDown);
    child<Edit>(screen, "txtPoznamka")->focusAll();
    QTest::keyClicks(run_.window.focusWidget(), u"1 lahev piva"_s);
    press(screen, Qt::Key_Return);
    const QString line = u"Uvařeno 11. 10. 2026: 1 lahev piva"_s;
    const auto note = [this] {
        Recordset row = run_.database.OpenTable(u"Recepty"_s);
        return RecordExists(row, 5) ? row.field(u"Vlastni"_s).toString() : QString();
    };
    EXPECT_EQ(note(), u"méně soli\n"_s + line);
    EXPECT_EQ(cookedDays(run_.file(), 5).size(), 1u);
    // What was typed and not confirmed is not lost either.
    child<Edit>(screen, "txtPoznamka")->setText(u"a máslo"_s);
    EXPECT_TRUE(screen.readyToEnd());
    EXPECT_TRUE(note().endsWith(u": a máslo"_s));
    child<Edit>(screen, "txtPoznamka")->setText(u"a sůl"_s);
    screen.keepUnsaved();
    EXPECT_TRUE(note().endsWith(u": a sůl"_s));
    child<Edit>(screen, "txtPoznamka")->setText(u"a máslo"_s);
    child<StarRow>(screen, "picHvezdy")->setFocus();
    press(screen, Qt::Key_4);
    press(screen, Qt::Key_Escape);
    EXPECT_TRUE(note().endsWith(u": a máslo"_s));
    EXPECT_EQ(run_.recorded.calls.last(), u"giveStars 5 4"_s);
}

TEST_F(VarimeTest, ReadsOnFromStepToStepWhereThereIsAVoice) {
    frmVarime& screen = open({4, UnitSystem::Weights});
    EXPECT_FALSE(child(screen, "imgCist")->isVisible());
    press(screen, Qt::Key_F9);
    EXPECT_TRUE(run_.speech.said.isEmpty());
    run_.speech.find();
    EXPECT_TRUE(child(screen, "imgCist")->isVisible());
    EXPECT_EQ(run_.speech.said.size(), 1) << "what was asked for too early";
    press(screen, Qt::Key_F9);
    run_.speech.said.clear();
    press(screen, Qt::Key_Return);
    press(screen, Qt::Key_F9);
    press(screen, Qt::Key_Space);
    ASSERT_EQ(run_.speech.said.size(), 2);
    EXPECT_TRUE(run_.speech.said[0].contains(u"Kapra osolíme"_s));
    EXPECT_TRUE(run_.speech.said[1].contains(u"Polovinu másla"_s));
    press(screen, Qt::Key_F9);
    press(screen, Qt::Key_Left);
    EXPECT_EQ(run_.speech.said.size(), 2);
}

TEST_F(VarimeTest, ARecipeWithoutStepsIsNotShown) {
    for (const std::int16_t id : {std::int16_t{6}, std::int16_t{99}}) {
        auto* screen = new frmVarime(run_, run_.file(), {});
        EXPECT_FALSE(screen->Zobraz(id, {}, kDay));
        EXPECT_EQ(run_.FormStack.top(), nullptr);
    }
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
