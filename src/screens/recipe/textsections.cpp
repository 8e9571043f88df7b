#include "screens/recipe/textsections.h"

#include <QTimer>
#include <algorithm>

#include "core/texts.h"
#include "db/companions.h"
#include "forms/bassarne.h"
#include "forms/screens.h"

namespace sarne {
namespace {

constexpr int kBetweenTexts = 200;   // twips between the texts of one section
constexpr int kLeastPicture = 2400;  // a lower one is not shown
constexpr double kToolSize = 16;     // points

}  // namespace

void RecipeSection::showBeside(const Picture& picture, int textWidth) const {
    showPicture(picture, recipelayout::beside(room_.view.twips().top(), picture.size(), textWidth));
}

void RecipeSection::showPicture(const Picture& picture, const QRect& place) const {
    if (picture.isNull()) return;
    room_.picture.place(place);
    room_.picture.setPicture(picture, Fit::Inside);
    room_.picture.show();
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
    TextSection::draw();
    TextView& view = room_.view;
    const Picture wine = room_.sarne.mediaPicture(QStringLiteral("foto\\vino256.bmp"));
    const QRect below = view.twips().adjusted(0, view.contentHeight() + 2 * kBetweenTexts, 0, 0);
    if (view.drawnText().isEmpty() || below.height() < kLeastPicture) return;
    QRect place = recipelayout::fitted(below, wine.size());
    place.moveCenter(QPoint(recipelayout::kPaper.center().x(), place.center().y()));
    showPicture(wine, place);
}

void ToolSection::draw() {
    const QStringList tools = recipeTools(room_.sarne.Db(), room_.recipe.id);
    if (tools.isEmpty()) return;
    TextView& view = room_.view;
    view.setFont({QStringLiteral("Arial"), kToolSize});
    for (const QString& tool : tools) view.print(tool);
    if (view.scrollRange() > 0) return;
    int widest = 0;
    for (const QString& tool : tools) widest = std::max(widest, view.textWidth(tool));
    if (widest <= recipelayout::kHalfView.width()) showBeside(room_.recipe.photo, widest);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
