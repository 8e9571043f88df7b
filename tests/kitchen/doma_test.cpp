#include <gtest/gtest.h>

#include "kitchenbook.h"
#include "screens/kitchen/frmdoma.h"

namespace sarne {
namespace {

class DomaTest : public testing::Test {
  protected:
    frmDoma& open() {
        auto* screen = new frmDoma(run_, run_.file());
        EXPECT_TRUE(screen->Zobraz());
        return *screen;
    }
    void type(frmDoma& screen, const char* word) {
        QTest::keyClicks(run_.window.focusWidget(), QString::fromUtf8(word));
        press(screen, Qt::Key_Return);
    }

    KitchenRun run_;
};

TEST_F(DomaTest, FindsByWhatIsTypedAndNamesWhatIsMissing) {
    frmDoma& screen = open();
    for (const char* word : {"KAP", "kap"}) type(screen, word);  // the second is there already
    type(screen, "mas");
    EXPECT_EQ(rows(screen, "picRecepty"), u"Kapr na kmíně/máte vše"_s);
    press(screen, Qt::Key_Tab);
    press(screen, Qt::Key_Return);  // nothing is selected yet
    EXPECT_EQ(run_.beeps, 1);
    press(screen, Qt::Key_Tab);
    press(screen, Qt::Key_Down);
    EXPECT_TRUE(run_.announced.last().startsWith(u"Kapr na kmíně"_s));
    press(screen, Qt::Key_F3);
    press(screen, Qt::Key_Return);
    EXPECT_EQ(run_.recorded.calls, (QStringList{u"addToShoppingList 1 for 0"_s, u"showRecipe 5"_s}));
}

TEST_F(DomaTest, LeavesOutWhatMustNotBeIn) {
    frmDoma& screen = open();
    type(screen, "kapr");
    child<Button>(screen, "cmdAkce(4)")->click();  // no milk: butter is in it
    EXPECT_EQ(rows(screen, "picRecepty"), QString());
    child<Button>(screen, "cmdAkce(4)")->click();
    child<Edit>(screen, "txtHledat")->setText({});
    child<TickList>(screen, "picSuroviny")->select(1);
    child<Button>(screen, "cmdAkce(0)")->click();
    EXPECT_EQ(rows(screen, "picSuroviny"), u"x kapr | máslo/bez"_s);
    EXPECT_EQ(rows(screen, "picRecepty"), QString());
    child<Button>(screen, "cmdAkce(6)")->click();
    EXPECT_TRUE(screen.query().have.empty());
    EXPECT_TRUE(screen.query().without.empty());
    child<Button>(screen, "cmdAkce(7)")->click();  // no recipe is selected
    EXPECT_EQ(run_.beeps, 1);
}

TEST_F(DomaTest, RemembersWhatIsAtHome) {
    frmDoma& first = open();
    type(first, "kapr");
    press(first, Qt::Key_Escape);
    EXPECT_EQ(open().query().have, std::vector<int>{1});
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
