#include "screens/recipe/linkpanel.h"

#include <algorithm>

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/form.h"
#include "forms/resources.h"
#include "screens/recipe/recipelayout.h"

namespace sarne {

using namespace recipelayout;

namespace {

QString noneText() {
    return Texts::tr("K tomuto receptu není přiřazen žádný odkaz");
}

}  // namespace

LinkPanel::LinkPanel(const SectionRoom& room)
    : RecipeSection(room),
      up_(new Button(room.form, QStringLiteral("imgOdkazy(0)"))),
      down_(new Button(room.form, QStringLiteral("imgOdkazy(1)"))) {
    setArrow(*up_, -1);
    setArrow(*down_, 1);
    setVisible(false);
}

void LinkPanel::setArrow(Button& arrow, int rows) {
    const bool up = rows < 0;
    const Picture face =
        room_.sarne.resources().picture(up ? QStringLiteral("SipkaNahoru") : QStringLiteral("SipkaDolu"));
    arrow.place(optionArrow(up ? 0 : 1));
    arrow.setFace(face);
    if (face.isNull()) arrow.setCaption(up ? QStringLiteral("▲") : QStringLiteral("▼"));
    arrow.setTip(up ? Texts::tr("Předchozí odkazy") : Texts::tr("Další odkazy"));
    if (face.isNull()) arrow.setGround(colors::kTeal);
    arrow.setFocusPolicy(Qt::NoFocus);
    QObject::connect(&arrow, &Button::clicked, &room_.form, [this, rows] { scrollRows(rows); });
}

void LinkPanel::recipeChanged() {
    for (OptionButton* option : options_) delete option;
    options_.clear();
    links_ = recipeLinks(room_.sarne.Db(), room_.recipe.id);
    chosen_ = firstRow_ = 0;
    options_.resize(links_.size());
    placeOptions();
}

void LinkPanel::makeOption(size_t at) {
    auto* option = new OptionButton(room_.form, QStringLiteral("optOdkaz(%1)").arg(at));
    option->setCaption(links_[at].title);
    option->setToolTip(links_[at].title);
    option->setFont({QStringLiteral("Times New Roman"), 12});
    option->setMarkPictures(room_.sarne.resources().picture(QStringLiteral("VolbaAno")),
                            room_.sarne.resources().picture(QStringLiteral("VolbaNe")));
    option->setChecked(static_cast<int>(at) == chosen_);
    QObject::connect(option, &Control::clicked, &room_.form,
                     [this, at] { optionClick(static_cast<int>(at)); });
    options_[at] = option;
}

int LinkPanel::rowCount() const {
    return (static_cast<int>(options_.size()) + kOptionColumns - 1) / kOptionColumns;
}

QRect LinkPanel::viewPlace() const {
    return linkView(std::min(rowCount(), kOptionRows));
}

void LinkPanel::placeOptions() {
    for (size_t at = 0; at < options_.size(); ++at) {
        const int row = static_cast<int>(at) / kOptionColumns - firstRow_;
        const bool shown = visible_ && row >= 0 && row < kOptionRows;
        if (shown && !options_[at]) makeOption(at);
        if (!options_[at]) continue;
        options_[at]->place(option(row, static_cast<int>(at) % kOptionColumns));
        options_[at]->setVisible(shown);
    }
    const bool scrolls = visible_ && rowCount() > kOptionRows;
    up_->setVisible(scrolls);
    down_->setVisible(scrolls);
}

void LinkPanel::scrollRows(int rows) {
    firstRow_ = qBound(0, firstRow_ + rows, std::max(0, rowCount() - kOptionRows));
    placeOptions();
}

void LinkPanel::showRow(int row) {
    if (row < firstRow_) scrollRows(row - firstRow_);
    if (row >= firstRow_ + kOptionRows) scrollRows(row - firstRow_ - kOptionRows + 1);
}

void LinkPanel::setVisible(bool visible) {
    visible_ = visible;
    placeOptions();
}

QString LinkPanel::nothingHere() const {
    return links_.empty() ? noneText() : QString();
}

void LinkPanel::draw() {
    const auto text = links_.empty() ? std::nullopt : linkText(room_.sarne.Db(), links_[size_t(chosen_)].id);
    if (text) {
        room_.view.drawRichText(*text);
    } else {
        room_.view.setFont({QStringLiteral("Arial"), 12});
        room_.view.print(noneText());
    }
}

void LinkPanel::optionClick(int index) {
    chosen_ = index;
    options_[size_t(index)]->setChecked(true);
    room_.view.Cls();
    draw();
}

bool LinkPanel::step(bool /*sideways*/, int direction) {
    FocusRing& ring = room_.form.ring();
    const auto from = std::ranges::find(options_, ring.current());
    if (!ring.current() || from == options_.end()) return false;
    const auto count = static_cast<int>(options_.size());
    const int at = (static_cast<int>(from - options_.begin()) + direction + count) % count;
    showRow(at / kOptionColumns);
    ring.goTo(*options_[size_t(at)]);
    return true;
}

std::vector<FocusGroup> LinkPanel::stops() const {
    if (options_.empty()) return {};
    return {FocusGroup(options_, options_[size_t(chosen_)])};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
