#include "screens/index/frmstranka.h"

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/screens.h"
#include "richtext/rtfdocument.h"

namespace sarne {
namespace {

QString withAdditions(const QString& page, const std::vector<PageAddition>& additions) {
    RtfDocument behind;
    for (const PageAddition& addition : additions) {
        if (!addition.heading.isEmpty()) behind.paragraph(addition.heading, {});
        behind.paragraph(addition.text + u'\n');
    }
    return behind.appendedTo(page);
}

}  // namespace

frmStranka::frmStranka(basSarne& sarne) : TextForm(sarne, QStringLiteral("frmStranka")) {}

bool frmStranka::Zobraz(const QString& id, const std::vector<PageAddition>& additions) {
    const QString help = Texts::tr("Nápověda");
    std::optional<Page> page = readPage(app().Db(), id);
    if (!page && additions.empty()) {
        unload();
        return false;
    }
    if (!page) page = Page{0, help, {}};
    id_ = page->id;
    showText(page->name, additions.empty() ? page->text : withAdditions(page->text, additions), help);
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

// SPDX-License-Identifier: GPL-3.0-or-later
