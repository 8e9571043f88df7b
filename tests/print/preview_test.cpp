#include "print/frmnahled.h"
#include "printform.h"
#include "support/wheel.h"

namespace sarne {
namespace {

using test::FrmPrintTest;
using test::str;

TEST_F(FrmPrintTest, ThePreviewShowsThePagesThatArePrinted) {
    open({1, 3});
    control("Command1")->click();
    const QStringList printed = test::pdfPages(file("Recepty (2).pdf"));
    control("cmdNahled")->click();
    auto* preview = dynamic_cast<frmNahled*>(loaded("frmNahled"));
    ASSERT_TRUE(preview);
    QTest::qWait(20);
    const auto* sheet = child<PageSheet>(*preview, "picStrana");
    const auto key = [&](int code) { QTest::keyClick(preview, Qt::Key(code)); };
    for (qsizetype page = 0; page < printed.size(); ++page, key(Qt::Key_Right)) {
        EXPECT_EQ(child<Label>(*preview, "lblStrana")->text(),
                  u"Strana %1 z %2"_s.arg(page + 1).arg(printed.size()));
        EXPECT_EQ(sheet->accessibleValue().simplified(), printed[page].simplified());
        EXPECT_EQ(preview->textToRead().simplified(), printed[page].simplified());
    }
    EXPECT_EQ(preview->currentSheet() + 1, printed.size()) << "the last page stays";
    EXPECT_FALSE(child<Button>(*preview, "cmdStrana(1)")->isEnabled());
    const int last = int(printed.size()) - 1;
    ASSERT_GT(last, 2);
    const std::pair<Qt::Key, int> leads[] = {{Qt::Key_Home, 0},   {Qt::Key_Up, 0},   {Qt::Key_PageDown, 1},
                                             {Qt::Key_Right, 2},  {Qt::Key_Left, 1}, {Qt::Key_Down, 2},
                                             {Qt::Key_PageUp, 1}, {Qt::Key_Up, 0},   {Qt::Key_End, last}};
    for (const auto& [code, sheetThen] : leads) {
        key(code);
        EXPECT_EQ(preview->currentSheet(), sheetThen) << code;
    }
    key(Qt::Key_Home);
    EXPECT_LT(preview->textToRead().count(u'\n'), sheet->accessibleValue().count(u'\n')) << "runs on";
    key(Qt::Key_Return);
    EXPECT_TRUE(sheet->isZoomed());
    key(Qt::Key_Down);
    EXPECT_GT(sheet->scrolled(), 0);
    EXPECT_EQ(preview->currentSheet(), 0);
    for (int notch = 0; notch < 30 && preview->currentSheet() == 0; ++notch)
        test::wheel(*child<PageSheet>(*preview, "picStrana"), -120);
    EXPECT_EQ(preview->currentSheet(), 1) << "at its end the wheel turns the page";
    EXPECT_EQ(sheet->scrolled(), 0);
    key(Qt::Key_F1);
    EXPECT_TRUE(run.recorded.calls.contains(u"showHelpFor frmNahled"_s));
    key(Qt::Key_Escape);
    EXPECT_FALSE(preview->isLoaded());
    EXPECT_EQ(run.FormStack.top(), form());
    EXPECT_TRUE(control("cmdNahled")->hasFocus());
}

TEST_F(FrmPrintTest, EveryChangeShowsInThePreviewAtOnce) {
    open({1, 3});
    const auto* sheet = control<PageSheet>("picStrana");
    const auto shows = [&](const char* text) { return sheet->accessibleValue().contains(str(text)); };
    control<Edit>("Text1")->setText(u"6,5"_s);
    EXPECT_TRUE(shows("Porce: 6,5"));
    control<Edit>("Text1")->setText({});
    EXPECT_TRUE(shows("Porce: 6,5")) << "what cannot be printed shows nothing new";
    control<Edit>("Text1")->setText(u"6"_s);
    QTest::keyClick(form(), Qt::Key_PageDown);
    EXPECT_TRUE(shows("2 z "));
    for (int i = 0; i < 20; ++i) control("cmdStrana(1)")->click();
    QTest::qWait(20);
    for (int i = 0; i < 20; ++i) control("cmdStrana(1)")->click();
    EXPECT_TRUE(shows("Štika"));
    EXPECT_FALSE(control("cmdStrana(1)")->isEnabled());
    control("picStrana")->click();
    auto* large = dynamic_cast<frmNahled*>(loaded("frmNahled"));
    ASSERT_TRUE(large);
    EXPECT_GT(large->currentSheet(), 0) << "the page that was clicked";
    EXPECT_EQ(child<PageSheet>(*large, "picStrana")->accessibleValue(), sheet->accessibleValue());
    const int last = large->currentSheet();
    for (const auto& [button, sheetThen] :
         {std::pair("cmdStrana(0)", last - 1), {"cmdStrana(0)", last - 2}, {"cmdStrana(1)", last - 1}}) {
        child<Button>(*large, button)->click();
        EXPECT_EQ(large->currentSheet(), sheetThen);
    }
}

TEST_F(FrmPrintTest, WithoutColourThePagesAreGrey) {
    for (const bool colour : {true, false}) {
        printer.use({{}, Paper::A4, 1, false, colour});
        open({1});
        const QImage sheet = control<PageSheet>("picStrana")->grab().toImage();
        EXPECT_NE(sheet.copy(sheet.rect().adjusted(20, 20, -20, -20)).allGray(), colour);
        control("Command2")->click();
    }
}

/// Which quarters of \a sheet have ink on them, line by line.
QString inkedQuarters(PageSheet& sheet) {
    const QImage image = sheet.grab().toImage();
    const QRect paper = image.rect().adjusted(image.width() / 30, image.height() / 30, -image.width() / 30,
                                              -image.height() / 30);
    QString quarters(4, u'-');
    for (int y = paper.top(); y <= paper.bottom(); ++y) {
        for (int x = paper.left(); x <= paper.right(); ++x) {
            const int quarter = 2 * (y > paper.center().y()) + (x > paper.center().x());
            if (qGray(image.pixel(x, y)) < 150) quarters[quarter] = u'x';
        }
    }
    return quarters;
}

TEST_F(FrmPrintTest, ThePreviewShowsAllPagesOfASheet) {
    PrinterChoice cards;
    cards.paper = Paper::FourCards;
    printer.use(cards);
    open({1, 3, 1, 3, 1});
    auto* sheet = control<PageSheet>("picStrana");
    EXPECT_TRUE(QTest::qWaitFor([&] { return control<Label>("lblStrana")->text() == u"List 1 z 2"_s; }));
    EXPECT_EQ(sheet->accessibleValue().count(u"CD Tobrela"_s), 4);
    EXPECT_EQ(inkedQuarters(*sheet), u"xxxx"_s);
    QTest::keyClick(form(), Qt::Key_PageDown);
    EXPECT_EQ(sheet->accessibleValue().count(u"CD Tobrela"_s), 1);
    EXPECT_EQ(inkedQuarters(*sheet), u"x---"_s);
    EXPECT_FALSE(control("cmdStrana(1)")->isEnabled());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
