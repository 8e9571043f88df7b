#include "print/printing.h"

#include "db/database.h"
#include "forms/bassarne.h"
#include "print/frmsave.h"

namespace sarne {

frmPrint& Printing::form() {
    if (!form_ || !form_->isLoaded()) form_ = new frmPrint(app_, printer_, memory_);
    return *form_;
}

void Printing::showSelection(const std::vector<PrintEntry>& entries, const QString& mode,
                             const Serving& serving) {
    const bool pages = mode.compare(u"Help", Qt::CaseInsensitive) == 0;
    auto* save = new frmSave(app_, entries, [this, pages, serving](const std::vector<std::int16_t>& ids) {
        pages ? printPages(ids) : printRecipes(ids, serving);
    });
    save->Zobraz(mode);
}

void Printing::printRecipes(const std::vector<std::int16_t>& ids, const Serving& serving) {
    form().Zobraz(ids, serving);
}

void Printing::printText(const QString& title, const QString& richText) {
    form().ZobrazTexty({{title, richText}});
}

void Printing::printPages(const std::vector<std::int16_t>& ids) {
    Recordset pages = app_.Db().OpenTable(QStringLiteral("Stranky"));
    pages.setIndex(QStringLiteral("PrimaryKey"));
    std::vector<TitledText> texts;
    for (const std::int16_t id : ids) {
        if (!RecordExists(pages, id)) continue;
        texts.push_back({pages.field(QStringLiteral("Nazev")).toString(),
                         pages.field(QStringLiteral("Text")).toString()});
    }
    if (!texts.empty()) form().ZobrazTexty(std::move(texts));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
