#include "print/frmsave.h"

#include <QKeyEvent>
#include <algorithm>

#include "forms/bassarne.h"
#include "forms/colors.h"
#include "print/formparts.h"

namespace sarne {
namespace {

constexpr QRect kInstruction(360, 270, 9780, 360);
constexpr QRect kAvailable(360, 1080, 3960, 5160);
constexpr QRect kChosen(6180, 1080, 3960, 5160);

// Adding stands above taking away.
constexpr TextFace kArrows[] = {{QT_TRANSLATE_NOOP("Texts", "Přidat ►"),
                                 QT_TRANSLATE_NOOP("Texts", "Přidat označené položky"),
                                 {4470, 1860, 1560, 540}},
                                {QT_TRANSLATE_NOOP("Texts", "◄ Odebrat"),
                                 QT_TRANSLATE_NOOP("Texts", "Odebrat označené položky"),
                                 {4470, 3780, 1560, 540}},
                                {QT_TRANSLATE_NOOP("Texts", "◄◄ Vše"),
                                 QT_TRANSLATE_NOOP("Texts", "Odebrat všechny položky"),
                                 {4470, 4440, 1560, 540}},
                                {QT_TRANSLATE_NOOP("Texts", "Vše ►►"),
                                 QT_TRANSLATE_NOOP("Texts", "Přidat všechny položky"),
                                 {4470, 2520, 1560, 540}}};

void fill(ListBox& list, const std::vector<PrintEntry>& entries) {
    QStringList texts;
    std::vector<std::int32_t> items;
    for (const PrintEntry& entry : entries) {
        texts << entry.text;
        items.push_back(entry.item);
    }
    list.setItems(texts, items);
}

}  // namespace

frmSave::frmSave(basSarne& sarne, std::vector<PrintEntry> entries, Handover print)
    : PrintDialog(sarne, QStringLiteral("frmSave")),
      print_(std::move(print)),
      Label2(*this, QStringLiteral("Label2")),
      lblSeznam(*this, QStringLiteral("lblSeznam")),
      lblVybrano(*this, QStringLiteral("lblVybrano")),
      lstSeznam(*this, QStringLiteral("lstSeznam")),
      lstVybrano(*this, QStringLiteral("lstVybrano")) {
    Label2.place(kInstruction);
    dressLabel(Label2, printforms::kTextFont, colors::kTitle);
    makeLists();
    makeButtons(*this, QStringLiteral("cmdRuka"), kArrows, cmdRuka, [this](int i) { cmdRukaClick(i); });
    static constexpr TextFace kFoot[] = {
        {QT_TRANSLATE_NOOP("Texts", "OK"), QT_TRANSLATE_NOOP("Texts", "Tisknout vybrané položky"), kFootLeft},
        {QT_TRANSLATE_NOOP("Texts", "Zavřít"), QT_TRANSLATE_NOOP("Texts", "Zavřít bez tisku"), kFootRight}};
    makeButtons(*this, QStringLiteral("cmdOkEnd"), kFoot, cmdOkEnd, [this](int i) { cmdOkEndClick(i); });
    connect(&lstSeznam, &Control::doubleClicked, this, [this] { addMarked(); });
    connect(&lstVybrano, &Control::doubleClicked, this, [this] { removeMarked(); });
    choice_.setAvailable(std::move(entries));
    fill(lstSeznam, choice_.available());
    markStart();
    showChosen();
    ring().setStops(
        {&lstSeznam, cmdRuka[0], cmdRuka[3], cmdRuka[1], cmdRuka[2], &lstVybrano, cmdOkEnd[0], cmdOkEnd[1]});
}

void frmSave::makeLists() {
    placeList(lstSeznam, lblSeznam, kAvailable);
    placeList(lstVybrano, lblVybrano, kChosen);
    for (Label* title : {&lblSeznam, &lblVybrano}) dressLabel(*title, printforms::kSmallFont, colors::kPaper);
    for (ListBox* list : {&lstSeznam, &lstVybrano}) list->setFont(printforms::kSmallFont);
    lblSeznam.setText(Texts::tr("Seznam"));
    lstSeznam.setTip(Texts::tr("Seznam položek"));
    lstVybrano.setTip(Texts::tr("Vybrané položky"));
}

void frmSave::Zobraz(const QString& mode) {
    mode_ = mode.toLower();
    Label2.setText(Texts::tr("Vyberte ze seznamu položky, které chcete tisknout"));
    ring().sayWithoutReader(Label2.text());
    cmdOkEnd[0]->setEnabled(false);
    const QPointer<frmSave> self(this);
    // Printing hides the dialog, and with that its turn ends; it has another one until it is closed.
    bool ended = true;
    do ended = showModal();
    while (ended && self && isLoaded() && !closed_);
    if (!self || !isLoaded()) return;
    if (accepted_) print_(choice_.ids());
    if (self) unload();
}

void frmSave::markStart() {
    const auto marked = std::ranges::find(choice_.available(), true, &PrintEntry::marked);
    if (marked != choice_.available().end())
        lstSeznam.setListIndex(static_cast<int>(marked - choice_.available().begin()));
}

void frmSave::showChosen() {
    fill(lstVybrano, choice_.chosen());
    lblVybrano.setText(Texts::tr("Vybráno: %1").arg(choice_.chosen().size()));
    if (choice_.isEmpty() && cmdOkEnd[0]->hasFocus()) lstSeznam.setFocus();
    cmdOkEnd[0]->setEnabled(!choice_.isEmpty());
}

void frmSave::addMarked() {
    const std::vector<int> marked = lstSeznam.marked();
    if (!choice_.add(marked)) return app().Beep();
    showChosen();
    app().HookMessage(lblVybrano.text());
    lstVybrano.scrollTo(lstVybrano.listCount());
}

void frmSave::addAndGoOn() {
    const std::vector<int> marked = lstSeznam.marked();
    addMarked();
    if (!marked.empty() && marked.back() + 1 < lstSeznam.listCount())
        lstSeznam.setListIndex(marked.back() + 1);
}

void frmSave::removeMarked() {
    const std::vector<int> marked = lstVybrano.marked();
    if (!choice_.remove(marked)) return app().Beep();
    const int top = lstVybrano.topIndex();
    showChosen();
    app().HookMessage(lblVybrano.text());
    lstVybrano.scrollTo(top);
    // The entry that took the place is the next to go.
    if (!choice_.isEmpty()) lstVybrano.setListIndex(std::min(marked.front(), lstVybrano.listCount() - 1));
}

void frmSave::cmdRukaClick(int index) {
    switch (index) {
        case 0:
            return addAndGoOn();
        case 1:
            return removeMarked();
        case 2:
            choice_.clear();
            return showChosen();
        case 3:
            choice_.addAll();
            return showChosen();
    }
}

void frmSave::cmdOkEndClick(int index) {
    if (index == 0 && !isOrdinary()) return print_(choice_.ids());
    accepted_ = index == 0;
    closed_ = true;
    hideForm();
}

void frmSave::enterPressed() {
    if (lstSeznam.hasFocus()) return addMarked();
    if (lstVybrano.hasFocus()) return removeMarked();
    ring().press();
}

bool frmSave::otherKey(QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Delete:
            if (lstVybrano.hasFocus()) removeMarked();
            return true;
        case Qt::Key_Right:
            lstVybrano.setFocus(Qt::TabFocusReason);
            return true;
        case Qt::Key_Left:
            lstSeznam.setFocus(Qt::TabFocusReason);
            return true;
        default:
            return false;
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
