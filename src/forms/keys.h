#pragma once

#include <QKeyEvent>

namespace sarne {

inline bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Whether the key of \a event goes on while it is held down: those that move and scroll, and those that
/// make larger and smaller. Any other is used once.
inline bool goesOn(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Plus:
        case Qt::Key_Equal:  // where plus is on the same key, above it
        case Qt::Key_Minus:
            return true;
        default:
            return false;
    }
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
