#include "screens/navigation/frmmenu.h"

#include <QTest>
#include <QWindow>

#include "menudatabase.h"
#include "screens/navigation/frmhlavni.h"

namespace sarne {
namespace {

class MenuFormTest : public MenuFixture {
  protected:
    void SetUp() override {
        MenuFixture::SetUp();
        main = new frmHlavni(run);
        main->Zobraz();
    }
    frmMenu* deepest() {
        frmMenu* level = main->menu();
        while (level->child()) level = level->child();
        return level;
    }
    Label* label(frmMenu* level, int k) { return level->findChild<Label*>(u"lblOdkaz(%1)"_s.arg(k)); }
    void clickButton(int i) {
        QTest::mouseClick(main->findChild<QWidget*>(u"imgClick(%1)"_s.arg(i)), Qt::LeftButton);
    }
    void key(Qt::Key k) { QTest::keyClick(QApplication::focusWidget(), k); }
    void type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text)); }
    QStringList codes() {
        QStringList all;
        for (frmMenu* level = main->menu(); level; level = level->child()) all << level->level().code;
        return all;
    }

    frmHlavni* main = nullptr;
};

TEST_F(MenuFormTest, ThePointerIsThatOfTheLevelThatAppearsUnderIt) {
    QCursor::setPos(run.window.mapToGlobal(QPoint(400, 560)));
    clickButton(2);
    QCursor::setPos(run.window.mapToGlobal(main->menu()->geometry().center()));
    main->menu()->Zobraz();
    EXPECT_EQ(run.window.windowHandle()->cursor().shape(), Qt::PointingHandCursor) << "an item lies there";
    EXPECT_EQ(label(main->menu(), 1)->cursor().shape(), Qt::PointingHandCursor);
    key(Qt::Key_Escape);
    clickButton(12);
    EXPECT_NE(label(main->menu(), 1)->cursor().shape(), Qt::PointingHandCursor) << "the prompt is no item";
}

TEST_F(MenuFormTest, TrianglesPointWhereTheSubmenuOpens) {
    const auto arrow = [&](int k) { return static_cast<MenuLabel*>(label(main->menu(), k))->arrow(); };
    clickButton(17);
    for (const int x : {100, 7900, 8519}) {
        main->menu()->unfold(u"17"_s, {x, 1542, 1, 1});
        for (const int k : {1, 2}) {
            main->menu()->choose(k);
            const bool left = deepest()->twips().left() < main->menu()->twips().left();
            EXPECT_EQ(left, x == 7900) << x;
            EXPECT_EQ(arrow(k), left ? MenuLabel::Arrow::Left : MenuLabel::Arrow::Right) << x;
        }
    }
    EXPECT_EQ(label(main->menu(), 2)->text(), u"Štika   "_s) << "nothing but three blanks more";
}

TEST_F(MenuFormTest, ResultsNeverCoverTheSearch) {
    clickButton(12);
    auto* entry = child<Edit>(*main->menu(), "Text1");
    const QRect home = main->menu()->twips();
    for (const char* text : {"kap", "bylina", "nic"}) {
        entry->focusAll();
        type(text);
        QTest::mouseClick(child<QWidget>(*main->menu(), "imgHledat"), Qt::LeftButton);
        ASSERT_EQ(codes().size(), 2) << text;
        EXPECT_FALSE(deepest()->twips().intersects(main->menu()->twips())) << text;
        EXPECT_TRUE(main->twips().contains(deepest()->twips() | main->menu()->twips())) << text;
    }
    key(Qt::Key_Escape);
    EXPECT_EQ(main->menu()->twips(), home);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
