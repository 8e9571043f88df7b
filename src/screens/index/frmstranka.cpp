#include "screens/index/frmstranka.h"

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/screens.h"
#include "screens/index/pages.h"

namespace sarne {

frmStranka::frmStranka(basSarne& app) : TextForm(app, QStringLiteral("frmStranka")) {}

bool frmStranka::Zobraz(const QString& id) {
    const std::optional<Page> page = readPage(app().Db(), id);
    if (!page) {
        unload();
        return false;
    }
    id_ = page->id;
    showText(page->name, page->text, Texts::tr("Nápověda"));
    open(view());
    return true;
}

void frmStranka::help() {
    if (helpPageFor(app().Db(), name()) == QString::number(id_)) return app().Beep();
    TextForm::help();
}

void frmStranka::helpButton() {
    app().screens().showList({}, QStringLiteral("Help"));
}

}  // namespace sarne
