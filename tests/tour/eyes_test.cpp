#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPainter>
#include <QTemporaryDir>
#include <QWidget>

#include "tour/blackline.h"
#include "tour/looks.h"
#include "tour/textcontrast.h"

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

/// A text over another one that it covers.
TEST(TextContrast, TakesTheGroundUnderTheTextAndLeavesOutWhatIsCovered) {
    const struct {
        QColor ground, ink;
        QString text;
        double contrast;  // 0: nothing is found
    } signs[] = {
        {{40, 40, 40}, {80, 80, 80}, u"faint"_s, contrastRatio(QColor(40, 40, 40), QColor(80, 80, 80))},
        {Qt::white, {0, 0, 0, 102}, u"disabled"_s, contrastRatio(QColor(153, 153, 153), Qt::white)},
        {Qt::red, Qt::black, u"\u2060"_s, 0}};
    for (const auto& one : signs) {
        QWidget window;
        window.resize(300, 100);
        const Sign hidden(&window, one.contrast > 0 ? Qt::white : Qt::red, Qt::white, u"covered"_s);
        const Sign shown(&window, one.ground, one.ink, one.text);
        const auto found = textContrasts(window);
        ASSERT_EQ(found.size(), one.contrast > 0 ? 1U : 0U);
        if (found.empty()) continue;
        EXPECT_EQ(found[0].text, one.text);
        EXPECT_EQ(found[0].ground, one.ground);
        EXPECT_NEAR(found[0].contrast, one.contrast, 0.01);
        EXPECT_TRUE(QRect(20, 10, 200, 40).contains(found[0].place));
    }
}

TEST(TextContrast, TakesAMarkedTextInTheInkOfItsMark) {
    QWidget window;
    window.resize(300, 100);
    QLineEdit edit(u"marked"_s, &window);
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

/// A screen with a lively ground, a sheet of paper and a dish of \a dish on it.
QImage screen(const QColor& dish) {
    QImage image(800, 600, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient ground(0, 0, 800, 600);
    ground.setColorAt(0, QColor(30, 60, 70));
    ground.setColorAt(1, QColor(150, 120, 80));
    painter.fillRect(image.rect(), ground);
    painter.fillRect(300, 100, 450, 400, QColor(245, 238, 220));
    painter.fillRect(60, 150, 200, 150, dish);
    return image;
}

TEST(Looks, AnotherDishPassesAMissingGroundDoesNot) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"looks.txt"_s), name = u"frmRecept-0"_s;
    const auto fault = [&](const QImage& image) { return Looks(file, u"800x600"_s).fault(name, image); };
    EXPECT_NE(fault(screen(Qt::darkRed)), QString()) << "nothing is kept yet";
    for (const char* size : {"800x600", "1920x1080"}) {
        Looks looks(file, QLatin1String(size));
        looks.fault(name, screen(Qt::darkRed));
        ASSERT_TRUE(looks.accept());
    }
    EXPECT_EQ(fault(screen(Qt::darkRed)), QString());
    EXPECT_EQ(fault(screen(Qt::darkYellow)), QString());
    QImage flat = screen(Qt::darkRed);
    flat.fill(QColor(11, 23, 32));
    EXPECT_NE(fault(flat), QString());
    QPainter(&flat).drawImage(300, 100, screen(Qt::darkRed).copy(300, 100, 450, 400));
    EXPECT_NE(fault(flat), QString()) << "the paper is there, the ground is not";
    EXPECT_EQ(Looks(file, u"1920x1080"_s).fault(name, screen(Qt::darkRed)), QString());
}

TEST(BlackLine, OneBrightPixelIsEnoughForARowAndAColumn) {
    QImage screen(40, 30, QImage::Format_RGB32);
    screen.fill(QColor(11, 34, 38));
    EXPECT_EQ(blackLine(screen), QString());
    for (int y = 0; y < 30; ++y) screen.setPixelColor(39, y, QColor(2, 2, 2));
    EXPECT_EQ(blackLine(screen), u"column 39 is plain black"_s);
    screen.setPixelColor(39, 17, QColor(20, 0, 0));
    EXPECT_EQ(blackLine(screen), QString());
    for (int x = 0; x < 40; ++x) screen.setPixelColor(x, 0, Qt::black);
    EXPECT_EQ(blackLine(screen), u"row 0 is plain black"_s);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
