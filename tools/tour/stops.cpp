#include "app/program.h"
#include "screens/navigation/frmhlavni.h"
#include "tour.h"

namespace sarne {
namespace {

QString button(int i) {
    return QStringLiteral("imgClick(%1)").arg(i);
}

/// From the main screen to a recipe recalculated for six, in spoons: by mouse.
void mainJob(Tour& tour) {
    tour.stop(QStringLiteral("frmHlavni"));
    tour.hover(button(5));
    tour.wait(250);
    tour.stop(QStringLiteral("frmHlavni"), QStringLiteral("pohyb"));
    tour.click(button(12));
    tour.stop(QStringLiteral("frmMenu"), QStringLiteral("12"));
    tour.type(QStringLiteral("kap"));
    tour.key(Qt::Key_Return);
    tour.stop(QStringLiteral("frmMenu"), QStringLiteral("0"));
    tour.clickItem(QStringLiteral("kapr"));
    tour.click(QStringLiteral("lblSeznam(1)"));
    tour.stop(QStringLiteral("frmSeznam"));
    tour.click(QStringLiteral("imgBtn(1)"));
    tour.stop(QStringLiteral("frmSeznam"), QStringLiteral("vino"));
    tour.click(QStringLiteral("imgBtn(2)"));
    for (int section = 0; section < 8; ++section) {
        tour.click(QStringLiteral("imgBtn(%1)").arg(section));
        tour.wait(200);
        tour.stop(QStringLiteral("frmRecept"), QString::number(section));
    }
    tour.click(QStringLiteral("imgBtn(5)"));
    tour.click(QStringLiteral("imgPrepocet(6)"));
    tour.stop(QStringLiteral("frmRecept"), QStringLiteral("5-6porci"));
    tour.click(QStringLiteral("imgKgLzice"));
    tour.stop(QStringLiteral("frmRecept"), QStringLiteral("5-lzice"));
    tour.key(Qt::Key_Escape);
    tour.key(Qt::Key_Escape);
    tour.stop(QStringLiteral("frmHlavni"), QStringLiteral("zpet"));
}

void menus(Tour& tour) {
    for (const int topic : {2, 3, 5, 8, 16}) {
        tour.click(button(topic));
        tour.key(Qt::Key_Down);
        if (topic != 3) tour.key(Qt::Key_Right);
        tour.stop(QStringLiteral("frmMenu"), QString::number(topic));
        while (tour.program().mainScreen()->isMenuOpen()) tour.key(Qt::Key_Escape);
    }
}

}  // namespace

void walk(Tour& tour) {
    mainJob(tour);
    menus(tour);
}

}  // namespace sarne
