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
    KitchenRun run_;
};

TEST_F(DomaTest, RemembersWhatIsAtHome) {
    frmDoma& first = open();
    QTest::keyClicks(run_.window.focusWidget(), u"kapr"_s);
    press(first, Qt::Key_Return);
    press(first, Qt::Key_Escape);
    EXPECT_EQ(open().query().have, std::vector<int>{1});
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
