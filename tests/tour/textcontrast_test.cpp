#include "tour/textcontrast.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPainter>
#include <QWidget>

namespace sarne {
namespace {

/// Paints \a text in \a ink on a ground of its own.
class Sign final : public QWidget {
  public:
    Sign(QWidget* parent, QColor ground, QColor ink, QString text)
        : QWidget(parent), ground_(std::move(ground)), ink_(std::move(ink)), text_(std::move(text)) {
        setGeometry(20, 10, 200, 40);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), ground_);
        painter.setPen(ink_);
        painter.drawText(rect(), Qt::AlignCenter, text_);
    }

  private:
    QColor ground_, ink_;
    QString text_;
};

TEST(TextContrast, IsOneOfTheSameColourAndTwentyOneOfBlackOnWhite) {
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(contrastRatio(Qt::white, Qt::black), 21, 1e-9);
    EXPECT_NEAR(contrastRatio(Qt::red, Qt::red), 1, 1e-9);
    EXPECT_NEAR(contrastRatio(QColor(119, 119, 119), Qt::white), 4.48, 0.01);
}

TEST(TextContrast, TakesTheGroundUnderTheTextAndLeavesOutWhatIsCovered) {
    QWidget window;
    window.resize(300, 100);
    const Sign hidden(&window, Qt::white, Qt::black, QStringLiteral("covered"));
    const Sign shown(&window, QColor(40, 40, 40), QColor(80, 80, 80), QStringLiteral("faint"));
    const auto found = textContrasts(window);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].text, QStringLiteral("faint"));
    EXPECT_EQ(found[0].ground, QColor(40, 40, 40));
    EXPECT_NEAR(found[0].contrast, contrastRatio(QColor(40, 40, 40), QColor(80, 80, 80)), 1e-9);
    EXPECT_TRUE(QRect(20, 10, 200, 40).contains(found[0].place));
}

TEST(TextContrast, LeavesOutLettersThatTheSameGroundCovers) {
    QWidget window;
    window.resize(300, 100);
    const Sign hidden(&window, Qt::red, Qt::white, QStringLiteral("covered"));
    const Sign shown(&window, Qt::red, Qt::black, QStringLiteral("\u2060"));
    EXPECT_EQ(textContrasts(window).size(), 0U);
}

TEST(TextContrast, TakesAMarkedTextInTheInkOfItsMark) {
    QWidget window;
    window.resize(300, 100);
    QLineEdit edit(QStringLiteral("marked"), &window);
    edit.setGeometry(20, 10, 200, 40);
    QPalette palette;
    palette.setColor(QPalette::Highlight, Qt::black);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    edit.setPalette(palette);
    edit.selectAll();
    const auto found = textContrasts(window);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].ink, QColor(Qt::white));
    EXPECT_NEAR(found[0].contrast, 21, 1e-9);
}

TEST(TextContrast, CountsWhatShowsThroughTheText) {
    QWidget window;
    window.resize(300, 100);
    const Sign faded(&window, Qt::white, QColor(0, 0, 0, 102), QStringLiteral("disabled"));
    const auto found = textContrasts(window);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_NEAR(found[0].contrast, contrastRatio(QColor(153, 153, 153), Qt::white), 0.01);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
