#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <algorithm>

#include "forms/bassarne.h"
#include "forms/stage.h"
#include "screens/recipe/frmrecept.h"
#include "screens/recipe/sectionnames.h"

namespace sarne {
namespace {

template <typename Item>
int indexOf(const std::vector<Item*>& items, const Control* item) {
    const auto found = std::ranges::find(items, item);
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

}  // namespace

Control* frmRecept::focusedControl() const {
    for (QWidget* widget = app().stage().focusWidget(); widget; widget = widget->parentWidget()) {
        if (auto* control = qobject_cast<Control*>(widget)) return control;
    }
    return nullptr;
}

bool frmRecept::keyDown(QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(collectedText());
        return true;
    }
    switch (event.key()) {
        case Qt::Key_Escape:
            goBack();
            return true;
        case Qt::Key_Tab:
            tab(event.modifiers() & Qt::ShiftModifier ? -1 : 1);
            return true;
        case Qt::Key_Backtab:
            tab(-1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            return enterKey(event);
        default:
            return focusedControl() == view_ ? view_->keyDown(event) || arrowKey(event.key())
                                             : view_->pageKey(event) || arrowKey(event.key());
    }
}

bool frmRecept::enterKey(QKeyEvent& event) {
    Control* control = focusedControl();
    if (event.isAutoRepeat() || !control) return true;
    if (control == view_ && view_->keyDown(event)) return true;
    control->click();
    return true;
}

bool frmRecept::arrowKey(int key) {
    const bool sideways = key == Qt::Key_Left || key == Qt::Key_Right;
    if (!sideways && key != Qt::Key_Up && key != Qt::Key_Down) return false;
    const int direction = key == Qt::Key_Right || key == Qt::Key_Down ? 1 : -1;
    const Control* focused = focusedControl();
    if (focused == view_ && !sideways) return true;  // the text is at its end
    if (links_->owns(focused))
        links_->step(direction);
    else if (sideways && indexOf(bar_, focused) >= 0)
        stepBar(direction);
    else if (sideways && section_ == kIngredients)
        ingredients_->step(direction);
    else
        stepSections(direction);
    return true;
}

void frmRecept::stepSections(int direction) {
    const int count = recipelayout::kSectionCount;
    const int focused = indexOf(sections_, focusedControl());
    const int next = focused < 0 ? int(section_) : (focused + direction + count) % count;
    sections_[size_t(next)]->setFocus(Qt::TabFocusReason);
    announceSection(next);
}

void frmRecept::announceSection(int index) {
    app().HookMessage(sectionName(index));
    if (index == kLinks && links_->isEmpty()) app().HookMessage(LinkPanel::noneText());
}

void frmRecept::stepBar(int direction) {
    const int count = recipelayout::kBarCount;
    Button* next = bar_[size_t((indexOf(bar_, focusedControl()) + direction + count) % count)];
    next->setFocus(Qt::TabFocusReason);
    app().HookMessage(next->accessibleName());
}

/// Where Tab stops: at the section buttons, at what belongs to the section, at the bar. Within each the arrow
/// keys move.
std::vector<Control*> frmRecept::tabStops() const {
    std::vector<Control*> stops{sections_[section_]};
    if (section_ == kIngredients) stops.push_back(ingredients_->stops().front());
    if (section_ == kLinks && links_->chosen()) stops.push_back(links_->chosen());
    if (note_.isOpen()) stops.insert(stops.end(), {editor_, noteButtons_[0], noteButtons_[1]});
    const bool toRead = view_->pieces().linkCount() > 0 || view_->scrollRange() > 0;
    const bool toOpen = section_ == kPhoto && photoShown_ && !photo_.isNull();
    if (view_->isVisible() && (toRead || toOpen)) stops.push_back(view_);
    stops.push_back(bar_.front());
    return stops;
}

void frmRecept::tab(int direction) {
    const auto way = direction > 0 ? TextView::Direction::Forward : TextView::Direction::Backward;
    Control* focused = focusedControl();
    if (focused == view_ && view_->focusNextLink(way)) return;
    // Any control of a group stands for the one that Tab stops at.
    const std::vector<Control*> stops = tabStops();
    const int count = static_cast<int>(stops.size());
    if (indexOf(bar_, focused) >= 0) focused = bar_.front();
    if (indexOf(ingredients_->stops(), focused) >= 0) focused = ingredients_->stops().front();
    if (links_->owns(focused)) focused = links_->chosen();
    if (indexOf(sections_, focused) >= 0 || !focused) focused = sections_[section_];
    Control* next = stops[size_t((indexOf(stops, focused) + direction + count) % count)];
    view_->focusLink({});
    next->setFocus(Qt::TabFocusReason);
    if (next == view_ && view_->focusNextLink(way)) return;
    app().HookMessage(next->accessibleName());
}

}  // namespace sarne
