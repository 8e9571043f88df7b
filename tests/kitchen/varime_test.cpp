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
        auto* screen = new frmVarime(run_, run_.file(), [this](const QString& name, int seconds) {
            started_ << u"%1: %2"_s.arg(name).arg(seconds);
        });
        EXPECT_TRUE(screen->Zobraz(5, serving, kDay));
        return *screen;
    }
    static QString text(const Form& form, const char* label) {
        QString text = child<Label>(form, label)->text();
        return text.replace(QChar(QChar::Nbsp), u' ');
    }

    KitchenRun run_;
    QStringList started_;
};

TEST_F(VarimeTest, GoesThroughTheStepsByTheKeysOfTheStove) {
    frmVarime& screen = open({4, UnitSystem::Weights});
    EXPECT_EQ(screen.pageCount(), 5);
    EXPECT_EQ(screen.shown().kind, CookingPage::Kind::Ready);
    press(screen, Qt::Key_Space);  // ticks the first ingredient
    EXPECT_EQ(screen.page(), 0);
    EXPECT_TRUE(child<TickList>(screen, "picSuroviny")->rows()[1].ticked);
    press(screen, Qt::Key_Return);
    EXPECT_EQ(text(screen, "lblKrok"), u"Krok 1 z 2 · 4 porce"_s);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Right, Qt::Key_PageDown}) press(screen, key);
    EXPECT_EQ(screen.shown().kind, CookingPage::Kind::Done);
    press(screen, Qt::Key_Right);  // there is no further
    EXPECT_EQ(screen.page(), 4);
    press(screen, Qt::Key_Backspace);
    const QPointer<QWidget> at = run_.window.focusWidget();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Down}) press(screen, key);
    EXPECT_EQ(run_.window.focusWidget(), at) << "an arrow turns the page and nothing else";
    EXPECT_EQ(screen.page(), 2);
    QTest::mouseClick(child(screen, "imgPapir"), Qt::LeftButton);
    EXPECT_EQ(screen.page(), 3);
}

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

TEST_F(VarimeTest, EachStepNamesItsShareForThePortionsAndUnits) {
    frmVarime& screen = open({6, UnitSystem::Spoons});
    EXPECT_EQ(text(screen, "lblSuroviny"), u"pekáč"_s);
    press(screen, Qt::Key_Return);
    EXPECT_EQ(text(screen, "lblSuroviny"), u"kapr – 1800 g\nsůl"_s);
    press(screen, Qt::Key_Space);
    EXPECT_EQ(text(screen, "lblSuroviny"), u"máslo – 3 lžíce"_s);
    EXPECT_EQ(text(screen, "lblKrok"), u"Krok 2 z 2 · 6 porcí"_s);
    press(screen, Qt::Key_Space);
    EXPECT_EQ(text(screen, "lblKrok"), u"Na stůl · 6 porcí"_s);
}

TEST_F(VarimeTest, ATimeInTheStepStartsATimerWithItsName) {
    frmVarime& screen = open({});
    press(screen, Qt::Key_1);  // nothing to start while getting ready
    press(screen, Qt::Key_Return);
    EXPECT_TRUE(child(screen, "cmdCas(0)")->isVisible());
    EXPECT_FALSE(child(screen, "cmdCas(1)")->isVisible());
    press(screen, Qt::Key_1);
    press(screen, Qt::Key_2);
    QTest::mouseClick(child(screen, "cmdCas(0)"), Qt::LeftButton);
    EXPECT_EQ(started_, QStringList(2, u"Krok 1, Kapr na kmíně: 900"_s));
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
