#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QStandardPaths>

#include "kitchen/goods.h"
#include "kitchen/shoppingstore.h"
#include "kitchenbook.h"
#include "screens/kitchen/frmnakup.h"
#include "support/files.h"

namespace sarne {
namespace {

class NakupTest : public testing::Test {
  protected:
    NakupTest() {
        ShoppingList list;
        list.addRecipe(shoppingNeeds(readIngredients(run_.database, 5), Goods(run_.database),
                                     {5, u"Kapr na kmíně"_s, 4}, 4));
        EXPECT_TRUE(storeShoppingList(run_.file(), list));
    }

    frmNakup& open() {
        auto* screen = new frmNakup(run_, run_.file(), [](const QString&) { return 0; });
        screen->Zobraz();
        return *screen;
    }

    KitchenRun run_;
};

TEST_F(NakupTest, TicksOffOnceAndRemembersIt) {
    frmNakup& screen = open();
    press(screen, Qt::Key_Return);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    QApplication::sendEvent(screen.window()->focusWidget(), &held);
    EXPECT_TRUE(rows(screen, "picSeznam").contains(u"x kapr"_s)) << "once, however long the key is held";
    press(screen, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(rows(open(), "picSeznam").contains(u"x kapr"_s));
}

TEST_F(NakupTest, IsCopiedAndPrinted) {
    frmNakup& screen = open();
    child<Button>(screen, "cmdAkce(1)")->click();  // the question is left
    EXPECT_TRUE(rows(screen, "picSeznam").contains(u"kapr/1,2 kg"_s));
    child<Edit>(screen, "txtVlastni")->setText(u"houska"_s);
    child<Button>(screen, "cmdAkce(0)")->click();
    child<Button>(screen, "cmdAkce(5)")->click();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(u"☐ houska"_s));
    QTest::mouseClick(child(screen, "imgBtnHlavni(0)"), Qt::LeftButton);
    EXPECT_TRUE(run_.recorded.printedText.contains(u"[  ] houska"_s));
}

TEST_F(NakupTest, IsSavedAmongTheDocumentsAndWritesOverNoOlderList) {
    const QTemporaryDir home;
    const QByteArray before = qgetenv("HOME");
    qputenv("HOME", home.path().toUtf8());
    frmNakup& screen = open();
    child<Button>(screen, "cmdAkce(6)")->click();
    child<Button>(screen, "cmdAkce(6)")->click();
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    qputenv("HOME", before);
    ASSERT_TRUE(documents.path().startsWith(home.path())) << documents.path().toStdString();
    ASSERT_EQ(documents.entryList(QDir::Files).size(), 2);
    for (const QString& name : documents.entryList(QDir::Files)) {
        const QByteArray list = test::bytesOf(documents.filePath(name));
        EXPECT_TRUE(QString::fromUtf8(list).contains(u"☐ kapr – 1,2\u00a0kg"_s));
    }
    EXPECT_EQ(run_.messages.size(), 2);
}

TEST_F(NakupTest, TakesWhatAnotherScreenHasPutOnTheListMeanwhile) {
    frmNakup& screen = open();
    Form* above = run_.openAbove("frmNad");
    ShoppingList more = readShoppingList(run_.file());
    more.addOwn(u"houska"_s);
    storeShoppingList(run_.file(), more);
    run_.PopScreen(*above);
    EXPECT_TRUE(rows(screen, "picSeznam").contains(u"houska"_s));
    press(screen, Qt::Key_Delete);
    EXPECT_TRUE(rows(screen, "picSeznam").contains(u"houska"_s));
}

TEST_F(NakupTest, SaysOnceThatNothingCanBeKept) {
    UserFile nowhere;
    auto* screen = new frmNakup(run_, nowhere, {});
    screen->Zobraz();
    child<Edit>(*screen, "txtVlastni")->setText(u"houska"_s);
    child<Button>(*screen, "cmdAkce(0)")->click();
    child<Button>(*screen, "cmdAkce(3)")->click();
    EXPECT_EQ(run_.messages.size(), 1);
    EXPECT_EQ(rows(*screen, "picSeznam"), QString());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
