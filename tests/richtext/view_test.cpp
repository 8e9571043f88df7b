#include "richtext/rtfview.h"

#include <gtest/gtest.h>

#include "richtext/layoutdump.h"

namespace sarne {
namespace {

constexpr int kLine = 300;
using Direction = RtfView::Direction;

class View : public testing::Test {
  protected:
    /// Twenty lines, a link in the third, tenth and last of them; four and a half are seen.
    void SetUp() override {
        QString rtf = QStringLiteral("{\\rtf1\\plain ");
        for (int line = 0; line < 20; ++line) {
            const bool link = line == 2 || line == 9 || line == 19;
            rtf += (link ? QStringLiteral("*%1link*").arg(line) : QStringLiteral("text")) +
                   QStringLiteral("\\par ");
        }
        test::FixedMetrics metrics;
        view.setLayout(RtfLayout::of(rtf, {0, 3000, 50}, metrics));
        view.setViewHeight(4 * kLine + kLine / 2);
    }

    RtfView view;
    const int end = 20 * kLine - (4 * kLine + kLine / 2);
};

TEST_F(View, ScrollsWithinTheText) {
    EXPECT_FALSE(view.scrollLine(Direction::Backward));
    EXPECT_TRUE(view.scrollLine(Direction::Forward));
    EXPECT_EQ(view.offset(), kLine);
    EXPECT_TRUE(view.scrollPage(Direction::Forward));
    EXPECT_EQ(view.offset(), kLine + 3 * kLine + kLine / 2);  // one line stays in sight
    view.scrollLine(Direction::Forward);
    EXPECT_EQ(view.offset(), 5 * kLine);  // whole lines at the top again
    view.scrollBy(10);
    view.scrollLine(Direction::Backward);
    EXPECT_EQ(view.offset(), 5 * kLine);
    while (view.scrollLine(Direction::Forward)) {
    }
    EXPECT_EQ(view.offset(), end);
    EXPECT_FALSE(view.scrollPage(Direction::Forward));
    view.scrollTo(-5000);
    EXPECT_EQ(view.offset(), 0);
    view.scrollToEnd(Direction::Forward);
    view.setViewHeight(30 * kLine);
    EXPECT_EQ(view.offset(), 0);
    EXPECT_FALSE(view.canScroll());
}

TEST_F(View, MovesTheFocusAmongTheLinks) {
    EXPECT_TRUE(view.focusNext(Direction::Forward));
    EXPECT_EQ(view.offset(), 0);  // in sight already
    EXPECT_TRUE(view.focusNext(Direction::Forward));
    EXPECT_EQ(view.offset(), 10 * kLine - view.viewHeight());
    EXPECT_EQ(view.key(view.focusedLink()), (LinkKey{LinkKind::Keyword, 9}));
    EXPECT_TRUE(view.focusNext(Direction::Forward));
    EXPECT_EQ(view.offset(), end);
    EXPECT_FALSE(view.focusNext(Direction::Forward));
    EXPECT_EQ(view.key(view.focusedLink()), std::nullopt);
    EXPECT_TRUE(view.focusNext(Direction::Backward));
    view.focusLink(0);
    EXPECT_EQ(view.offset(), 2 * kLine);
    EXPECT_FALSE(view.focusNext(Direction::Backward));
    view.setLayout({});
    EXPECT_FALSE(view.focusNext(Direction::Forward));
    EXPECT_FALSE(view.scrollPage(Direction::Forward));
}

TEST_F(View, FindsTheLinkUnderThePointer) {
    const QPoint third(10, 2 * kLine + 10);
    EXPECT_TRUE(view.setPointer(third));
    EXPECT_EQ(view.hoveredLink(), 0);
    EXPECT_FALSE(view.setPointer(third + QPoint(5, 0)));
    view.scrollBy(kLine);  // the text moves below the pointer
    EXPECT_EQ(view.hoveredLink(), std::nullopt);
    EXPECT_EQ(view.linkAt(third - QPoint(0, kLine)), 0);
    EXPECT_EQ(view.linkAt({10, 9 * kLine - view.offset() + 10}), std::nullopt);  // below what is seen
    EXPECT_TRUE(view.setPointer(third - QPoint(0, kLine)));
    EXPECT_TRUE(view.setPointer(std::nullopt));
    EXPECT_FALSE(view.setPointer(std::nullopt));
}

}  // namespace
}  // namespace sarne
