#include <gtest/gtest.h>

#include <QPainter>

#include "richtext/basZobrazRtfSarne.h"
#include "richtext/fontface.h"
#include "richtext/layoutdump.h"
#include "richtext/qttextmetrics.h"
#include "richtext/rtfpainter.h"
#include "support/kept.h"
#include "support/pictures.h"

namespace sarne {
namespace {

/// Writes down what is drawn on it.
class PaperSurface : public Surface {
  public:
    int scaleWidth() const override { return 2505; }
    int scaleHeight() const override { return 9000; }
    int currentX() const override { return at_.x(); }
    int currentY() const override { return at_.y(); }
    void setCurrentX(int x) override { at_.setX(x); }
    void setCurrentY(int y) override { at_.setY(y); }
    const TextFont& font() const override { return font_; }
    void setFont(const TextFont& font) override { font_ = font; }
    void setForeColor(const QColor& color) override { color_ = color; }
    int textWidth(const QString& text) const override { return test::FixedMetrics().textWidth(font_, text); }
    int textHeight(const QString&) const override { return test::FixedMetrics().textHeight(font_); }
    void print(const QString&) override {}
    void textOut(int x, int baseline, const QString& text) override {
        drawn += u"%1,%2 %3 %4"_s.arg(x).arg(baseline).arg(text, color_.name());
        if (bas && text == QLatin1String("stop")) bas->stop();
    }

    QStringList drawn;
    basZobrazRtfSarne* bas = nullptr;

  private:
    QPoint at_{100, 1000};
    TextFont font_;
    QColor color_;
};

/// What is drawn, and where the next text would be. At the word "stop" it is abandoned; the next one starts
/// afresh.
TEST(ZobrazRtf, DrawsFromTheCurrentPositionOn) {
    basZobrazRtfSarne bas;
    test::expectCases(u"kresba"_s, [&](const QString& text) {
        PaperSurface surface;
        surface.bas = &bas;
        bas.ZobrazRtf(surface, text);
        surface.drawn << u"%1,%2"_s.arg(surface.currentX()).arg(surface.currentY());
        return surface.drawn.join(u" | "_s);
    });
}

TEST(ZobrazRtf, LeavesPaintingToASurfaceThatKeepsTexts) {
    class KeepingSurface final : public PaperSurface {
      public:
        TextMetrics* textMetrics() override { return &metrics; }
        bool keepRichText(const RtfLayout& layout) override {
            kept += test::wordsOf(layout);
            return true;
        }
        test::FixedMetrics metrics;
        QStringList kept;
    } surface;
    ZobrazRtf(surface, u"a\nb"_s);
    ZobrazRtf(surface, u"  "_s);
    EXPECT_EQ(surface.kept, QStringList{u"a|b"_s});
    EXPECT_GT(surface.metrics.measured, 0);
    EXPECT_TRUE(surface.drawn.isEmpty());
    EXPECT_EQ(surface.currentY(), 1600);
}

TEST(DrawLine, PlacesOneLineAnywhere) {
    PaperSurface surface;
    test::FixedMetrics metrics;
    const RtfLayout layout = RtfLayout::of(u"a\nb\nc", {0, 1000, 0}, metrics);
    drawLine(surface, layout, 1, {500, -300});
    drawLine(surface, layout, 3);
    EXPECT_EQ(surface.drawn, QStringList{u"500,240 b #000000"_s});
}

/// A picture of a layout at the scale of the design, fifteen twips to the pixel.
constexpr int kPixel = 15;

class Painting : public testing::Test {
  protected:
    QImage paint(const RtfLayout& layout, const QRect& visible, const LinkHighlight& highlight = {}) {
        QImage picture = test::plain({270, 130}, Qt::white);
        QPainter painter(&picture);
        painter.scale(1. / kPixel, 1. / kPixel);
        paintLayout(painter, layout, visible, highlight);
        return picture;
    }
    /// What differs from white, or from \a other, in pixels.
    static QRect inked(const QImage& picture, const QImage& other = {}) {
        QRect ink;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QRgb ground = other.isNull() ? qRgb(255, 255, 255) : other.pixel(x, y);
                if (picture.pixel(x, y) != ground) ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }
    RtfLayout layOut(QStringView text, int top = 0) { return RtfLayout::of(text, {0, 4000, top}, metrics); }

