#include "doors.h"

#include <QTest>

#include "app/program.h"

namespace sarne {
namespace {

void clickOnTop(Program& program, const QString& control) {
    const Form* top = program.FormStack.top();
    if (auto* found = top ? top->findChild<QWidget*>(control) : nullptr)
        QTest::mouseClick(found, Qt::LeftButton);
}

void choosePrint(Program& program, std::int16_t id) {
    program.screens().showPrintSelection(
        {{QStringLiteral("kapr"), id, true}, {QStringLiteral("losos"), 2, false}}, {});
}

void print(Program& program, std::int16_t id) {
    program.screens().printRecipes({id}, {});
}

constexpr Door kDoors[] = {
    {"frmMenu", [](Program& program, std::int16_t) { clickOnTop(program, QStringLiteral("imgClick(5)")); }},
    {"frmSeznam",
     [](Program& program, std::int16_t) { program.screens().showList({}, QStringLiteral("Recepty")); }},
    {"frmRychlyRecept",
     [](Program& program, std::int16_t) {
         program.screens().showList({}, QStringLiteral("RychleRecepty"));
         QTest::keyClick(program.FormStack.top(), Qt::Key_Down);
     }},
    {"frmRecept", [](Program& program, std::int16_t id) { program.screens().showRecipe(id); }},
    {"frmSit", [](Program& program, std::int16_t) { program.screens().showGrid(); }},
    {"frmFotoBig",
     [](Program& program, std::int16_t id) {
         program.screens().showPhotos({{id, 1, 2}, 0, false, 4000});
     }},
    {"frmVideo",
     [](Program& program, std::int16_t id) { program.screens().showVideo(std::int16_t(1 + id % 9)); }},
    {"frmNastavHudbu", [](Program& program, std::int16_t) { program.screens().showMusicSettings(); }},
    {"frmStranka", [](Program& program, std::int16_t) { program.screens().showPage(QStringLiteral("10")); }},
    {"FrmTabulky",
     [](Program& program, std::int16_t id) { program.screens().showTables(std::int16_t(2 + id % 7)); }},
    {"frmIndex", [](Program& program, std::int16_t id) { program.screens().showIndex(id); }},
    {"frmSponzor",
     [](Program& program, std::int16_t id) { program.screens().showSponsor(id % 2 ? 9 : 13, QString()); }},
    {"frmSave", choosePrint},
    {"frmPrint", print},
    {"frmTiskarna",
     [](Program& program, std::int16_t id) {
         print(program, id);
         clickOnTop(program, QStringLiteral("cmdTiskarna"));
     }},
    {"frmNahled",
     [](Program& program, std::int16_t id) {
         print(program, id);
         clickOnTop(program, QStringLiteral("cmdNahled"));
     }},
    {"frmVarime", [](Program& program, std::int16_t id) { program.screens().cookRecipe(id, {}); }},
    {"frmNakup",
     [](Program& program, std::int16_t id) {
         program.screens().addToShoppingList({id}, {});
         program.screens().showShoppingList();
     }},
    {"frmDoma", [](Program& program, std::int16_t) { program.screens().showPantry(); }},
    {"frmKucharka", [](Program& program, std::int16_t) { program.screens().showOwnCookbook(); }},
    {"frmHostina", [](Program& program, std::int16_t) { program.screens().showFeast(); }},
};

}  // namespace

std::span<const Door> doors() {
    return kDoors;
}

void goBackToMain(Program& program) {
    constexpr int kTries = 20;
    for (int tries = 0; program.FormStack.count() > 1 && tries < kTries; ++tries)
        QTest::keyClick(program.FormStack.top(), Qt::Key_Escape);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
