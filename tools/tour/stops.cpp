#include "app/program.h"
#include "factlines.h"
#include "screens/navigation/frmhlavni.h"
#include "tour.h"

namespace sarne {
namespace {

constexpr int kVideoStart = 1500;  // milliseconds until a clip has been opened and plays, on a busy machine
constexpr int kSlowScreen = 300;   // milliseconds that a photo, a video or an animation may take

QString button(int i) {
    return QStringLiteral("imgClick(%1)").arg(i);
}

void closeMenu(Tour& tour) {
    while (tour.program().mainScreen()->isMenuOpen()) tour.key(Qt::Key_Escape);
}

/// From the main screen to a recipe recalculated for six, in spoons: by mouse.
void mainJob(Tour& tour) {
    tour.stop(QStringLiteral("frmHlavni"));
    tour.visitHelp();
    tour.hover(button(5));
    tour.wait(kSlowScreen);
    tour.stop(QStringLiteral("frmHlavni"), QStringLiteral("pohyb"));
    tour.click(button(12));
    tour.stop(QStringLiteral("frmMenu"), QStringLiteral("12"));
    tour.type(QStringLiteral("kap"));
    tour.key(Qt::Key_Return);
    tour.stop(QStringLiteral("frmMenu"), QStringLiteral("0"));
    tour.clickItem(QStringLiteral("kapr"));
    tour.click(QStringLiteral("lblSeznam(3)"));
    tour.stop(QStringLiteral("frmSeznam"));
    tour.visitHelp();
    tour.click(QStringLiteral("imgBtn(1)"));
    tour.stop(QStringLiteral("frmSeznam"), QStringLiteral("vino"));
    tour.click(QStringLiteral("imgBtn(2)"));
    for (int section = 0; section < 8; ++section) {
        tour.click(QStringLiteral("imgBtn(%1)").arg(section));
        tour.wait(kSlowScreen);
        tour.stop(QStringLiteral("frmRecept"), QString::number(section));
    }
    tour.visitHelp();
    tour.click(QStringLiteral("imgBtnHlavni(1)"));
    tour.stop(QStringLiteral("frmStranka"), QStringLiteral("300"));
    tour.key(Qt::Key_Escape);
    tour.click(QStringLiteral("imgBtn(5)"));
    tour.click(QStringLiteral("imgPrepocet(6)"));
    tour.stop(QStringLiteral("frmRecept"), QStringLiteral("5-6porci"));
    tour.click(QStringLiteral("imgKgLzice"));
    tour.stop(QStringLiteral("frmRecept"), QStringLiteral("5-lzice"));
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_Escape);
    tour.stop(QStringLiteral("frmHlavni"), QStringLiteral("zpet"));
}

/// The same without a mouse.
void mainJobByKeyboard(Tour& tour) {
    tour.key(Qt::Key_PageUp);
    for (int step = 0; step < 20 && tour.program().mainScreen()->currentButton() != 12; ++step)
        tour.key(Qt::Key_Tab);
    tour.key(Qt::Key_Return);
    tour.type(QStringLiteral("kap"));
    tour.key(Qt::Key_Return);
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Return);
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Right);
    tour.key(Qt::Key_Right);
    tour.stop(QStringLiteral("frmSeznam"), QStringLiteral("klavesy"));
    tour.key(Qt::Key_Return);
    for (int section = 0; section < 5; ++section) tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Return);
    tour.stop(QStringLiteral("frmRecept"), QStringLiteral("klavesy"));
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_Escape);
    tour.stop(QStringLiteral("frmHlavni"), QStringLiteral("klavesy"));
}

void menus(Tour& tour) {
    for (const int topic : {2, 3, 4, 5, 6, 8, 10, 11, 14, 15, 16, 17, 18}) {
        tour.click(button(topic));
        tour.key(Qt::Key_Down);
        if (topic != 4 && topic != 6 && topic != 10 && topic != 15 && topic != 18) tour.key(Qt::Key_Right);
        tour.stop(QStringLiteral("frmMenu"), QString::number(topic));
        if (topic == 2) tour.visitHelp();
        closeMenu(tour);
    }
}

void photos(Tour& tour) {
    tour.click(button(10));
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Return);
    tour.wait(kSlowScreen);
    tour.stop(QStringLiteral("frmSit"));
    for (const int direction : {1, -1}) tour.swipe(direction);
    tour.visitHelp();
    tour.click(QStringLiteral("imgSkupina(3)"));
    tour.wait(kSlowScreen);
    tour.click(QStringLiteral("imgFoto(9)"));
    tour.stop(QStringLiteral("frmSit"), QStringLiteral("skupina3"));
    tour.click(QStringLiteral("imgBtnHlavni(0)"));
    tour.wait(kSlowScreen);
    tour.stop(QStringLiteral("frmFotoBig"));
    for (const int direction : {1, -1}) tour.swipe(direction);
    tour.visitHelp();
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_Escape);
    tour.stop(QStringLiteral("frmHlavni"), QStringLiteral("po-fotkach"));
}

