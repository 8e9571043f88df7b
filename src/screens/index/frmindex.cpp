#include "screens/index/frmindex.h"

#include "core/texts.h"
#include "db/database.h"
#include "forms/bassarne.h"

namespace sarne {

frmIndex::frmIndex(basSarne& sarne) : TextForm(sarne, QStringLiteral("frmIndex")), aside_(*this, sarne) {}

bool frmIndex::Zobraz(std::int16_t keyword) {
    if (!showKeyword(keyword)) {
        unload();
        return false;
    }
    visited_.visit(keyword);
    open(view());
    return true;
}

bool frmIndex::showKeyword(int keyword) {
    Recordset keywords = app().Db().OpenTable(QStringLiteral("IndexHesla"));
    if (!RecordExists(keywords, keyword)) return false;
    const QString name = keywords.field(QStringLiteral("nazvy")).toString();
    aside_.show(keyword, name);
    placeText(aside_.isEmpty() ? wholePaper() : aside_.besideIt(wholePaper()));
    std::vector<TwipWidget*> stops{&view()};
    for (Button* button : aside_.buttons()) stops.push_back(button);
    setContent(stops);
    showText(name, keywords.field(QStringLiteral("Text")).toString(), Texts::tr("Rejstřík hesel"));
    return true;
}

/// The caption below the picture has another height now.
void frmIndex::eyesChanged() {
    if (visited_.current().keyword > 0) showKeyword(visited_.current().keyword);
}

void frmIndex::linkActivated(const LinkKey& key) {
    if (key.kind != LinkKind::Keyword) return TextForm::linkActivated(key);
    const int offset = view().scrolled();
    const int link = view().pieces().focused().value_or(-1);
    // A keyword that is not there leaves the text that shows.
    if (!showKeyword(key.number)) return app().Beep();
    visited_.visit(key.number, offset, link);
    app().HookMessage(title());
}

void frmIndex::goBack() {
    if (!visited_.goBack()) return TextForm::goBack();
    const KeywordHistory::Visit& visit = visited_.current();
    if (!showKeyword(visit.keyword)) return TextForm::goBack();
    view().scrollTo(visit.offset);
    if (visit.link >= 0) view().focusLink(visit.link);
    ring().focus(view());
    app().HookMessage(title());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
