#include "browse/browsefixture.h"
#include "forms/button.h"
#include "forms/holdrepeat.h"
#include "forms/label.h"
#include "screens/browse/frmseznam.h"
#include "screens/browse/frmseznam_layout.h"

namespace sarne {
namespace {

class SeznamTest : public BrowseTest {
  protected:
    frmSeznam& open(const char* ids, const char* source) {
        list = new frmSeznam(run);
        list->Zobraz(QString::fromLatin1(ids), QString::fromLatin1(source));
        return *list;
    }
    Button* button(const char* name) const { return list->findChild<Button*>(QString::fromLatin1(name)); }
    Label* row(int number) const { return list->findChild<Label*>(u"lblSeznam(%1)"_s.arg(number)); }
    bool wineShows() const { return child<Label>(*list, "lblVino")->isVisible(); }
    Timer& held(const char* arrow) const { return button(arrow)->findChild<HoldRepeat*>()->timer(); }
    frmRychlyRecept* quick() const { return run.window.findChild<frmRychlyRecept*>(); }

    Form* below = run.openAbove("frmHlavni");
    frmSeznam* list = nullptr;
};

TEST_F(SeznamTest, ArrowsScrollWhileTheyAreHeld) {
    open("", "recepty");
    const int last = kRecipes - seznam::kRows;
    QTest::mousePress(button("imgSipky(0)"), Qt::LeftButton);
    Timer& timer = held("imgSipky(0)");
    EXPECT_EQ(timer.interval(), 500);
    for (int tick = 0; tick < 100; ++tick) timer.fire();
    EXPECT_EQ(timer.interval(), 50);
    EXPECT_EQ(list->pages().top(), last);
    QTest::mouseRelease(button("imgSipky(0)"), Qt::LeftButton);
    EXPECT_FALSE(timer.isEnabled());
    QTest::mousePress(button("imgSipky(2)"), Qt::LeftButton);
    Form* over = run.openAbove("frmRecept");
    EXPECT_FALSE(held("imgSipky(2)").isEnabled()) << "a screen over the list ends it, too";
    run.PopScreen(*over);
    EXPECT_EQ(list->pages().top(), last);
}

TEST_F(SeznamTest, TheNextListShowsThePanelThatTheLastOneLeft) {
    frmSeznam::Panel panel = frmSeznam::Panel::Photo;
    list = new frmSeznam(run, &panel);
    list->Zobraz({}, u"recepty"_s);
    click(row(1));
    click(button("imgBtn(1)"));
    list->goBack();
    list = new frmSeznam(run, &panel);
    list->Zobraz({}, u"recepty"_s);
    EXPECT_FALSE(wineShows()) << "nothing is chosen";
    click(row(2));
    EXPECT_TRUE(wineShows());
}

TEST_F(SeznamTest, TheQuickRecipesWindowGivesTheKeyboardBack) {
    open("", "RychleRecepty");
    EXPECT_FALSE(quick()->isAncestorOf(run.window.focusWidget()));
    key(Qt::Key_Tab);
    click(row(2));
    quick()->setFocus();
    EXPECT_TRUE(button("imgBtn(2)")->hasFocus());
    click(quick());
    click(child(*quick(), "Picture1"));
    QTest::mouseMove(child(*quick(), "Picture1"), QPoint(5, 5));
    EXPECT_TRUE(button("imgBtn(2)")->hasFocus());
    Form* over = run.openAbove("frmNastavHudbu");
    over->place({3000, 2100, 4000, 4800});
    click(child(*quick(), "Picture1"));
    quick()->setFocus();
    EXPECT_EQ(run.window.focusForm(), over) << "also below another form";
    run.PopScreen(*over);
    list->goBack();
    EXPECT_EQ(run.window.forms(), std::vector<Form*>{below}) << "the window goes with the list";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
