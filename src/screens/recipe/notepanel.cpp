#include "screens/recipe/notepanel.h"

#include <QPlainTextEdit>

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/messagebox.h"

namespace sarne {
namespace {

constexpr int kNoAnswer = 0;

}  // namespace

NotePanel::NotePanel(const SectionRoom& room)
    : RecipeSection(room),
      note_(room_.recipe.row, room_.sarne.notes()),
      editor_(new NoteEdit(room.form, QStringLiteral("RtfPozn"))) {
    editor_->place(recipelayout::kNote);
    for (QWidget* named : {static_cast<QWidget*>(editor_), static_cast<QWidget*>(&editor_->editor())})
        named->setAccessibleName(Texts::tr("Vlastní poznámka k receptu"));
    editor_->setFont({QStringLiteral("Times New Roman"), 13});
    QObject::connect(editor_, &NoteEdit::edited, &room.form, [this] { note_.changed(); });
    const QString captions[] = {Texts::tr("Uložit a zavřít"), Texts::tr("Zavřít bez uložení")};
    for (int index = 0; index < 2; ++index) {
        auto* button = new Button(room.form, QStringLiteral("cmdUloz(%1)").arg(index));
        button->place(recipelayout::noteButton(index));
        button->dressAsText(captions[index]);
        QObject::connect(button, &Button::clicked, &room.form,
                         [this, index] { closeByButton(OwnNote::Close(index)); });
        buttons_[size_t(index)] = button;
    }
    setVisible(false);
}

void NotePanel::setVisible(bool visible) {
    editor_->setVisible(visible);
    for (Button* button : buttons_) button->setVisible(visible);
}

void NotePanel::draw() {
    room_.view.setVisible(false);
    // First the keyboard, then the words: a reader that hears of the words first says no more where it is.
    editor_->editor().setFocus();
    editor_->setText(note_.open());
    editor_->focusAtEnd();
}

std::vector<FocusGroup> NotePanel::stops() const {
    return {FocusGroup(std::array{editor_}), FocusGroup(std::array{buttons_[0]}),
            FocusGroup(std::array{buttons_[1]})};
}

void NotePanel::close(OwnNote::Close how) {
    note_.close(how, editor_->text());
    setVisible(false);
}

void NotePanel::closeByButton(OwnNote::Close how) {
    const QString typed = editor_->text();
    const bool wasDirty = note_.isDirty();
    close(how);
    showStored();
    room_.giveKeyboardBack();
    if (wasDirty && note_.stored() == typed) room_.sarne.HookMessage(Texts::tr("Poznámka je uložená"));
}

void NotePanel::showStored() {
    room_.view.setVisible(true);
    room_.view.Cls();
    room_.view.drawPlainText(note_.stored());
}

void NotePanel::shownAgain() {
    if (note_.isDirty()) return;
    if (note_.isOpen())
        editor_->setText(note_.open());
    else
        showStored();
}

int NotePanel::ask() {
    return room_.sarne.AskOrLeave(Texts::tr("Poznámka byla změněna. Chcete tyto změny uložit?"),
                                  kQuestionBox);
}

bool NotePanel::leave() {
    if (!note_.isOpen()) return true;
    const int answer = note_.isDirty() ? ask() : kAnswerYes;
    if (answer == kNoAnswer) {
        editor_->setFocus();
        return false;
    }
    close(answer == kAnswerYes ? OwnNote::Close::Save : OwnNote::Close::Discard);
    return true;
}

void NotePanel::abandon() {
    if (!note_.isDirty()) return;
    const int answer = ask();
    if (answer == kAnswerYes || answer == kNoAnswer) note_.save(editor_->text());
}

bool NotePanel::readyToEnd() {
    const int answer = note_.isDirty() ? ask() : kAnswerYes;
    if (answer == kAnswerYes) note_.save(editor_->text());
    return answer != kNoAnswer;
}

void NotePanel::keepUnsaved() {
    note_.keepDraft(editor_->text());
}

void NotePanel::beforePrint() {
    note_.saveForPrint(editor_->text());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
