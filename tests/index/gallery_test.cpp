#include <gtest/gtest.h>

#include <QSet>
#include <QTest>

#include "cookbook.h"
#include "forms/button.h"
#include "forms/textview.h"
#include "screens/index/frmsponzor.h"

namespace sarne {
namespace {

QString u(const char* text) {
    return QString::fromUtf8(text);
}

class GalleryTest : public testing::Test {
  protected:
    static QStringList content() {
        return {Cookbook::picture(9, 9, u("Ryby")),
                Cookbook::picture(91, 9, u("Mořské ryby")),
                Cookbook::picture(1, 1, u("O kuchařce")),
                Cookbook::area(9, {100, 150, 200, 150}, u("Kapr"), {}, u("*12")),
                Cookbook::area(9, {400, 150, 200, 150}, u("Kuchání"), {}, u("@3")),
                Cookbook::area(9, {100, 450, 200, 150}, u("Do moře"), {}, u(">91")),
                Cookbook::area(9, {400, 450, 200, 150}, u("Kámen"), {}, u("#")),
                Cookbook::area(9, {-500, 0, 100, 100}, u("Mimo"), {}, u("*1")),
                Cookbook::area(1, {10, 100, 200, 800}, u("Fotografie"),
                               rtf(u("Fotografie k receptům, *5 kapr*. ")), {}),
                Cookbook::area(1, {300, 300, 300, 300}, u("Hlas"), rtf(u("Hlas.")), {}),
                Cookbook::area(1, {850, 300, 100, 100}, u("Nic"), {}, {})};
    }

    Cookbook book{content()};
    FakeSarne& run = book.run;
    frmSponzor* form = nullptr;

    void show(std::int16_t topic, const char* text = "") {
        form = new frmSponzor(run);
        ASSERT_TRUE(form->Zobraz(topic, u(text)));
    }
    AreaButton* area(int i) { return form->findChild<AreaButton*>(QStringLiteral("lblOblast(%1)").arg(i)); }
    void click(int i) { QTest::mouseClick(area(i), Qt::LeftButton); }
    void press(Qt::Key key) { QTest::keyClick(run.window.focusWidget(), key); }
    QString focused() {
        auto* one = qobject_cast<AreaButton*>(run.window.focusWidget());
        return one ? one->caption() : QString();
    }
    QString title() { return child<Label>(*form, "lblTitul")->text(); }
};

TEST_F(GalleryTest, AreasLeadWhereTheySay) {
    show(9);
    EXPECT_EQ(form->findChildren<AreaButton*>().size(), 4) << "what lies outside the picture is none";
    EXPECT_EQ(area(0)->twips(), QRect(1200, 1350, 2400, 1350));
    click(0);
    click(1);
    EXPECT_EQ(run.recorded.calls, (QStringList{u("showIndex 12"), u("showVideo 3")}));
    click(3);
    EXPECT_EQ(run.beeps, 1);
    click(2);
    EXPECT_EQ(title(), u("Mořské ryby"));
    EXPECT_EQ(child<Label>(*form, "lblPozice")->text(), u("2 z 2"));
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(form->findChildren<AreaButton*>().isEmpty());
    press(Qt::Key_PageDown);
    EXPECT_EQ(title(), u("Ryby")) << "the pictures go round";
    EXPECT_FALSE(form->cardIsOpen());
}

TEST_F(GalleryTest, TheKeyboardReachesEveryArea) {
    show(9);
    QSet<QString> byTab;
    for (int i = 0; i < 12; ++i) {
        byTab << focused();
        press(Qt::Key_Tab);
    }
    EXPECT_TRUE(byTab.contains({u("Kapr"), u("Kuchání"), u("Do moře"), u("Kámen")}));
    area(0)->setFocus();
    QStringList byArrow;
    for (Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Left, Qt::Key_Up}) {
        press(key);
        byArrow << focused();
    }
    EXPECT_EQ(byArrow.join(u' '), u("Kuchání Kámen Do moře Do moře Kapr"));
    press(Qt::Key_Space);
    EXPECT_EQ(run.recorded.calls, QStringList{u("showIndex 12")});
}

TEST_F(GalleryTest, ATextOpensOnACardAndClosesBackToItsArea) {
    show(1);
    click(0);
    ASSERT_TRUE(form->cardIsOpen());
    auto* card = child<TextView>(*form, "picText");
    EXPECT_TRUE(card->drawnText().startsWith(u("Fotografie k")));
    EXPECT_FALSE(area(1)->isVisible()) << "nothing shows through the card";
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(run.recorded.calls, QStringList{u("showIndex 5")});
    press(Qt::Key_Escape);
    EXPECT_FALSE(form->cardIsOpen());
    EXPECT_EQ(focused(), u("Fotografie"));
    EXPECT_EQ(book.top(), form);

    click(1);
    EXPECT_TRUE(card->drawnText().startsWith(u("Hlas.")));
    QTest::mouseClick(child<Button>(*form, "imgZavri"), Qt::LeftButton);
    EXPECT_FALSE(form->cardIsOpen());
    EXPECT_EQ(book.top(), form);
    click(1);
    QTest::mouseClick(form, Qt::LeftButton, {}, form->toPixels({11700, 6000}));
    EXPECT_FALSE(form->cardIsOpen()) << "a click beside the card closes it";
    click(2);
    EXPECT_FALSE(form->cardIsOpen());
    EXPECT_EQ(run.beeps, 1);
    press(Qt::Key_Escape);
    EXPECT_TRUE(book.callerIsOnTop());
}

TEST_F(GalleryTest, OpensAtTheWantedPictureOrTheFirst) {
    const struct {
        std::int16_t topic;
        const char* text;
        const char* title;
    } cases[] = {{9, "", "Ryby"}, {9, "91", "Mořské ryby"}, {9, "1", "Ryby"}, {9, "x", "Ryby"}};
    for (const auto& c : cases) {
        show(c.topic, c.text);
        EXPECT_EQ(title(), u(c.title)) << c.text;
        run.PopScreen(*form);
    }
    EXPECT_FALSE((new frmSponzor(run))->Zobraz(13, {}));
    EXPECT_TRUE(book.callerIsOnTop());
}

TEST_F(GalleryTest, APicturePrintsAsItsTexts) {
    show(1);
    child<Button>(*form, "imgBtnHlavni(0)")->click();
    EXPECT_EQ(run.recorded.calls, QStringList{u("printText O kuchařce")});
    EXPECT_TRUE(run.recorded.printedText.contains(u("Fotografie k recept")));
    EXPECT_FALSE(run.recorded.printedText.contains(u'@') || run.recorded.printedText.contains(u'*'));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
