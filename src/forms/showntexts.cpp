#include "forms/showntexts.h"

#include <QListView>

#include "core/texts.h"
#include "forms/checkbox.h"
#include "forms/focusorder.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/noteedit.h"
#include "forms/textview.h"

namespace sarne {
namespace {

QString textOf(const Control& control) {
    if (const auto* label = qobject_cast<const Label*>(&control)) return label->text().trimmed();
    if (const auto* surface = qobject_cast<const PictureBox*>(&control))
        return surface->drawnText().trimmed();
    if (const auto* note = qobject_cast<const NoteEdit*>(&control)) return note->text().trimmed();
    return {};
}

/// The cells of a table's row, each but the first behind its heading; of a list, the row alone.
QString rowOf(const Control& control, int first) {
    const AccessiblePart row = control.part(first);
    QStringList words{row.name};
    for (int column = 1; column < control.partColumns(); ++column)
        words << control.part(column).name + u' ' + control.part(first + column).name;
    if (row.isChecked) words << Texts::tr("odškrtnuto");
    return words.join(QStringLiteral(", "));
}

QString rowsInSight(const Control& control) {
    QStringList rows;
    const int columns = control.partColumns();
    for (int first = control.role() == QAccessible::Table ? columns : 0; first < control.partCount();
         first += columns)
        if (!control.part(first).place.isEmpty()) rows << rowOf(control, first);
    return rows.join(u'\n');
}

QString entriesInSight(const ListBox& list) {
    QStringList entries;
    const QListView& view = list.view();
    for (int entry = list.topIndex(); entry >= 0 && entry < list.listCount(); ++entry) {
        if (view.visualRect(view.model()->index(entry, 0)).top() >= view.viewport()->height()) break;
        entries << list.text(entry);
    }
    return entries.join(u'\n');
}

QString switchText(const CheckBox& box) {
    const bool isChoice = qobject_cast<const OptionButton*>(&box);
    const QString state = box.isChecked() ? (isChoice ? Texts::tr("vybráno") : Texts::tr("zapnuto"))
                                          : (isChoice ? QString() : Texts::tr("vypnuto"));
    const bool saysIt = state.isEmpty() || box.caption().endsWith(state, Qt::CaseInsensitive);
    return saysIt ? box.caption() : box.caption() + QStringLiteral(", ") + state;
}

QString readOf(const Control& control) {
    if (control.isUnheard()) return {};
    if (const auto* view = qobject_cast<const TextView*>(&control)) return view->flowingText().trimmed();
    if (QString text = textOf(control); !text.isEmpty()) return text;
    if (const auto* box = qobject_cast<const CheckBox*>(&control)) return switchText(*box);
    if (const auto* list = qobject_cast<const ListBox*>(&control)) return entriesInSight(*list);
    return rowsInSight(control);
}

QString nameOf(const Control& control) {
    return control.isPressable() && control.isEnabled() ? control.accessibleName() : QString();
}

/// What \a textOf says of each control of \a form in sight, as people read.
QStringList inOrder(const Form& form, QString (*textOf)(const Control&),
                    Qt::FindChildOption within = Qt::FindDirectChildrenOnly) {
    QStringList texts;
    std::vector<QRect> places;
    for (const Control* control : form.findChildren<Control*>(within)) {
        const QString text = control->isVisibleTo(&form) ? textOf(*control) : QString();
        if (text.isEmpty()) continue;
        texts << text;
        const auto* holder = qobject_cast<const Control*>(control->parentWidget());
        places.push_back(control->twips().translated(holder ? holder->twips().topLeft() : QPoint()));
    }
    QStringList ordered;
    for (const int index : readingOrder(places)) ordered << texts[index];
    return ordered;
}

}  // namespace

QStringList shownTexts(const Form& form) {
    return inOrder(form, textOf);
}

QStringList textsToRead(const Form& form) {
    const QStringList texts = inOrder(form, readOf, Qt::FindChildrenRecursively);
    return texts.isEmpty() ? inOrder(form, nameOf) : texts;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
