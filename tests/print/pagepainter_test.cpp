#include "print/pagepainter.h"

#include <gtest/gtest.h>

#include <QPaintEngine>
#include <QPainter>

#include "printcookbook.h"
#include "support/fakeprinter.h"
#include "support/kept.h"

namespace sarne {
namespace {

/// A paper that notes what it is told to paint, one line for each time.
class NotingPaper final : public QPaintDevice, private QPaintEngine {
  public:
    NotingPaper() : QPaintEngine(AllFeatures) {}
    QStringList rows;

  private:
    QPaintEngine* paintEngine() const override { return const_cast<NotingPaper*>(this); }
    int metric(PaintDeviceMetric wanted) const override {
        return wanted == PdmWidth || wanted == PdmHeight ? 20000
               : wanted == PdmDevicePixelRatioScaled     ? 65536
                                                         : 72;
    }
    Type type() const override { return User; }
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& now) override {
        if (now.state() & DirtyPen) pen_ = now.pen().color().name();
        if (now.state() & DirtyBrush) brush_ = now.brush().color().name();
    }
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        rows << u"%1,%2 %3 %4 '%5'"_s.arg(at.x())
                    .arg(at.y())
                    .arg(item.font().pixelSize())
                    .arg(pen_, item.text());
        // Blanks of its own make the last word end where it should.
        if (item.font().wordSpacing() != 0 && !item.text().endsWith(u' '))
            rows.last() += u" -%1"_s.arg(qRound(at.x() + item.width()));
    }
    void drawRects(const QRectF* rects, int count) override {
        for (int i = 0; i < count; ++i)
            rows << u"%1 from %2 to %3"_s.arg(brush_).arg(rects[i].left()).arg(rects[i].right()) +
                        (rects[i].top() > 0 ? u" below"_s : QString());
    }
    void drawImage(const QRectF& place, const QImage& image, const QRectF&,
                   Qt::ImageConversionFlags) override {
        rows << u"%1 at %2,%3 %4x%5"_s.arg(image.pixelColor(0, 0).name())
                    .arg(place.x())
                    .arg(place.y())
                    .arg(place.width())
                    .arg(place.height());
    }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}

    QString pen_, brush_;
};

TEST(PagePainter, PaintsWordsThatStandEquallyFarFromEachOtherInOneGo) {
    const TextFont body, large{u"Arial"_s, 14, true}, underlined{u"Arial"_s, 12, false, false, true};
    PrintedPage page;
    auto line = [&page, baseline = 0](std::initializer_list<PageText> texts) mutable {
        baseline += 400;
        for (PageText text : texts) {
            text.baseline = baseline;
            page.texts.push_back(text);
        }
    };
    line({{0, 0, 500, u"tři"_s, body}, {600, 0, 500, u"slova"_s, body}, {1201, 0, 500, u"spolu"_s, body}});
    line({{0, 0, 500, u"jinak"_s, body},
          {600, 0, 500, u"daleko"_s, body},
          {1203, 0, 500, u"od sebe"_s, body}});
    line({{0, 0, 500, u"sloupec"_s, body},
          {740, 0, 500, u"daleko"_s, body},
          {980 + 500, 0, 500, u"vedle"_s, body}});
    line({{0, 0, 500, u"písmo"_s, body},
          {600, 0, 500, u"jiné"_s, large},
          {1200, 0, 500, u"barva"_s, large, 0xff800000}});
    line({{700, 0, 500, u"zprava"_s, body}, {0, 0, 500, u"doleva"_s, body}});
    line({{0, 0, 500, u"pevná mezera"_s, body}, {600, 0, 500, u"za ní"_s, body}});
    line({{0, 0, 500, u"čára"_s, underlined, 0xff0000ff}, {600, 0, 500, u"dál"_s, underlined, 0xff0000ff}});
    line({{0, 0, 500, u"další"_s, underlined}});
    page.pictures = {{{10, 20, 300, 200}, Picture::fromImage(test::plain({3, 2}, Qt::red)), u"r1.jpg"_s},
                     {{40, 50, 30, 20}, Picture::fromImage(test::plain({3, 2}, Qt::blue)), {}}};
    NotingPaper paper;
    SilentProgress silent;
    const auto paint = [&](Printer* printer) {
        QPainter painter(&paper);
        EXPECT_TRUE(paintPage(painter, page, silent, printer));
    };
    paint(nullptr);
    paper.rows << u"-- on a printer that takes files"_s;
    const size_t before = size_t(paper.rows.size());
    FakePrinter printer;
    printer.takes = u"r1.jpg"_s;
    paint(&printer);
    paper.rows.resize(qsizetype(before) + 2);
    test::expectText(u"malovani"_s, paper.rows.join(u'\n'));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
