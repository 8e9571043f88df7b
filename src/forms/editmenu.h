#pragma once

#include <QMenu>

#include "core/texts.h"

namespace sarne {

/// The look of a context menu at \a scale pixels a twip: as the program's own menus, its texts as large.
QString editMenuStyle(double scale);

/// What an editor's context menu can offer now.
struct EditState {
    bool undo, redo, selection, paste, text;
};

/// Shows the context menu of \a editor, a line or a text, at \a global: undo, clipboard, select all.
template <typename Editor>
void showEditMenu(Editor& editor, const EditState& state, double scale, QPoint global) {
    QMenu menu(&editor);
    menu.setStyleSheet(editMenuStyle(scale));
    const auto add = [&](const QString& caption, bool enabled, auto action) {
        menu.addAction(caption, &editor, action)->setEnabled(enabled);
    };
    add(Texts::tr("Zpět\tCtrl+Z"), state.undo, &Editor::undo);
    add(Texts::tr("Znovu\tCtrl+Y"), state.redo, &Editor::redo);
    menu.addSeparator();
    add(Texts::tr("Vyjmout\tCtrl+X"), state.selection, &Editor::cut);
    add(Texts::tr("Kopírovat\tCtrl+C"), state.selection, &Editor::copy);
    add(Texts::tr("Vložit\tCtrl+V"), state.paste, &Editor::paste);
    menu.addSeparator();
    add(Texts::tr("Vybrat vše\tCtrl+A"), state.text, &Editor::selectAll);
    menu.exec(global);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
