#include <gtest/gtest.h>

#include <QTest>

#include "screens/navigation/frmhlavni.h"
#include "screens/navigation/frmmenu.h"
#include "shippedprogram.h"
#include "support/kept.h"

namespace sarne {
namespace {

class ShippedMenu : public ShippedProgram, public testing::Test {
  protected:
    QWidget* button(int i) { return main->findChild<QWidget*>(u"imgClick(%1)"_s.arg(i)); }
    frmMenu* levelOf(const QString& code) {
        for (frmMenu* level = main->menu(); level; level = level->child()) {
            if (level->level().code == code) return level;
        }
        return nullptr;
    }
    void clickItem(frmMenu* level, int k) {
        QTest::mouseClick(level->findChild<QWidget*>(u"lblOdkaz(%1)"_s.arg(k)), Qt::LeftButton);
    }
    /// Opens the level of \a code again by mouse, from the main screen on. Topics have one digit or two.
    frmMenu* reach(int topic, const QString& code) {
        QTest::mouseClick(button(topic), Qt::LeftButton);
        QString at = QString::number(topic);
        while (at != code && levelOf(at)) {
            const int k = code.mid(at.size(), 1).toInt();
            clickItem(levelOf(at), k);
            at += QString::number(k);
        }
        return levelOf(code);
    }
    void walk(int topic, const QString& code);
    void choose(int topic, const QString& code, int k);
    void expectIdle();

    frmHlavni* main = program->mainScreen();
    QStringList opened;
};

void ShippedMenu::expectIdle() {
    EXPECT_EQ(program->FormStack.count(), 1);
    EXPECT_FALSE(main->isMenuOpen());
    EXPECT_EQ(main->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    for (int i = 0; i < 19; ++i) EXPECT_TRUE(button(i)->isEnabled()) << i;
}

void ShippedMenu::choose(int topic, const QString& code, int k) {
    frmMenu* level = reach(topic, code);
    ASSERT_NE(level, nullptr) << code.toStdString();
    const QString label = level->level().items[size_t(k - 1)].label;
    platform.announced.clear();
    clickItem(level, k);
    opened << u"%1 %2 %3 ⇒ %4: %5"_s.arg(code).arg(k).arg(label, program->FormStack.top()->name(),
                                                          platform.announced.join(u", "_s).simplified());
    for (int step = 0; step < 3 && program->FormStack.count() > 1; ++step)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    expectIdle();
}

void ShippedMenu::walk(int topic, const QString& code) {
    const MenuLevel level = MenuLevel::build(program->Db(), code);
    ASSERT_FALSE(level.items.empty()) << code.toStdString();
    for (int k = 1; k <= int(level.items.size()); ++k) {
        const MenuItem& item = level.items[size_t(k - 1)];
        Recordset row = program->Db().OpenQuery(
            u"SELECT * FROM menu WHERE ID LIKE '%1' ORDER BY Id"_s.arg(level.childCode(k)));
        EXPECT_EQ(row.field(u"Label"_s).toString(), item.label) << "no level shows its own row";
        if (!item.isSelectable()) continue;
        if (item.opensSubmenu())
            walk(topic, level.childCode(k));
        else
            choose(topic, code, k);
    }
}

TEST_F(ShippedMenu, EveryScreenHasItsGroundAndTheMenuGivesThePointerBack) {
    const ScreenPictures& rooms = program->Pictures;
    for (const Room* room : {&rooms.hlavni, &rooms.Sit, &rooms.recept, &rooms.seznam, &rooms.video,
                             &rooms.konec, &rooms.uvod, &rooms.stranka})
        EXPECT_FALSE(room->isNull());
    const auto pointer = [&] { return main->cursor().pixmap().toImage(); };
    const QImage normal = pointer();
    QTest::mouseClick(button(2), Qt::LeftButton);
    const QImage back = pointer();
    EXPECT_FALSE(back.isNull());
    EXPECT_NE(back, normal);
    QTest::mouseClick(main, Qt::LeftButton, {}, {10, 590});
    EXPECT_FALSE(main->isMenuOpen());
    EXPECT_EQ(pointer(), normal);
}

TEST_F(ShippedMenu, EveryRowOpensItsScreen) {
    for (int topic = 1; topic < 19; ++topic)
        if (topic != 7) walk(topic, QString::number(topic));
    test::expectText(u"nabidky"_s, opened.join(u'\n'));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
