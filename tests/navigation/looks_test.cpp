#include <QTest>

#include "menudatabase.h"
#include "screens/navigation/frmhlavni.h"
#include "screens/navigation/frmmenu.h"
#include "support/explore.h"

namespace sarne {
namespace {

using test::explore;
using test::Look;
using test::walk;

class Main : public MenuFixture {
  public:
    Main() {
        SetUp();
        run.SoundFlags[kEffects] = true;
        screen = new frmHlavni(run);
        screen->Zobraz();
    }
    void open(int thing, std::initializer_list<Qt::Key> keys = {}) {
        QTest::mouseClick(screen->findChild<QWidget*>(u"imgClick(%1)"_s.arg(thing)), Qt::LeftButton);
        for (const Qt::Key key : keys) QTest::keyClick(QApplication::focusWidget(), key);
    }
    using MenuFixture::run;
    frmHlavni* screen = nullptr;

  private:
    void TestBody() override {}
};

TEST(Looks, MainScreen) {
    explore("hlavni", [](const Look& look) {
        Main main;
        look(main.run);
    });
}

TEST(Looks, LightOverTheThings) {
    test::expectLooks("hlavni-svetlo", [](const Look& look) {
        Main main;
        main.screen->showThings();
        for (int tick = 0; tick < 12; ++tick) main.screen->findChildren<Timer*>().at(1)->fire();
        look(main.run);
    });
}

TEST(Looks, Menus) {
    const struct {
        const char* name;
        int thing;
        std::initializer_list<Qt::Key> keys;
    } menus[] = {{"menu", 2, {}},
                 {"menu-vetev", 2, {Qt::Key_Down, Qt::Key_Right}},
                 {"menu-recepty", 3, {Qt::Key_Down}},
                 {"menu-hledani", 12, {}},
                 {"menu-nalezeno", 12, {Qt::Key_K, Qt::Key_A, Qt::Key_P, Qt::Key_Return}},
                 {"menu-nenalezeno", 12, {Qt::Key_Q, Qt::Key_Q, Qt::Key_Return}},
                 {"menu-na-kraji", 17, {Qt::Key_Down, Qt::Key_Right}}};
    for (const auto& menu : menus)
        explore(menu.name, [&](const Look& look) {
            Main main;
            main.open(menu.thing, menu.keys);
            look(main.run);
        });
}

TEST(Looks, MainScreenInUse) {
    test::walkAll("cesty", [](const QString&, const Look& look) {
        Main main;
        look(main.run);
    });
    // A choice that has opened no screen gives the keyboard back; the light goes out for whoever acts.
    walk(
        "hlavni-navrat",
        [](const Look& look) {
            Main main;
            main.open(3);
            main.screen->SkryjMenu();
            main.screen->showThings();
            look(main.run);
        },
        "tick tick tick Return Escape tick Space Escape Tab hover:700,590 Return");
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
