#include "screens/browse/frmseznam.h"

#include <QPainter>

#include "core/czech.h"
#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/messagebox.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "screens/browse/frmseznam_layout.h"
#include "screens/browse/photofile.h"

namespace sarne {

void frmSeznam::Zobraz(const QString& ids, const QString& source) {
    fill(ids, source);
    if (!app().FormStack.contains(*this)) app().PushScreen(*this);
    showForm();
    startPanel();
    ring().restore();
    app().HookMessage(lblNadpis.text() + QStringLiteral(", ") + countText());
}

QString frmSeznam::countText() const {
    const Noun pages{Texts::tr("stránka"), Texts::tr("stránky"), Texts::tr("stránek"), Texts::tr("stránky")};
    return counted(pages_.count(), source_ == Source::Help ? pages : recipeNoun(), app().Locale);
}

/// Tells those who hear the list what is in it and what choosing does.
void frmSeznam::hearEntries() {
    const auto entry = [this](int index) {
        AccessiblePart part;
        part.name = entries_[size_t(index)].Nazev;
        const int row = index - pages_.entryAt(1) + 1;
        if (row >= 1 && row <= pages_.rows())
            part.place = seznam::rowBar(row, pitch_).translated(-seznam::kSheet.topLeft());
        return part;
    };
    list_.setEntries(pages_.count(), entry, [this](int index) {
        if (pages_.selectEntry(index)) selectionChanged();
        drawPage();
        openSelected();
    });
}

void frmSeznam::fill(const QString& ids, const QString& source) {
    sourceText_ = source.toLower();
    source_ = sourceText_ == u"recepty" ? Source::Recipes
              : sourceText_ == u"help"  ? Source::Help
                                        : Source::QuickRecipes;
    ring().startAt(nullptr);
    entries_ = readEntries(app().Db(), sourceText_, ids);
    pages_.fill(static_cast<int>(entries_.size()), shownRows());
    letters_.clear();
    placeRows();
    for (Button* arrow : imgSipky) arrow->setVisible(pages_.scrolls());
    showButtonsOfSource();
    lblPozice.setText({});
    hearEntries();
    ground_.forget();
    drawPage();
    update();
}

int frmSeznam::shownRows() const {
    return static_cast<int>(seznam::kRows / eyes().textScale());
}

/// As many rows as the size of the texts leaves room for; who was at an entry stays there.
void frmSeznam::eyesChanged() {
    const int entry = pages_.selectedEntry();
    for (Label* row : lblSeznam) row->setText({});
    pages_.fill(static_cast<int>(entries_.size()), shownRows());
    if (entry >= 0) pages_.selectEntry(entry);
    placeRows();
    for (Button* arrow : imgSipky) arrow->setVisible(pages_.scrolls());
    ground_.forget();
    drawPage();
    if (lblVino.isVisible()) showWine();
    update();
}

void frmSeznam::scroll(int step) {
    pages_.scroll(step);
    drawPage();
}

void frmSeznam::drawPage() {
    for (int row = 1; row <= pages_.rows(); ++row) {
        Label& label = *lblSeznam[size_t(row - 1)];
        const int entry = pages_.entryAt(row);
        label.setText(entry < 0 ? QString() : entries_[size_t(entry)].Nazev);
        label.setClickable(entry >= 0);  // below the last entry there is nothing to light or to click
        label.setColor(row == pages_.selectedRow() ? QColor(Qt::white) : colors::kInk);
    }
    const int row = pages_.selectedRow();
    imgJablko.setVisible(row > 0);
    if (row > 0) imgJablko.place(seznam::apple(row, pitch_));
    for (const int changed : {markedRow_, row}) {
        if (changed > 0 && markedRow_ != row) updatePart(*this, seznam::rowBar(changed, pitch_));
    }
    markedRow_ = row;
    if (pages_.scrolls()) updatePart(*this, seznam::kTrack);
}

void frmSeznam::selectRow(int row) {
    if (!pages_.selectRow(row)) return;
    drawPage();
    selectionChanged();
}

void frmSeznam::selectionChanged() {
    const ListEntry* entry = selectedEntry();
    if (!entry) return;
    lblPozice.setText(QString::number(pages_.selectedEntry() + 1) + QStringLiteral(" z ") +
                      QString::number(pages_.count()));
    list_.setCurrent(pages_.selectedEntry());
    ring().sayPart(list_);
    refreshPanel();
}

const ListEntry* frmSeznam::selectedEntry() const {
    const int entry = pages_.selectedEntry();
    return entry < 0 ? nullptr : &entries_[size_t(entry)];
}

const ListEntry* frmSeznam::visiblySelected() const {
    return pages_.selectedRow() > 0 ? selectedEntry() : nullptr;
}

void frmSeznam::action(int index) {
    if (!visiblySelected()) {
        app().ZobrazZpravu(Texts::tr("Není vybrán recept"), kWarningBox);
        return;
    }
    switch (index) {
        case 0:
            return showPhoto();
        case 1:
            return panelMode_ == Panel::Wine ? showPhoto() : showWine();
        case 2:
            return openSelected();
    }
}

void frmSeznam::openSelected() {
    const ListEntry* entry = visiblySelected();
    if (!entry || entry->target == 0) return;
    if (source_ == Source::Help) return app().screens().showPage(QString::number(entry->target));
    app().screens().showRecipe(entry->target);
}

void frmSeznam::buySelected() {
    const ListEntry* entry = visiblySelected();
    if (!entry || entry->target == 0 || source_ == Source::Help) return app().screens().showShoppingList();
    app().screens().addToShoppingList({entry->target}, {});
}

void frmSeznam::printEntries() {
    std::vector<PrintEntry> print;
    for (const ListEntry& entry : entries_) {
        if (entry.target != 0) print.push_back({entry.Nazev, entry.target, &entry == visiblySelected()});
    }
    // The recipes are the ordinary thing to print; another source is named.
    app().screens().showPrintSelection(print, source_ == Source::Recipes ? QString() : sourceText_);
}

void frmSeznam::showPhotos(bool slideShow) {
    if (source_ == Source::Help) return;
    PhotoRequest request;
    request.slideShow = slideShow;
    for (int entry = 0; entry < pages_.count(); ++entry) {
        const std::int16_t recipe = entries_[size_t(entry)].target;
        if (recipe == 0) continue;
        if (entry == pages_.selectedEntry())
            request.startPosition = static_cast<int>(request.photoIds.size());
        request.photoIds.push_back(recipe);
    }
    if (!request.photoIds.empty()) app().screens().showPhotos(request);
}

// --- the panel beside the list

void frmSeznam::startPanel() {
    showInvitation();
    lblVino.hide();
    if (quickWindow_) quickWindow_->unload();
    if (source_ == Source::Help)
        showPictureOrWords(picFoto, app().resources().picture(QStringLiteral("Help")).image(), {});
    if (source_ != Source::QuickRecipes) return;
    quickWindow_ = new frmRychlyRecept(app(), *this);
    quickWindow_->Zobraz(seznam::kPanel);
    if (!entries_.empty()) quickWindow_->setPicture(smallPhoto(entries_.front()), {});
}

/// Before the first choice: a still life, and what to do.
void frmSeznam::showInvitation() {
    picFoto.setAccessibleName(Texts::tr("Zátiší s vínem"));
    picFoto.setPicture(app().mediaPicture(QStringLiteral("foto\\vino256.bmp")), Fit::Cover);
    picFoto.addPainted(
        [](QPainter& painter, const QRect&) {
            paintPlate(painter, seznam::kInvitation);
            painter.setFont(TextFont{QStringLiteral("Times New Roman"), 15, true}.toQFont());
            painter.setPen(colors::kTitle);
            painter.drawText(seznam::kInvitation, Qt::AlignCenter, Texts::tr("Vyberte recept"));
        },
        seznam::kPhoto.height());
}

void frmSeznam::setPanel(Panel panel) {
    panelMode_ = panel;
    if (keptPanel_) *keptPanel_ = panel;
    imgBtn[0].setLatched(panel == Panel::Photo);
    imgBtn[1].setLatched(panel == Panel::Wine);
}

QString frmSeznam::smallPhotoFile(const ListEntry& entry) const {
    return app().mediaFile(QStringLiteral("foto\\Male\\r%1.bmp").arg(entry.target));
}

QImage frmSeznam::smallPhoto(const ListEntry& entry) const {
    return readPhoto(smallPhotoFile(entry));
}

void frmSeznam::refreshPanel() {
    if (source_ == Source::Help) return;
    panelMode_ == Panel::Photo ? showPhoto() : showWine();
}

void frmSeznam::showPhoto() {
    const ListEntry* entry = selectedEntry();
    if (!entry) return;
    setPanel(Panel::Photo);
    lblVino.hide();
    const QImage photo = smallPhoto(*entry);
    showPictureOrWords(picFoto, photo, entry->Nazev);
    picFoto.setTip(entry->Nazev);
    picFoto.setAccessibleName(Texts::tr("Fotografie: %1").arg(entry->Nazev));
    if (!quickWindow_) return;
    quickWindow_->setPicture(photo, entry->Nazev);
    quickWindow_->show();
}

void frmSeznam::showWine() {
    const ListEntry* entry = selectedEntry();
    if (!entry) return;
    setPanel(Panel::Wine);
    if (quickWindow_) quickWindow_->hide();
    picFoto.setPicture(app().mediaPicture(QStringLiteral("foto\\vino256.bmp")), Fit::Cover);
    const QString text = wineText(app().Db(), entry->Nazev, entry->target);
    picFoto.setTip({});  // the text stands there to be read
    picFoto.setAccessibleName(QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    lblVino.setText(text);
    // A long list of wines is set smaller, down to what can still be read.
    TextFont font{QStringLiteral("Times New Roman"), 15 * textScale()};
    const QRect place = seznam::kWineText;
    while (font.size > 11 && Label::measure(text, font, place.width()).height() > place.height())
        font.size -= 1;
    lblVino.setGrows(false);  // it has just done so
    lblVino.setFont(font);
    const int height = Label::measure(text, font, place.width()).height();
    // At the bottom, below what the picture is about.
    const int shown = std::min(height, place.height());
    lblVino.place({place.left(), place.bottom() + 1 - shown, place.width(), shown});
    lblVino.show();
    const QRect paper = lblVino.twips().translated(-seznam::kPhoto.topLeft()).adjusted(-70, -40, 70, 40);
    picFoto.addPainted([paper](QPainter& painter, const QRect&) { paintPaper(painter, paper); },
                       seznam::kPhoto.height());
}

// --- coming and going

void frmSeznam::goBack() {
    app().PopScreen(*this);
}

void frmSeznam::unload() {
    if (quickWindow_) quickWindow_->unload();
    Form::unload();
}

void frmSeznam::restored() {
    if (quickWindow_ && panelMode_ == Panel::Photo) quickWindow_->raise();
    Form::restored();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
