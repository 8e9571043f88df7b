#include "app/programscreens.h"

#include <algorithm>

#include "app/program.h"
#include "dialogs/frmdialog.h"
#include "dialogs/frmzobrazeni.h"
#include "media/frmnastavhudbu.h"
#include "media/frmvideo.h"
#include "screens/browse/frmfotobig.h"
#include "screens/browse/frmsit.h"
#include "screens/index/frmindex.h"
#include "screens/index/frmsponzor.h"
#include "screens/index/frmstranka.h"
#include "screens/index/frmtabulky.h"
#include "screens/index/pages.h"
#include "screens/navigation/frmhlavni.h"
#include "screens/recipe/frmrecept.h"

namespace sarne {
namespace {

const QString kPrinterChoice = QStringLiteral("Tiskarna");

/// The item of the topic of tables that is none: the shopping list.
constexpr std::int16_t kShoppingItem = 9;

}  // namespace

ProgramScreens::ProgramScreens(Program& program)
    : program_(program),
      printing_(program, program.platform().printer,
                {[&program] { return program.userFile().value(kPrinterChoice); },
                 [&program](const QString& choice) { program.userFile().setValue(kPrinterChoice, choice); }}),
      kitchen_(program) {}

void ProgramScreens::showMain() {
    main_ = new frmHlavni(program_);
    main_->Zobraz();
}

void ProgramScreens::returnToMain() {
    if (main_) main_->SkryjMenu();
}

void ProgramScreens::showList(const QString& ids, const QString& source, const QString& subject) {
    const bool help = source.compare(u"Help", Qt::CaseInsensitive) == 0;
    if (help && helpList_ && program_.FormStack.contains(*helpList_)) return returnToHelpList();
    auto* list = new frmSeznam(program_, &listPanel_);
    if (help) helpList_ = list;
    list->setSubject(subject);
    list->Zobraz(ids, source);
}

void ProgramScreens::returnToHelpList() {
    while (program_.FormStack.top() != helpList_) program_.PopScreen(*program_.FormStack.top());
}

void ProgramScreens::showRecipeAt(std::int16_t id, int section) {
    const auto askPortions = [this](const QString& prompt) { return askNumber(program_, prompt); };
    kitchen_.opened(id);
    auto* screen = new frmRecept(program_, lookedAt_, askPortions);
    screen->Zobraz(id);
    if (section > 0) screen->openSection(section);
}

void ProgramScreens::showGrid() {
    (new frmSit(program_))->Zobraz();
}

void ProgramScreens::showPhotos(const PhotoRequest& request) {
    (new frmFotoBig(program_))->Zobraz(request);
}

void ProgramScreens::showVideo(std::int16_t number) {
    const auto& makePlayer = program_.platform().makePlayer;
    (new frmVideo(program_, makePlayer ? makePlayer() : nullptr))->Zobraz(number);
}

void ProgramScreens::showMusicSettings() {
    (new frmNastavHudbu(program_))->Zobraz();
}

void ProgramScreens::showEyes() {
    const auto isOpen = [](const QPointer<Form>& form) {
        return form && form->name() == QLatin1String("frmZobrazeni");
    };
    if (!program_.FormStack.top() || std::ranges::any_of(program_.FormStack.screens(), isOpen)) return;
    (new frmZobrazeni(program_))->Zobraz();
}

void ProgramScreens::showPage(const QString& id) {
    (new frmStranka(program_))->Zobraz(id);
}

void ProgramScreens::showHelpFor(const QString& formName) {
    const QString page = helpPageFor(program_.Db(), formName);
    const auto additions = helpAdditions(formName, program_.condition());
    if (page.isEmpty() && additions.empty())
        showList({}, QStringLiteral("Help"), {});
    else
        (new frmStranka(program_))->Zobraz(page, additions);
}

void ProgramScreens::showTables(std::int16_t item) {
    if (item == kShoppingItem) return showShoppingList();
    (new FrmTabulky(program_))->Zobraz(item);
}

void ProgramScreens::showIndex(std::int16_t keyword) {
    (new frmIndex(program_))->Zobraz(keyword);
}

void ProgramScreens::showSponsor(std::int16_t topic, const QString& text) {
    (new frmSponzor(program_))->Zobraz(topic, text);
}

void ProgramScreens::showPrintSelection(const std::vector<PrintEntry>& entries, const QString& mode) {
    printing_.showSelection(entries, mode, lookedAt_);
}

void ProgramScreens::printRecipes(const std::vector<std::int16_t>& ids, const Serving& serving) {
    printing_.printRecipes(ids, serving);
}

bool ProgramScreens::canCook(std::int16_t id) {
    return kitchen_.canCook(id);
}

void ProgramScreens::cookRecipe(std::int16_t id, const Serving& serving) {
    kitchen_.cook(id, serving);
}

void ProgramScreens::addToShoppingList(const std::vector<std::int16_t>& ids, const Serving& serving) {
    kitchen_.addToShoppingList(ids, serving);
}

void ProgramScreens::showShoppingList() {
    kitchen_.showShoppingList();
}

void ProgramScreens::showPantry() {
    kitchen_.showPantry();
}

void ProgramScreens::stopRinging() {
    kitchen_.stopRinging();
}

void ProgramScreens::printText(const QString& title, const QString& text) {
    printing_.printText(title, text);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
