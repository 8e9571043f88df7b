#include <QKeyEvent>

#include "forms/bassarne.h"
#include "forms/keys.h"
#include "screens/navigation/frmmenu.h"

namespace sarne {

void frmMenu::moveSelection(int step) {
    const int count = int(level_.items.size());
    for (int i = 1; i <= count; ++i) {
        const int k = ((selected_ == 0 && step < 0 ? 1 : selected_) - 1 + step * i + 2 * count) % count + 1;
        if (!level_.items[size_t(k - 1)].isSelectable()) continue;
        return select(k);
    }
}

bool frmMenu::jumpTo(const QKeyEvent& event) {
    const QString text = event.text();
    const bool letter = text.size() == 1 && text[0].isLetterOrNumber() &&
                        !(event.modifiers() & (Qt::AltModifier | Qt::ControlModifier));
    if (!letter || event.key() == Qt::Key_C || event.key() == Qt::Key_X) return false;
    const auto find = [this](const QString& letters) {
        const auto nameAt = [this](int at) { return isSelectable(at + 1) ? item(at + 1).label : QString(); };
        return findByLetters(int(level_.items.size()), nameAt, selected_ - 1, letters);
    };
    int found = find(letters_.add(text[0], app().clock().now()));
    if (found < 0) found = find(letters_.restart());
    if (found >= 0) select(found + 1);
    return true;
}

void frmMenu::enterSelected() {
    if (selected_ == 0) return moveSelection(1);
    const int before = depth_;
    choose(selected_);
    if (child_ && child_->depth_ > before && child_->selected_ == 0) child_->moveSelection(1);
}

bool frmMenu::keyDown(QKeyEvent& event) {
    const bool enter = isEnter(event);
    if (enter && Text1.hasInput()) {
        search();
        return true;
    }
    switch (event.key()) {
        case Qt::Key_Up:
            moveSelection(-1);
            return true;
        case Qt::Key_Down:
            moveSelection(1);
            return true;
        case Qt::Key_Right:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            enterSelected();
            return true;
        case Qt::Key_Left:
        case Qt::Key_Escape:
            goBack();
            return true;
        default:
            return jumpTo(event);
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