void tables(Tour& tour) {
    for (int item = 1; item <= 8; ++item) {
        tour.click(button(4));
        for (int step = 0; step < item; ++step) tour.key(Qt::Key_Down);
        tour.key(Qt::Key_Return);
        tour.stop(item == 1 ? QStringLiteral("frmStranka") : QStringLiteral("FrmTabulky"),
                  QString::number(item));
        if (item < 3) tour.visitHelp();
        if (item == 2) {
            tour.key(Qt::Key_Down);
            tour.key(Qt::Key_Return);
            tour.stop(QStringLiteral("frmIndex"));
            tour.visitHelp();
            tour.key(Qt::Key_Escape);
        }
        tour.key(Qt::Key_Escape);
    }
}

/// Keywords with a thing beside them, a dish, nothing at all; an auxiliary recipe.
void keywords(Tour& tour) {
    for (const int keyword : {33, 72, 114, 808}) {
        tour.program().screens().showIndex(std::int16_t(keyword));
        tour.stop(QStringLiteral("frmIndex"), QString::number(keyword));
        tour.key(Qt::Key_Escape);
    }
}

/// The user's own cookbook, with what the tour has done by now. What was opened and when is not for the
/// pictures: it is another day each time.
void ownBook(Tour& tour) {
    tour.key(Qt::Key_F6);
    for (const int shelf : {0, 2}) {
        tour.click(QStringLiteral("cmdPolice(%1)").arg(shelf));
        tour.stop(QStringLiteral("frmKucharka"), QString::number(shelf));
    }
    tour.click(QStringLiteral("cmdPolice(3)"));
    tour.key(Qt::Key_5);
    tour.click(QStringLiteral("cmdPolice(0)"));
    tour.stop(QStringLiteral("frmKucharka"), QStringLiteral("hvezdy"));
    tour.visitHelp();
}

/// A menu of three courses and its plan.
void feast(Tour& tour) {
    tour.click(QStringLiteral("imgVedle(3)"));
    tour.stop(QStringLiteral("frmHostina"));
    for (int occasion = 0; occasion < 6; ++occasion) tour.click(QStringLiteral("cmdAkce(0)"));
    tour.key(Qt::Key_Backtab);
    tour.key(Qt::Key_Home);
    tour.key(Qt::Key_Space);
    tour.key(Qt::Key_End);
    tour.key(Qt::Key_Space);
    tour.stop(QStringLiteral("frmHostina"), QStringLiteral("plan"));
    tour.visitHelp();
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_Escape);
}

/// From a recipe to the stove and to the shop.
void kitchen(Tour& tour) {
    tour.click(button(6));
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Return);
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_F3);
    tour.click(QStringLiteral("lblSeznam(2)"));
    tour.click(QStringLiteral("imgBtn(2)"));
    tour.wait(kSlowScreen);
    tour.click(QStringLiteral("imgKuchyne(1)"));
    tour.wait(kSlowScreen);
    tour.key(Qt::Key_F3, Qt::ShiftModifier);
    tour.stop(QStringLiteral("frmNakup"));
    tour.key(Qt::Key_Space);
    tour.key(Qt::Key_End);
    tour.key(Qt::Key_Space);
    tour.stop(QStringLiteral("frmNakup"), QStringLiteral("doma"));
    tour.visitHelp();
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_F2);
    tour.stop(QStringLiteral("frmVarime"));
    tour.visitHelp();
    tour.key(Qt::Key_Return);
    tour.wait(kSlowScreen);
    for (int page = 1; page <= 3; ++page) {
        tour.stop(QStringLiteral("frmVarime"), QString::number(page));
        for (const int direction : {1, -1}) tour.swipe(direction);
        tour.key(Qt::Key_Space);
    }
    for (int page = 0; page < 30 && !tour.has(QStringLiteral("imgUvareno")); ++page)
        tour.key(Qt::Key_PageDown);
    tour.stop(QStringLiteral("frmVarime"), QStringLiteral("hotovo"));
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_Escape);
    tour.click(button(4));
    for (int item = 0; item < 9; ++item) tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Return);
    tour.stop(QStringLiteral("frmNakup"), QStringLiteral("police"));
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_F5);
    tour.stop(QStringLiteral("frmDoma"));
    for (const char* typed : {"kapr", "brambory", "cibul"}) {
        tour.type(QString::fromUtf8(typed));
        tour.key(Qt::Key_Return);
    }
    tour.stop(QStringLiteral("frmDoma"), QStringLiteral("nalezeno"));
    tour.visitHelp();
    tour.key(Qt::Key_Escape);
    ownBook(tour);
    feast(tour);
}

/// Quick recipes, whose photo stands in a window of its own: from the second item of a topic.
void quickRecipes(Tour& tour) {
    tour.click(button(5));
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Right);
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Return);
    tour.stop(QStringLiteral("frmSeznam"), QStringLiteral("rychle"));
    tour.click(QStringLiteral("lblSeznam(1)"));
    tour.stop(QStringLiteral("frmSeznam"), QStringLiteral("rychle-vybrany"));
    tour.click(QStringLiteral("imgBtn(1)"));
    tour.stop(QStringLiteral("frmSeznam"), QStringLiteral("rychle-vino"));
    tour.key(Qt::Key_Escape);
    closeMenu(tour);
}

