// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "db/recipemarks.h"
#include "kitchen/cooked.h"
#include "kitchenbook.h"
#include "screens/kitchen/frmdoma.h"
#include "screens/kitchen/frmhostina.h"
#include "screens/kitchen/frmkucharka.h"
#include "screens/kitchen/frmnakup.h"
#include "screens/kitchen/frmvarime.h"
#include "screens/kitchen/kitchenplates.h"
#include "support/acts.h"
#include "support/explore.h"

namespace sarne {
namespace {

using test::exploreOrLook;
using test::Look;

void home(KitchenRun& run) {
    (new frmDoma(run, run.file()))->Zobraz();
}

void own(KitchenRun& run) {
    (new frmKucharka(run, run.file(), {2026, 11, 22}))->Zobraz();
}

void shop(KitchenRun& run) {
    storeShoppingList(run.file(), shoppingList(run));
    (new frmNakup(run, run.file(), [amount = 1500.](const QString&) mutable {
        return std::exchange(amount, 1);
    }))->Zobraz();
}

void stove(KitchenRun& run, const Serving& serving) {
    auto* screen = new frmVarime(run, run.file(), [&run](const QString& name, int seconds) {
        run.announced << u"timer %1 %2"_s.arg(name).arg(seconds);
    });
    screen->Zobraz(5, serving, {2026, 10, 11});
}

void stoveWithNote(KitchenRun& run) {
    run.database.Execute(u"UPDATE Recepty SET Vlastni = 'méně soli ' WHERE ID = 5"_s);
    run.speech.find();
    stove(run, {4, UnitSystem::Weights});
}

void feast(KitchenRun& run) {
    run.database.Execute(u"UPDATE Fakta SET Chod = 'teplé', Obdobi = 'zima'"_s);
    run.database.Execute(
        u"INSERT INTO Fakta (ID, Minut, Mesice, Chod, Obdobi) VALUES (6,30,4095,'polévka','')"_s);
    const auto ask = [&run](const QString& asked) { return run.announced << asked, 8; };
    // No hour is told as such, and nothing of it is taken.
    const auto askTime = [&run](const QString& asked) {
        run.announced << asked;
        return run.announced.count(asked) == 2 ? u"brzy"_s : u"12.30"_s;
    };
    (new frmHostina(run, run.file(), {ask, askTime}, 11))->Zobraz();
}

TEST(Looks, AtHome) {
    for (const bool found : {false, true})
        exploreOrLook(found, found ? "doma-nalezeno" : "doma", [=](const Look& look) {
            KitchenRun run;
            home(run);
            if (found)
                for (const char* act : {"type:kap", "Return"}) test::perform(run, QLatin1String(act));
            look(run);
        });
}

TEST(Looks, Dinner) {
    for (const bool planned : {false, true})
        exploreOrLook(planned, planned ? "hostina-s-planem" : "hostina", [=](const Look& look) {
            KitchenRun run;
            feast(run);
            if (planned)
                for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_Return})
                    press(*run.FormStack.top(), key);
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
            own(run);
            look(run);
        });
}

/// A book that does not know what cooking needs offers what it can.
TEST(Looks, OwnCookbookWithoutTheKitchensTables) {
    test::expectLooks("kucharka-bez-tabulek", [](const Look& look) {
        KitchenRun run;
        for (const char* table : {"Fakta", "Zbozi", "Kroky", "KrokySur", "Uprava", "Vyteznost"})
            run.database.Execute(u"DROP TABLE "_s + QString::fromUtf8(table));
        run.recorded.goods = false;
        RecipeMarks(run.file()).setStars(5, u"Kapr na kmíně"_s, 2);
        own(run);
        look(run);
    });
}

TEST(Looks, Shopping) {
    for (const bool something : {false, true})
        exploreOrLook(something, something ? "nakup" : "nakup-prazdny", [=](const Look& look) {
            KitchenRun run;
            const QByteArray before = qgetenv("HOME");
            const QTemporaryDir documents;
            qputenv("HOME", documents.path().toUtf8());
            something ? shop(run) : (new frmNakup(run, run.file(), {}))->Zobraz();
            look(run);
            qputenv("HOME", before);
        });
}

TEST(Looks, AtTheStove) {
    for (const int page : {0, 1, 2, 4})
        exploreOrLook(page != 2, qPrintable(u"varime-%1"_s.arg(page)), [=](const Look& look) {
            KitchenRun run;
            stove(run, {4, UnitSystem::Weights});
            for (int turned = 0; turned < page; ++turned) test::perform(run, u"PgDown"_s);
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

TEST(Looks, InUse) {
    const auto weights = [](KitchenRun& run) { stove(run, {4, UnitSystem::Weights}); };
    const auto spoons = [](KitchenRun& run) { stove(run, {6, UnitSystem::Spoons}); };
    const auto starred = [](KitchenRun& run) {
        RecipeMarks(run.file()).setStars(5, u"Kapr na kmíně"_s, 2);
        RecipeMarks(run.file()).setStars(6, u"Bez kroků"_s, 1);
        own(run);
    };
    const auto planned = [](KitchenRun& run) {
        storeDinner(run.file(), {{}, {99, 6, 5}, 4, 1080});
        feast(run);
    };
    const auto cooked = [](KitchenRun& run) {
        for (const int month : {11, 10}) keepCooked(run.file(), 6, u"Bez kroků"_s, {2026, month, 1}, 4);
        own(run);
    };
    const std::map<QString, std::function<void(KitchenRun&)>> screens{
        {u"doma"_s, home},
        {u"kucharka"_s, starred},
        {u"hostina"_s, planned},
        {u"uvareno"_s, cooked},
        {u"nakup"_s, shop},
        {u"varime"_s, weights},
        {u"varime-mnoho"_s,
         [&](KitchenRun& run) {
             run.database.Execute(
                 u"UPDATE Suroviny SET Polozka = 'kapr ' || replace(hex(zeroblob(30)), '00', 'šupinatý ')"_s);
             weights(run);
         }},
        {u"varime-s-poznamkou"_s, stoveWithNote},
        {u"varime-lzicemi"_s, spoons}};
    test::walkAll("cesty", [&](const QString& what, const Look& look) {
        KitchenRun run;
        screens.at(what)(run);
        look(run);
    });
}

}  // namespace
}  // namespace sarne
