// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "db/recipemarks.h"
#include "kitchen/cooked.h"
#include "kitchen/goods.h"
#include "kitchen/shoppingstore.h"
#include "kitchenbook.h"
#include "screens/kitchen/frmdoma.h"
#include "screens/kitchen/frmhostina.h"
#include "screens/kitchen/frmkucharka.h"
#include "screens/kitchen/frmnakup.h"
#include "screens/kitchen/frmvarime.h"
#include "screens/kitchen/kitchenplates.h"
#include "support/explore.h"

namespace sarne {
namespace {

using test::exploreOrLook;
using test::Look;

TEST(Looks, AtHome) {
    for (const bool found : {false, true})
        exploreOrLook(found, found ? "doma-nalezeno" : "doma", [=](const Look& look) {
            KitchenRun run;
            auto* screen = new frmDoma(run, run.file());
            screen->Zobraz();
            if (found) {
                QTest::keyClicks(run.window.focusWidget(), u"kap"_s);
                press(*screen, Qt::Key_Return);
            }
            look(run);
        });
}

TEST(Looks, Dinner) {
    for (const bool planned : {false, true})
        exploreOrLook(planned, planned ? "hostina-s-planem" : "hostina", [=](const Look& look) {
            KitchenRun run;
            run.database.Execute(u"UPDATE Fakta SET Chod = 'teplé', Obdobi = 'zima'"_s);
            run.database.Execute(
                u"INSERT INTO Fakta (ID, Minut, Mesice, Chod, Obdobi) VALUES (6,30,4095,'polévka','')"_s);
            auto* screen =
                new frmHostina(run, run.file(),
                               {[&run](const QString& asked) { return run.announced << asked, 8; },
                                [&run](const QString& asked) { return run.announced << asked, u"12.30"_s; }},
                               11);
            screen->Zobraz();
            if (planned)
                for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_Return}) press(*screen, key);
            look(run);
        });
}

TEST(Looks, OwnCookbook) {
    for (const bool something : {false, true})
        exploreOrLook(something, something ? "kucharka" : "kucharka-prazdna", [=](const Look& look) {
            KitchenRun run;
            if (something) {
                RecipeMarks(run.file()).setStars(5, u"Kapr na kmíně"_s, 2);
                keepCooked(run.file(), 6, u"Bez kroků"_s, {2026, 11, 1}, 4);
            }
            (new frmKucharka(run, run.file(), {2026, 11, 22}))->Zobraz();
            look(run);
        });
}

TEST(Looks, Shopping) {
    for (const bool something : {false, true})
        exploreOrLook(something, something ? "nakup" : "nakup-prazdny", [=](const Look& look) {
            KitchenRun run;
            ShoppingList list;
            if (something)
                list.addRecipe(shoppingNeeds(readIngredients(run.database, 5), Goods(run.database),
                                             {5, u"Kapr na kmíně"_s, 4}, 4));
            storeShoppingList(run.file(), list);
            const QByteArray home = qgetenv("HOME");
            const QTemporaryDir documents;
            qputenv("HOME", documents.path().toUtf8());
            (new frmNakup(run, run.file(), [](const QString&) { return 1500; }))->Zobraz();
            look(run);
            qputenv("HOME", home);
        });
}

TEST(Looks, AtTheStove) {
    for (const int page : {0, 1, 2, 4})
        exploreOrLook(page != 2, qPrintable(u"varime-%1"_s.arg(page)), [=](const Look& look) {
            KitchenRun run;
            auto* screen = new frmVarime(run, run.file(), [&run](const QString& name, int seconds) {
                run.announced << u"timer %1 %2"_s.arg(name).arg(seconds);
            });
            screen->Zobraz(5, {4, UnitSystem::Weights}, {2026, 10, 11});
            for (int turned = 0; turned < page; ++turned) press(*screen, Qt::Key_PageDown);
            look(run);
        });
}

TEST(Looks, Timers) {
    exploreOrLook(false, "casovace", [](const Look& look) {
        KitchenRun run;
        run.openAbove("frmHlavni");
        KitchenTimers timers;
        KitchenPlates plates(run, timers, run.file());
        plates.start(u"Brambory"_s, 1200);
        plates.start(u"Ryba"_s, 600);
        run.time.time = 600'000;
        plates.look();
        plates.say(u"Kapr na kmíně je na seznamu"_s, {});
        look(run);
    });
}

}  // namespace
}  // namespace sarne
