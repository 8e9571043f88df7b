#include "screens/browse/frmsit.h"

#include <QKeyEvent>

#include "core/texts.h"
#include "core/value.h"
#include "db/bookfact.h"
#include "db/database.h"
#include "forms/bassarne.h"
#include "forms/messagebox.h"
#include "forms/screens.h"
#include "richtext/wordwrap.h"
#include "screens/browse/frmsit_layout.h"

namespace sarne {

void frmSit::Zobraz() {
    readNames();
    nameGroups();
    grid_ = PhotoGrid();
    applyGroup();
    if (!app().FormStack.contains(*this)) app().PushScreen(*this);
    showForm();
    ring().focus(*this);
}

void frmSit::readNames() {
    Recordset recipes = app().Db().OpenTable(QStringLiteral("Recepty"));
    recipes.setIndex(QStringLiteral("PrimaryKey"));
    for (int cell = 1; cell <= kGridCells; ++cell) {
        recipes.Seek(QStringLiteral("="), cell);
        names_[size_t(cell)] =
            recipes.NoMatch() ? QString() : recipes.field(QStringLiteral("Nazev")).toString();
        imgFoto[size_t(cell - 1)]->setAccessibleName(names_[size_t(cell)]);
    }
}

// --- groups

/// As the book calls them; a book that does not is one of fish.
void frmSit::nameGroups() {
    const QString usual[] = {Texts::tr("Polévky"), Texts::tr("Teplá jídla"), Texts::tr("Studená jídla"),
                             Texts::tr("Slavnostní mísy")};
    for (int group = 0; group < kGridGroups; ++group) {
        const QString own = bookFact(app().Db(), QStringLiteral("Skupina%1").arg(group));
        const QString& caption = own.isEmpty() ? usual[group] : own;
        imgSkupina[size_t(group)]->setCaption(caption);
        imgSkupina[size_t(group)]->setTip(caption);
    }
}

/// The name of the chosen photo; before one is chosen, of all there are.
QString frmSit::textToRead() const {
    if (grid_.cell() != 0) return names_[size_t(grid_.cell())];
    QStringList names;
    for (int cell = 1; cell <= kGridCells; ++cell)
        if (grid_.isAlive(cell)) names << names_[size_t(cell)];
    return names.join(u'\n');
}

void frmSit::setGroup(int group) {
    if (!grid_.setGroup(group)) return;
    applyGroup();
    showChoice();
}

/// Through all photos and their groups, round at the ends.
bool frmSit::swiped(int direction) {
    const int from = grid_.isWhole() ? 0 : grid_.group() + 1;
    const int to = (from + direction + kGridGroups + 1) % (kGridGroups + 1);
    setGroup(to == 0 ? PhotoGrid::kNoGroup : to - 1);
    return true;
}

void frmSit::applyGroup() {
    const size_t shown = grid_.isWhole() ? kGridGroups : size_t(grid_.group());
    if (composites_[shown].isNull()) {
        const QString name = grid_.isWhole() ? QStringLiteral("Cela") : QString::number(grid_.group());
        composites_[shown] = app().mediaPicture(QStringLiteral("foto\\sit%1.bmp").arg(name));
    }
    for (int cell = 1; cell <= kGridCells; ++cell) imgFoto[size_t(cell - 1)]->setEnabled(grid_.isAlive(cell));
    for (int group = 0; group < kGridGroups; ++group)
        imgSkupina[size_t(group)]->setLatched(group == grid_.group());
    imgCela->setLatched(grid_.isWhole());
    ground_.forget();
    update();
}

// --- cells

void frmSit::hoverOver(int cell) {
    if (grid_.hover(cell)) showChoice();
}

void frmSit::clickOn(int cell) {
    grid_.click(cell);
    showChoice();
}

/// Frames the chosen cell and names its recipe.
void frmSit::showChoice() {
    const QString name = names_[size_t(grid_.cell())];
    const auto measure = [](QStringView text) { return Label::measure(text.toString(), nameFont()).width(); };
    Label1.setText(wrapAtBlanks(name.simplified(), Label1.twips().width(), measure).join(u'\n'));
    updatePart(*this, sit::kNamePlate);
    for (const int changed : {framedCell_, grid_.cell()}) {
        if (changed > 0) updatePart(*this, frameOf(changed));
    }
    framedCell_ = grid_.cell();
}

// --- what the bar does

bool frmSit::needsCell() {
    if (grid_.isAlive(grid_.cell())) return true;
    grid_.clear();
    app().ZobrazZpravu(Texts::tr("Jeden recept musí být vybrán"), kInformationBox);
    return false;
}

void frmSit::showPhoto() {
    if (!needsCell()) return;
    PhotoRequest request;
    request.photoIds = grid_.photoIds();
    request.startPosition = grid_.photoPosition();
    app().screens().showPhotos(request);
}

void frmSit::showRecipe() {
    if (needsCell()) app().screens().showRecipe(toRecordId(grid_.cell()).value_or(0));
}

// --- the keyboard

bool frmSit::keyDown(QKeyEvent& event) {
    if (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) return false;
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!ring().keyDown(event)) showRecipe();
            return true;
        case Qt::Key_Space:
            showPhoto();
            return true;
        case Qt::Key_F3:
            if (event.modifiers() & Qt::ShiftModifier) return Form::keyDown(event);
            if (needsCell()) app().screens().addToShoppingList({toRecordId(grid_.cell()).value_or(0)}, {});
            return true;
        default:
            return moveByKey(event.key()) || groupByKey(event.key()) || Form::keyDown(event);
    }
}

bool frmSit::moveByKey(int key) {
    const int right = key == Qt::Key_Right ? 1 : key == Qt::Key_Left ? -1 : 0;
    const int down = key == Qt::Key_Down ? 1 : key == Qt::Key_Up ? -1 : 0;
    if (right == 0 && down == 0) return false;
    if (right > 0 && !ring().isAt(this)) return false;  // along the buttons
    const bool wasAtButton = !ring().isAt(this);
    if (wasAtButton) ring().focus(*this);  // Enter means the cell again
    if (!grid_.move(right, down)) return wasAtButton || right != 0;
    showChoice();
    ring().say(*imgFoto[size_t(grid_.cell() - 1)]);
    return true;
}

bool frmSit::groupByKey(int key) {
    if (key == Qt::Key_0) setGroup(PhotoGrid::kNoGroup);
    if (key >= Qt::Key_1 && key < Qt::Key_1 + kGridGroups) setGroup(key - Qt::Key_1);
    return key >= Qt::Key_0 && key <= Qt::Key_9;
}

// --- coming and going

void frmSit::goBack() {
    app().PopScreen(*this);
}

void frmSit::restored() {
    applyGroup();
    Form::restored();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