/// How many portions is asked for in a dialog, and refused in a message.
void numberDialog(Tour& tour) {
    tour.program().screens().showRecipe(1);
    tour.click(QStringLiteral("imgBtn(5)"));
    tour.later([&] {
        tour.stop(QStringLiteral("frmDialog"));
        tour.type(QStringLiteral("6,5"));
        tour.stop(QStringLiteral("frmDialog"), QStringLiteral("zadano"));
        tour.key(Qt::Key_Escape);
    });
    tour.click(QStringLiteral("imgPrepocet(10)"));
    tour.key(Qt::Key_Escape);
}

/// Every area of the gallery in front: it shows its card, or leads to a keyword.
void areas(Tour& tour, int topic) {
    for (int i = 0; tour.has(QStringLiteral("lblOblast(%1)").arg(i)); ++i) {
        tour.click(QStringLiteral("lblOblast(%1)").arg(i));
        tour.stop(tour.frontName(), QStringLiteral("%1-%2").arg(topic).arg(i));
        tour.key(Qt::Key_Escape);
    }
}

void galleries(Tour& tour) {
    for (const int topic : {1, 9, 13}) {
        tour.click(button(topic));
        tour.key(Qt::Key_Down);
        tour.key(Qt::Key_Return);
        tour.wait(kSlowScreen);
        tour.stop(QStringLiteral("frmSponzor"), QString::number(topic));
        if (topic == 1) tour.visitHelp();
        areas(tour, topic);
        tour.key(Qt::Key_Escape);
    }
}

void media(Tour& tour) {
    tour.click(button(7));
    tour.stop(QStringLiteral("frmNastavHudbu"));
    tour.visitHelp();
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_F10);
    tour.stop(QStringLiteral("frmZobrazeni"));
    tour.visitHelp();
    tour.key(Qt::Key_Escape);
    tour.click(button(18));
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Return);
    tour.wait(kVideoStart);
    tour.key(Qt::Key_Space);
    tour.picture(QStringLiteral("frmVideo"));
    tour.click(QStringLiteral("ImgTlacitko(4)"));
    tour.wait(kSlowScreen);
    tour.stop(QStringLiteral("frmVideo"), QStringLiteral("na-zacatku"));
    tour.doubleClick(QStringLiteral("picVideo"));
    tour.picture(QStringLiteral("frmVideo-cely-displej"));
    tour.key(Qt::Key_Escape);
    tour.visitHelp();
    tour.key(Qt::Key_Escape);
}

void printing(Tour& tour) {
    tour.click(button(6));
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Return);
    tour.key(Qt::Key_Down);
    tour.key(Qt::Key_Return);
    tour.later([&] {
        tour.stop(QStringLiteral("frmSave"));
        tour.key(Qt::Key_Escape);
    });
    tour.click(QStringLiteral("imgBtnHlavni(0)"));
    tour.click(QStringLiteral("lblSeznam(1)"));
    tour.doubleClick(QStringLiteral("lblSeznam(1)"));
    tour.click(QStringLiteral("imgBtnHlavni(0)"));
    tour.stop(QStringLiteral("frmPrint"));
    tour.visitHelp();
    tour.later([&] {
        tour.stop(QStringLiteral("frmTiskarna"));
        tour.key(Qt::Key_Escape);
    });
    tour.click(QStringLiteral("cmdTiskarna"));
    tour.click(QStringLiteral("cmdNahled"));
    tour.stop(QStringLiteral("frmNahled"));
    for (const int direction : {1, -1}) tour.swipe(direction);
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_Escape);
}

void ending(Tour& tour) {
    tour.later([&] {
        tour.stop(QStringLiteral("frmMessage"), QStringLiteral("konec"));
        tour.key(Qt::Key_Escape);
    });
    tour.click(button(0));
    tour.stop(QStringLiteral("frmHlavni"), QStringLiteral("po-ne"));
    tour.later([&] { tour.key(Qt::Key_Return); });
    tour.click(button(0));
    if (!tour.program().hasEnded()) tour.fault(QStringLiteral("Yes did not end the program"));
}

}  // namespace

namespace {

struct Part {
    const char* name;
    void (*visit)(Tour&);
};
constexpr Part kParts[] = {{"job", mainJob},          {"keyboard", mainJobByKeyboard},
                           {"menus", menus},          {"photos", photos},
                           {"tables", tables},        {"keywords", keywords},
                           {"galleries", galleries},  {"media", media},
                           {"printing", printing},    {"quick", quickRecipes},
                           {"dialogs", numberDialog}, {"recipes", recipeFacts},
                           {"kitchen", kitchen},      {"ending", ending}};

}  // namespace

QStringList tourParts() {
    QStringList names;
    for (const Part& part : kParts) names << QLatin1String(part.name);
    return names;
}

void walk(Tour& tour, const QStringList& parts) {
    for (const Part& part : kParts)
        if (parts.isEmpty() || parts.contains(QLatin1String(part.name))) part.visit(tour);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
