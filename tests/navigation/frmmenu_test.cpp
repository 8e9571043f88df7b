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
    void clickButton(int i) {
        QTest::mouseClick(main->findChild<QWidget*>(u"imgClick(%1)"_s.arg(i)), Qt::LeftButton);
    }
    frmHlavni* main = nullptr;
};

TEST_F(MenuFormTest, ThePointerIsThatOfTheLevelThatAppearsUnderIt) {
    QCursor::setPos(run.window.mapToGlobal(QPoint(400, 560)));
    clickButton(2);
    QCursor::setPos(run.window.mapToGlobal(main->menu()->geometry().center()));
    main->menu()->Zobraz();
    EXPECT_EQ(run.window.windowHandle()->cursor().shape(), Qt::PointingHandCursor) << "an item lies there";
    EXPECT_EQ(child(*main->menu(), "lblOdkaz(1)")->cursor().shape(), Qt::PointingHandCursor);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    clickButton(12);
    EXPECT_NE(child(*main->menu(), "lblOdkaz(1)")->cursor().shape(), Qt::PointingHandCursor)
        << "the prompt is no item";
}

TEST_F(MenuFormTest, ResultsNeverCoverTheSearch) {
    clickButton(12);
    auto* entry = child<Edit>(*main->menu(), "Text1");
    const QRect home = main->menu()->twips();
    for (const char* text : {"kap", "bylina", "nic"}) {
        entry->focusAll();
        QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
        QTest::mouseClick(child<QWidget>(*main->menu(), "imgHledat"), Qt::LeftButton);
        const frmMenu* found = main->menu()->child();
        ASSERT_TRUE(found) << text;
        EXPECT_FALSE(found->twips().intersects(main->menu()->twips())) << text;
        EXPECT_TRUE(main->twips().contains(found->twips() | main->menu()->twips())) << text;
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(main->menu()->twips(), home);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
