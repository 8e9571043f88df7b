#include "screens/recipe/textsections.h"

#include <QTimer>

#include "core/texts.h"
#include "db/companions.h"
#include "forms/bassarne.h"
#include "forms/screens.h"

namespace sarne {
namespace {

constexpr int kBetweenTexts = 200;  // twips between the texts of one section

}  // namespace

void RecipeSection::showBeside(const Picture& picture) const {
    if (picture.isNull()) return;
    room_.picture.place(recipelayout::beside(room_.view.twips().top(), picture.size()));
    room_.picture.setPicture(picture, Fit::Inside);
    room_.picture.show();
}

void RecipeSection::drawBeside(const Picture& picture, const std::function<void()>& text) const {
    if (picture.isNull()) return text();
    room_.view.place(recipelayout::kHalfView);
    text();
    if (room_.view.drawnText().isEmpty()) return;
    if (room_.view.scrollRange() == 0) return showBeside(picture);
    room_.view.Cls();
    room_.view.place(viewPlace());
    text();
}

void PhotoSection::draw() {
    if (shown_) return show();
    room_.view.setFont({QStringLiteral("Times New Roman"), 12});
    room_.view.print(Texts::tr("Moment prosím, načítám foto ..."));
    // Reading a large picture takes a moment, so the text is painted before.
    QTimer::singleShot(0, &room_.form, [this] {
        if (!visible_) return;
        room_.view.repaint();
        show();
    });
}

void PhotoSection::show() {
    shown_ = true;
    room_.view.setPicture(room_.recipe.photo);
    if (opensView()) room_.view.setCursor(Qt::PointingHandCursor);
}

bool PhotoSection::opensView() const {
    return shown_ && !room_.recipe.photo.isNull();
}

void PhotoSection::viewClicked() {
    if (!opensView()) return;
    PhotoRequest request;
    request.photoIds = {room_.recipe.id};
    room_.sarne.screens().showPhotos(request);
}

void TextSection::draw() {
    TextView& view = room_.view;
    for (const char* field : fields_) {
        const QString text = room_.recipe.field(field);
        if (text.trimmed().isEmpty()) continue;
        if (view.currentY() > 0) view.setCurrentY(view.currentY() + kBetweenTexts);
        view.drawRichText(text);
    }
}

void WineSection::draw() {
    drawBeside(room_.sarne.mediaPicture(QStringLiteral("foto\\vino256.bmp")),
               [this] { TextSection::draw(); });
}

void ToolSection::draw() {
    const QStringList tools = recipeTools(room_.sarne.Db(), room_.recipe.id);
    if (tools.isEmpty()) return;
    drawBeside(room_.recipe.photo, [this, &tools] {
        TextView& view = room_.view;
        view.setFont({QStringLiteral("Arial"), 12});
        for (const QString& tool : tools) view.print(tool);
    });
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
