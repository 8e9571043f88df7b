#include "forms/showntexts.h"

#include "forms/focusorder.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/noteedit.h"
#include "forms/picturebox.h"

namespace sarne {
namespace {

QString textOf(const Control& control) {
    if (const auto* label = qobject_cast<const Label*>(&control)) return label->text().trimmed();
    if (const auto* surface = qobject_cast<const PictureBox*>(&control))
        return surface->drawnText().trimmed();
    if (const auto* note = qobject_cast<const NoteEdit*>(&control)) return note->text().trimmed();
    return {};
}

}  // namespace

QStringList shownTexts(const Form& form) {
    QStringList texts;
    std::vector<QRect> places;
    for (const Control* control : form.findChildren<Control*>(Qt::FindDirectChildrenOnly)) {
        const QString text = control->isVisibleTo(&form) ? textOf(*control) : QString();
        if (text.isEmpty()) continue;
        texts << text;
        places.push_back(control->twips());
    }
    QStringList ordered;
    for (const int index : readingOrder(places)) ordered << texts[index];
    return ordered;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
