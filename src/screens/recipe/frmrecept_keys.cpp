#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <algorithm>

#include "forms/bassarne.h"
#include "forms/stage.h"
#include "screens/recipe/frmrecept.h"
#include "screens/recipe/sectiontable.h"

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
    if (sideways && indexOf(bar_, focused) >= 0)
        stepBar(direction);
    else if (!current().step(focused, sideways, direction))
        stepSections(direction);
    return true;
}

void frmRecept::stepSections(int direction) {
    const int count = static_cast<int>(sectionButtons_.size());
    const int focused = indexOf(sectionButtons_, focusedControl());
    const auto next = static_cast<size_t>(focused < 0 ? section_ : (focused + direction + count) % count);
    sectionButtons_[next]->setFocus(Qt::TabFocusReason);
    app().HookMessage(sectionKinds()[next].title());
    announceNothing(*sections_[next]);
}

void frmRecept::announceNothing(const RecipeSection& section) {
    if (const QString nothing = section.nothingHere(); !nothing.isEmpty()) app().HookMessage(nothing);
}

void frmRecept::stepBar(int direction) {
    const int count = static_cast<int>(bar_.size());
    Button* next = bar_[size_t((indexOf(bar_, focusedControl()) + direction + count) % count)];
    next->setFocus(Qt::TabFocusReason);
    app().HookMessage(next->accessibleName());
}

/// Where Tab stops: at the section buttons, at what belongs to the section, at the bar. Within each the arrow
/// keys move.
std::vector<Control*> frmRecept::tabStops() const {
    std::vector<Control*> stops{sectionButtons_[size_t(section_)]};
    const std::vector<Control*> own = current().stops();
    stops.insert(stops.end(), own.begin(), own.end());
    const bool toRead = view_->pieces().linkCount() > 0 || view_->scrollRange() > 0;
    if (view_->isVisible() && (toRead || current().opensView())) stops.push_back(view_);
    stops.push_back(bar_.front());
    return stops;
}

/// Any control of a group stands for the one that Tab stops at.
Control* frmRecept::tabStopOf(Control* control) const {
    if (!control || indexOf(sectionButtons_, control) >= 0) return sectionButtons_[size_t(section_)];
    if (indexOf(bar_, control) >= 0) return bar_.front();
    const std::vector<Control*> own = current().stops();
    return current().owns(control) && indexOf(own, control) < 0 ? own.front() : control;
}

void frmRecept::tab(int direction) {
    const auto way = direction > 0 ? TextView::Direction::Forward : TextView::Direction::Backward;
    Control* focused = focusedControl();
    if (focused == view_ && view_->focusNextLink(way)) return;
    const std::vector<Control*> stops = tabStops();
    const int count = static_cast<int>(stops.size());
    Control* next = stops[size_t((indexOf(stops, tabStopOf(focused)) + direction + count) % count)];
    view_->focusLink({});
    next->setFocus(Qt::TabFocusReason);
    if (next == view_ && view_->focusNextLink(way)) return;
    app().HookMessage(next->accessibleName());
    if (next == stops.front()) announceNothing(current());
}

}  // namespace sarne
