#include "screens/recipe/textsections.h"

#include <QTimer>
#include <algorithm>

#include "core/czech.h"
#include "core/texts.h"
#include "db/companions.h"
#include "forms/bassarne.h"
#include "forms/largertext.h"
#include "forms/screens.h"
#include "screens/recipe/toolgrid.h"

namespace sarne {
namespace {

constexpr int kBetweenTexts = 200;   // twips between the texts of one section
constexpr int kLeastPicture = 2400;  // a lower one is not shown
constexpr double kToolSize = 16;     // points
constexpr double kNameSize = 11;     // of what stands below a tool's picture

}  // namespace

void RecipeSection::showBeside(const Picture& picture, int textWidth) const {
    const QRect free = recipelayout::beside(room_.view.twips().top(), textWidth);
    showPicture(picture, recipelayout::fitted(free, picture.size()));
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
    if (widest > recipelayout::kHalfView.width()) return;
    if (const std::vector<Tool> shown = shownTools(tools); shown.size() >= kFewestTools)
        showTools(shown, widest);
    else
        showBeside(room_.recipe.photo, widest);
}

std::vector<ToolSection::Tool> ToolSection::shownTools(const QStringList& names) const {
    std::vector<Tool> shown;
    for (const QString& name : names) {
        const QString file = QStringLiteral("foto\\pomucky\\%1.bmp").arg(fileWords(name));
        const Picture picture = Picture::fromFile(room_.sarne.mediaFile(file));
        if (!picture.isNull() && shown.size() < kMostTools) shown.push_back({name, picture});
    }
    return shown;
}

void ToolSection::showTools(const std::vector<Tool>& tools, int textWidth) const {
    PictureBox& box = room_.picture;
    box.place(recipelayout::beside(room_.view.twips().top(), textWidth));
    box.Cls();
    box.setFont({QStringLiteral("Times New Roman"), kNameSize * room_.form.textScale(), false, true});
    const QString& any = tools.front().name;
    const auto places =
        toolPlaces(QRect({}, box.twips().size()), static_cast<int>(tools.size()), box.textHeight(any));
    int widest = places.front().name.width();
    for (const Tool& tool : tools) widest = std::max(widest, box.textWidth(tool.name));
    box.setFont(larger(box.font(), double(places.front().name.width()) / widest));
    for (size_t i = 0; i < tools.size(); ++i) {
        const auto& [name, picture] = tools[i];
        box.drawPicture(picture, places[i].picture, Fit::Inside);
        const QRect& line = places[i].name;
        box.textOut(line.center().x() - box.textWidth(name) / 2, line.y() + box.textAscent(), name);
    }
    box.show();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
