#include <QPlainTextEdit>
#include <QTimer>

#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/screens.h"
#include "screens/recipe/frmrecept.h"
#include "screens/recipe/sectionnames.h"

namespace sarne {
namespace {

constexpr int kBetweenTexts = 200;  // twips between the texts of one section

}  // namespace

void frmRecept::openSection(Section section) {
    leaveNote();
    section_ = section;
    showPressed();
    placeView();
    drawSection();
}

void frmRecept::showPressed() {
    for (int index = 0; index < recipelayout::kSectionCount; ++index)
        sections_[size_t(index)]->setFrame(index == section_ ? Button::Frame::Pressed
                                                             : Button::Frame::Raised);
    update();
}

/// Makes room for what belongs to the section beside the drawing surface.
void frmRecept::placeView() {
    ingredients_->setVisible(section_ == kIngredients);
    links_->setVisible(section_ == kLinks);
    view_->Cls();
    view_->setVisible(section_ != kOwnNote);
    view_->setAccessibleName(sectionName(section_));
    switch (section_) {
        case kPhoto:
            return view_->place(recipelayout::kPhotoView);
        case kIngredients:
            return view_->place(recipelayout::kListView);
        case kLinks:
            return view_->place(links_->viewPlace());
        default:
            return view_->place(recipelayout::kView);
    }
}

void frmRecept::drawSection() {
    switch (section_) {
        case kPhoto:
            return drawPhoto();
        case kMethod:
            return drawTexts({"Recept"});
        case kIntroduction:
            return drawTexts({"Uvod", "Prezentace", "Poznamka"});
        case kLinks:
            return links_->draw();
        case kWine:
            return drawTexts({"vino"});
        case kIngredients:
            return ingredients_->draw();
        case kTools:
            return drawTools();
        case kOwnNote:
            return openNote();
    }
}

void frmRecept::drawPhoto() {
    if (photoShown_) return showPhoto();
    view_->setFont({QStringLiteral("Times New Roman"), 12});
    view_->print(QStringLiteral("Moment prosím, načítám foto ..."));
    // Reading a large picture takes a moment, so the text is painted before.
    QTimer::singleShot(0, this, [this] {
        if (section_ != kPhoto) return;
        view_->repaint();
        showPhoto();
    });
}

void frmRecept::showPhoto() {
    photoShown_ = true;
    view_->setPicture(photo_);
    if (!photo_.isNull()) view_->setCursor(Qt::PointingHandCursor);
    view_->setAccessibleDescription({});
}

void frmRecept::drawTexts(std::initializer_list<const char*> fields) {
    for (const char* field : fields) {
        const QString text = recipe_.field(QString::fromLatin1(field)).toString();
        if (text.trimmed().isEmpty()) continue;
        if (view_->currentY() > 0) view_->setCurrentY(view_->currentY() + kBetweenTexts);
        view_->drawRichText(text);
    }
    view_->setAccessibleDescription(view_->drawnText());
}

void frmRecept::drawTools() {
    const QStringList tools = recipeTools(app().Db(), id_);
    if (tools.isEmpty()) return;
    view_->setFont({QStringLiteral("Arial"), 12});
    for (const QString& tool : tools) view_->print(tool);
    view_->setAccessibleDescription(view_->drawnText());
}

void frmRecept::openLink(LinkKey key) {
    rememberFocus();
    const auto number = static_cast<std::int16_t>(key.number);
    switch (key.kind) {
        case LinkKind::Keyword:
            return app().screens().showIndex(number);
        case LinkKind::Beep:
            return app().Beep();
        case LinkKind::Video:
            return app().screens().showVideo(number);
    }
}

/// The photo leads to the photo viewer.
void frmRecept::viewClicked() {
    if (section_ != kPhoto || !photoShown_ || photo_.isNull()) return;
    rememberFocus();
    PhotoRequest request;
    request.photoIds = {id_};
    app().screens().showPhotos(request);
}

void frmRecept::makeNote() {
    editor_->place(recipelayout::kNote);
    editor_->editor().setAccessibleName(QStringLiteral("Vlastní poznámka k receptu"));
    editor_->setFont({QStringLiteral("Times New Roman"), 13});
    editor_->hide();
    connect(editor_, &NoteEdit::edited, this, [this] { note_.changed(); });
    const QString captions[] = {QStringLiteral("Uložit a zavřít"), QStringLiteral("Zavřít bez uložení")};
    for (int index = 0; index < 2; ++index) {
        auto* button = new Button(*this, QStringLiteral("cmdUloz(%1)").arg(index));
        button->place(recipelayout::noteButton(index));
        button->setCaption(captions[index]);
        button->setTip(captions[index]);
        button->setGround(colors::kTeal);
        button->setFrame(Button::Frame::Raised);
        button->hide();
        connect(button, &Button::clicked, this, [this, index] { closeNote(index); });
        noteButtons_[size_t(index)] = button;
    }
}

void frmRecept::openNote() {
    editor_->setText(note_.open());
    editor_->show();
    for (Button* button : noteButtons_) button->show();
    editor_->focusAtEnd();
}

void frmRecept::closeNote(int index) {
    note_.close(OwnNote::Close(index), editor_->text());
    editor_->setText({});
    editor_->hide();
    for (Button* button : noteButtons_) button->hide();
    drawNote();
}

/// What the note says now that it is closed.
void frmRecept::drawNote() {
    view_->show();
    view_->Cls();
    view_->drawRichText(note_.stored());
    sections_[kOwnNote]->setFocus();
}

void frmRecept::leaveNote() {
    if (!note_.isOpen()) return;
    const bool save = note_.isDirty() && wantsNoteSaved();
    closeNote(static_cast<int>(save ? OwnNote::Close::Save : OwnNote::Close::Discard));
}

}  // namespace sarne
