#pragma once

#include <QKeyEvent>

namespace sarne {

inline bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Lets the keys of a list move the selection of \a list: the arrows by a row, the Page keys by what is seen,
/// Home and End to its ends. Whether \a key is one of them.
template <typename List>
bool moveInList(List& list, int key) {
    switch (key) {
        case Qt::Key_Up:
        case Qt::Key_Down:
            list.moveRow(key == Qt::Key_Up ? -1 : 1);
            return true;
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            list.movePage(key == Qt::Key_PageUp ? -1 : 1);
            return true;
        case Qt::Key_Home:
            list.moveToFirst();
            return true;
        case Qt::Key_End:
            list.moveToLast();
            return true;
        default:
            return false;
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
