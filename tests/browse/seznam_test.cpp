#include "browse/browsefixture.h"
#include "forms/button.h"
#include "forms/label.h"
#include "screens/browse/frmseznam.h"

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
    frmRychlyRecept* quick() const { return run.window.findChild<frmRychlyRecept*>(); }

    Form* below = run.openAbove("frmHlavni");
    frmSeznam* list = nullptr;
};

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
    const QWidget* first = run.window.focusWidget();
    key(Qt::Key_Tab);
    EXPECT_NE(run.window.focusWidget(), first);
    list->Zobraz({}, u"recepty"_s);
    EXPECT_EQ(run.window.focusWidget(), first) << "another list begins anew";
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