    QtTextMetrics metrics;
};

TEST_F(Painting, DotsLinksAndUnderlinesTheOneThatStandsOut) {
    const QRect all(0, 0, 4000, 2000);
    for (int top = 0; top < 2 * kPixel; ++top) {  // wherever the line falls between the pixels
        const RtfLayout layout = layOut(u"{\\rtf1\\plain aa *1bb bb* *2cc* \\ul dd dd}", top);
        const QImage plain = paint(layout, all);
        const QRect stroke = inked(paint(layout, all, {1, {}}), plain);
        const WordBox& link = layout.boxes()[2];
        EXPECT_NEAR(stroke.left(), link.x / kPixel, 3) << top;  // the first dot is there already
        EXPECT_NEAR(stroke.width(), link.width / kPixel, 5) << top;
        int dotted = 0;
        for (int x = stroke.left(); x <= stroke.right(); ++x)
            dotted += plain.pixel(x, stroke.center().y()) != qRgb(255, 255, 255);
        EXPECT_NEAR(dotted, stroke.width() / 2., stroke.width() / 4.) << top;
        EXPECT_GE(stroke.top(), link.baseline / kPixel);
        EXPECT_LE(stroke.height(), 2);
        EXPECT_EQ(inked(paint(layout, all, {{}, 1}), plain), stroke);
        // Underlined words of a text are underlined over their blanks.
        const int gap = (layout.boxes()[4].x - kPixel) / kPixel;
        EXPECT_NE(plain.pixel(gap, stroke.center().y()), qRgb(255, 255, 255)) << top;
    }
}

/// \a picture for people: the darkest of each few pixels as the letter of its colour, large where it is
/// strong.
QString drawnByLetters(const QImage& picture) {
    constexpr int kAcross = 2, kDown = 3;
    QStringList rows;
    for (int y = 0; y + kDown <= picture.height(); y += kDown) {
        QString row;
        for (int x = 0; x + kAcross <= picture.width(); x += kAcross) {
            QColor darkest = Qt::white;
            for (int i = 0; i < kAcross * kDown; ++i)
                if (const QColor one = picture.pixelColor(x + i % kAcross, y + i / kAcross);
                    one.value() + one.lightness() < darkest.value() + darkest.lightness())
                    darkest = one;
            const bool isGrey = darkest.hslSaturation() < 60;
            const QLatin1Char letter(isGrey                ? 'k'
                                     : darkest.hue() < 60  ? 'r'
                                     : darkest.hue() < 160 ? 'g'
                                     : darkest.hue() < 200 ? 't'
                                                           : 'b');
            row += darkest.lightness() > 215   ? u' '
                   : darkest.lightness() > 140 ? QChar(letter)
                                               : QChar(letter).toUpper();
        }
        while (row.endsWith(u' ')) row.chop(1);
        rows << row;
    }
    return rows.join(u'\n');
}

TEST_F(Painting, LooksAsReviewed) {
    const RtfLayout layout = layOut(
        u"{\\rtf1{\\colortbl;\\red0\\green0\\blue200;}\\plain\\fs60 I\\b  H\\b0  \\cf1 *1*\\i *2h\\i0  h* i "
        u"#4i#\\par\\fs36\\cf0\\ul ij i\\ul0  l @3li@ \\cf1 a\u0301n}");
    QStringList all;
    for (const LinkHighlight& light : {LinkHighlight{}, {0, 2}, {{}, {}, true}, {1, 0, true}})
        all << drawnByLetters(paint(layout, {0, 0, 4000, 2000}, light).copy(0, 0, 200, 84));
    all << drawnByLetters(paint(layout, {0, 700, 4000, 90}).copy(0, 0, 200, 84));
    EXPECT_TRUE(inked(paint(layout, {0, 5000, 4000, 900})).isEmpty());
    test::expectText(u"malba"_s, all.join(u"\n--\n"_s));
}

TEST(FontFace, IsAsWideAsQtSays) {
    for (const char16_t* name : {u"Times New Roman", u"Arial CE"}) {
        for (int style = 0; style < 4; ++style) {
            const TextFont font{QString::fromUtf16(name), 12, (style & 1) != 0, (style & 2) != 0, false, 238};
            const QFontMetricsF qt(font.toQFont());
            for (const QString& word : {u"Večeře"_s, u"AVATAR"_s, u"½ l"_s, u"„Type“"_s, u"日本"_s, u""_s}) {
                EXPECT_NEAR(FontFace(font).width(word), qt.horizontalAdvance(word), 1) << word.toStdString();
            }
        }
    }
    EXPECT_EQ(FontFace({u"Arial CE"_s}).rawFont().familyName(),
              FontFace({u"Arial"_s}).rawFont().familyName());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
