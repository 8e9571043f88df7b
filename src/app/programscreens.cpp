#include "app/programscreens.h"

#include "app/program.h"
#include "screens/navigation/frmhlavni.h"

namespace sarne {

void ProgramScreens::showMain() {
    main_ = new frmHlavni(program_);
    main_->Zobraz();
}

void ProgramScreens::returnToMain() {
    if (main_) main_->SkryjMenu();
}

void ProgramScreens::showList(const QString&, const QString&) {}
void ProgramScreens::showRecipe(std::int16_t) {}
void ProgramScreens::showGrid() {}
void ProgramScreens::showPhotos(const PhotoRequest&) {}
void ProgramScreens::showVideo(std::int16_t) {}
void ProgramScreens::showMusicSettings() {}
void ProgramScreens::showPage(const QString&) {}
void ProgramScreens::showHelpFor(const QString&) {}
void ProgramScreens::showTables(std::int16_t) {}
void ProgramScreens::showIndex(std::int16_t) {}
void ProgramScreens::showSponsor(std::int16_t, const QString&) {}
void ProgramScreens::showPrintSelection(const std::vector<PrintEntry>&, const QString&) {}
void ProgramScreens::printRecipes(const std::vector<std::int16_t>&) {}

}  // namespace sarne
