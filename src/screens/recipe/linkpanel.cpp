#include "screens/recipe/linkpanel.h"

#include <algorithm>

#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/form.h"
#include "forms/resources.h"
#include "screens/recipe/recipelayout.h"

namespace sarne {

using namespace recipelayout;

LinkPanel::LinkPanel(Form& form, basSarne& app, TextView& view)
    : form_(form),
      app_(app),
      view_(view),
      up_(new Button(form, QStringLiteral("imgOdkazy(0)"))),
      down_(new Button(form, QStringLiteral("imgOdkazy(1)"))) {
    setArrow(*up_, -1);
    setArrow(*down_, 1);
    setVisible(false);
}

void LinkPanel::setArrow(Button& arrow, int rows) {
    const bool up = rows < 0;
    const Picture face =
        app_.resources().picture(up ? QStringLiteral("SipkaNahoru") : QStringLiteral("SipkaDolu"));
    arrow.place(optionArrow(up ? 0 : 1));
    arrow.setFace(face);
    if (face.isNull()) arrow.setCaption(up ? QStringLiteral("▲") : QStringLiteral("▼"));
    arrow.setTip(up ? QStringLiteral("Předchozí odkazy") : QStringLiteral("Další odkazy"));
    if (face.isNull()) arrow.setGround(colors::kTeal);
    arrow.setFocusPolicy(Qt::NoFocus);
    QObject::connect(&arrow, &Button::clicked, &form_, [this, rows] { scrollRows(rows); });
}

void LinkPanel::setRecipe(int recipe) {
    for (OptionButton* option : options_) delete option;
    options_.clear();
    links_ = recipeLinks(app_.Db(), recipe);
    chosen_ = firstRow_ = 0;
    for (size_t at = 0; at < links_.size(); ++at) {
        auto* option = new OptionButton(form_, QStringLiteral("optOdkaz(%1)").arg(at));
        option->setCaption(links_[at].title);
        option->setToolTip(links_[at].title);
        option->setFont({QStringLiteral("Times New Roman"), 12});
        option->setMarkPictures(app_.resources().picture(QStringLiteral("VolbaAno")),
                                app_.resources().picture(QStringLiteral("VolbaNe")));
        QObject::connect(option, &Control::clicked, &form_,
                         [this, at] { optionClick(static_cast<int>(at)); });
        options_.push_back(option);
    }
    if (!options_.empty()) options_.front()->setChecked(true);
    placeOptions();
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
        options_[at]->place(option(row, static_cast<int>(at) % kOptionColumns));
        options_[at]->setVisible(visible_ && row >= 0 && row < kOptionRows);
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

QString LinkPanel::noneText() {
    return QStringLiteral("K tomuto receptu není přiřazen žádný odkaz");
}

void LinkPanel::draw() {
    view_.Cls();
    const auto text = links_.empty() ? std::nullopt : linkText(app_.Db(), links_[size_t(chosen_)].id);
    if (text) {
        view_.drawRichText(*text);
    } else {
        view_.setFont({QStringLiteral("Arial"), 12});
        view_.print(noneText());
    }
    view_.setAccessibleDescription(view_.drawnText());
}

void LinkPanel::optionClick(int index) {
    chosen_ = index;
    options_[size_t(index)]->setChecked(true);
    draw();
}

void LinkPanel::step(int direction) {
    const int count = static_cast<int>(options_.size());
    int at = chosen_;
    for (int index = 0; index < count; ++index) {
        if (options_[size_t(index)]->hasFocus()) at = index;
    }
    at = (at + direction + count) % count;
    showRow(at / kOptionColumns);
    options_[size_t(at)]->setFocus(Qt::TabFocusReason);
    app_.HookMessage(links_[size_t(at)].title);
}

Control* LinkPanel::chosen() const {
    return options_.empty() ? nullptr : options_[size_t(chosen_)];
}

bool LinkPanel::owns(const Control* control) const {
    return std::ranges::any_of(options_, [&](const OptionButton* option) { return option == control; });
}

}  // namespace sarne
