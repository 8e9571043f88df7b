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
    static QString rows(const frmDoma& screen, const char* list) {
        QStringList all;
        for (const TickRow& row : child<TickList>(screen, list)->rows())
            all << (row.ticked ? QStringLiteral("x ") : QString()) +
                       QStringList{row.text, row.right, row.below}.join(u'/');
        return all.join(QStringLiteral(" | "));
    }
    void type(frmDoma& screen, const char* word) {
        QTest::keyClicks(run_.window.focusWidget(), QString::fromUtf8(word));
        press(screen, Qt::Key_Return);
    }

    KitchenRun run_;
};

TEST_F(DomaTest, FindsByWhatIsTypedAndNamesWhatIsMissing) {
    frmDoma& screen = open();
    EXPECT_EQ(rows(screen, "picSuroviny"),
              QStringLiteral("kapr// | máslo//"));  // salt everyone has; one recipe tells no allergens apart
    type(screen, "KAP");
    EXPECT_EQ(rows(screen, "picRecepty"), QStringLiteral("Kapr na kmíně/chybí 1/máslo"));
    type(screen, "kap");  // it is there already
    type(screen, "mas");
    EXPECT_EQ(rows(screen, "picRecepty"), QStringLiteral("Kapr na kmíně/máte vše/"));
    press(screen, Qt::Key_Tab);
    press(screen, Qt::Key_Tab);
    press(screen, Qt::Key_Down);
    press(screen, Qt::Key_F3);
    press(screen, Qt::Key_Return);
    EXPECT_EQ(run_.recorded.calls,
              (QStringList{QStringLiteral("addToShoppingList 1 for 0"), QStringLiteral("showRecipe 5")}));
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
    EXPECT_EQ(rows(screen, "picSuroviny"), QStringLiteral("x kapr// | máslo/bez/"));
    EXPECT_EQ(rows(screen, "picRecepty"), QString());
    child<Button>(screen, "cmdAkce(6)")->click();
    EXPECT_TRUE(screen.query().have.empty());
    EXPECT_TRUE(screen.query().without.empty());
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
