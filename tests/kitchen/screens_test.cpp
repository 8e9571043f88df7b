#include <gtest/gtest.h>

#include <QStandardPaths>

#include "db/recipemarks.h"
#include "kitchenbook.h"
#include "screens/kitchen/frmdoma.h"
#include "screens/kitchen/frmhostina.h"
#include "screens/kitchen/frmkucharka.h"
#include "screens/kitchen/frmnakup.h"
#include "screens/kitchen/frmvarime.h"
#include "support/files.h"

namespace sarne {
namespace {

/// What the records of the screens cannot tell: what is there when one comes again, and what files hold.
class KitchenScreens : public testing::Test {
  protected:
    KitchenScreens() { EXPECT_TRUE(storeShoppingList(run_.file(), shoppingList(run_))); }
    frmNakup& openList() {
        auto* screen = new frmNakup(run_, run_.file(), [](const QString&) { return 0; });
        screen->Zobraz();
        return *screen;
    }
    frmDoma& openPantry() {
        auto* screen = new frmDoma(run_, run_.file());
        EXPECT_TRUE(screen->Zobraz());
        return *screen;
    }
    KitchenRun run_;
};

TEST_F(KitchenScreens, ThePantryRemembersWhatIsAtHome) {
    frmDoma& first = openPantry();
    QTest::keyClicks(run_.window.focusWidget(), u"kapr"_s);
    press(first, Qt::Key_Return);
    press(first, Qt::Key_Escape);
    EXPECT_EQ(openPantry().query().have, std::vector<int>{1});
}

TEST_F(KitchenScreens, StarsAreGivenByMouseAndTakenBackByTheSameStar) {
    RecipeMarks(run_.file()).setStars(6, u"Bez kroků"_s, 1);
    auto* screen = new frmKucharka(run_, run_.file(), {2026, 11, 22});
    screen->Zobraz();
    auto* stars = child<StarRow>(*screen, "picHvezdy");
    for (const int kept : {3, 0}) {
        QTest::mouseClick(stars, Qt::LeftButton, {}, stars->toPixels({5 * stars->twips().width() / 10, 200}));
        EXPECT_EQ(RecipeMarks(run_.file()).stars(6, u"Bez kroků"_s), kept);
    }
}

TEST_F(KitchenScreens, TheListRemembersWhatIsBought) {
    frmNakup& screen = openList();
    press(screen, Qt::Key_Return);
    press(screen, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(rows(openList(), "picSeznam").contains(u"x kapr"_s));
}

TEST_F(KitchenScreens, TheListIsSavedAmongTheDocumentsAndWritesOverNoOlderOne) {
    const QTemporaryDir home;
    const QByteArray before = qgetenv("HOME");
    qputenv("HOME", home.path().toUtf8());
    frmNakup& screen = openList();
    for (int time = 0; time < 2; ++time) child<Button>(screen, "cmdAkce(6)")->click();
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

TEST_F(KitchenScreens, TheListTakesWhatAnotherScreenHasPutOnItMeanwhile) {
    frmNakup& screen = openList();
    Form* above = run_.openAbove("frmNad");
    ShoppingList more = readShoppingList(run_.file());
    more.addOwn(u"houska"_s);
    storeShoppingList(run_.file(), more);
    run_.PopScreen(*above);
    EXPECT_TRUE(rows(screen, "picSeznam").contains(u"houska"_s));
    press(screen, Qt::Key_Delete);
    EXPECT_TRUE(rows(screen, "picSeznam").contains(u"houska"_s));
}

TEST_F(KitchenScreens, EachSaysOnceThatNothingCanBeKept) {
    UserFile nowhere;
    auto* stove = new frmVarime(run_, nowhere, {});
    ASSERT_TRUE(stove->Zobraz(5, {}, {2026, 10, 11}));
    for (int page = 0; page < 8; ++page) press(*stove, Qt::Key_PageDown);
    press(*stove, Qt::Key_Return);
    EXPECT_EQ(run_.announced.last(), u"Nelze zapsat"_s);
    run_.messages.clear();
    auto* screen = new frmNakup(run_, nowhere, {});
    screen->Zobraz();
    child<Edit>(*screen, "txtVlastni")->setText(u"houska"_s);
    child<Button>(*screen, "cmdAkce(0)")->click();
    child<Button>(*screen, "cmdAkce(3)")->click();
    EXPECT_EQ(run_.messages.size(), 1);
    EXPECT_EQ(rows(*screen, "picSeznam"), QString());
}

TEST_F(KitchenScreens, WhatTheBookDoesNotKnowIsNotShown) {
    for (const std::int16_t id : {std::int16_t{6}, std::int16_t{99}})
        EXPECT_FALSE((new frmVarime(run_, run_.file(), {}))->Zobraz(id, {}, {2026, 10, 11}));
    ASSERT_TRUE(run_.database.Execute(u"DROP TABLE Fakta"_s));
    EXPECT_FALSE((new frmHostina(run_, run_.file(), {}, 11))->Zobraz());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(run_.window.findChildren<Form*>().empty());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
