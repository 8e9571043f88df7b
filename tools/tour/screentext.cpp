#include "screentext.h"

#include "forms/button.h"
#include "forms/checkbox.h"
#include "forms/edit.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picturebox.h"
#include "forms/stage.h"
#include "textcontrast.h"

namespace sarne {
namespace {

QString textOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const Label*>(&widget)) return label->text();
    if (const auto* box = qobject_cast<const PictureBox*>(&widget)) return box->drawnText();
    if (const auto* edit = qobject_cast<const Edit*>(&widget)) return edit->text();
    return qobject_cast<const Control*>(&widget) ? widget.accessibleName() : QString();
}

/// Letters and digits alone: where a label breaks its lines does not matter.
QString letters(const QString& text) {
    QString kept;
    for (const QChar c : text)
        if (c.isLetterOrNumber()) kept += c;
    return kept;
}

QRect placeOn(const Stage& stage, const QWidget& control) {
    return {control.mapTo(&stage, QPoint(0, 0)), control.size()};
}

/// What was painted of a label, and whether all of that can be seen.
struct Painted {
    QString text;
    bool whole = true;
};

Painted paintedWithin(const QRect& place, const std::vector<TextContrast>& painted) {
    Painted found;
    for (const TextContrast& text : painted) {
        if (!place.contains(text.place.center())) continue;
        found.text += text.text;
        found.whole = found.whole && text.isWhole;
    }
    return found;
}

bool meetsMouse(const Stage& stage, const QWidget& control) {
    const QRect place = placeOn(stage, control);
    const QWidget* hit = stage.childAt(place.center());
    const bool inSight = stage.rect().contains(place.center()) && !place.isEmpty();
    return inSight && (hit == &control || control.isAncestorOf(hit) ||
                       control.testAttribute(Qt::WA_TransparentForMouseEvents));
}

void addLabel(const QRect& place, const QString& text, const QString& line,
              const std::vector<TextContrast>& painted, ScreenText& shown) {
    const Painted found = paintedWithin(place, painted);
    if (found.text.isEmpty() && !letters(text).isEmpty()) return;
    shown.lines << line;
    if (!found.whole || !letters(found.text).contains(letters(text))) shown.cut << line;
}

void addTexts(const Stage& stage, const Form& form, const std::vector<TextContrast>& painted,
              ScreenText& shown) {
    shown.lines << QStringLiteral("[") + form.name() + QStringLiteral("]");
    for (const auto* control : form.findChildren<Control*>()) {
        QString text = control->isVisible() ? textOf(*control) : QString();
        text.remove(u'\r');  // the texts expected are kept with plain line ends
        if (text.trimmed().isEmpty()) continue;
        const QString line = control->objectName() + QStringLiteral(": ") + text;
        if (qobject_cast<const Label*>(control))
            addLabel(placeOn(stage, *control), text, line, painted, shown);
        else if (meetsMouse(stage, *control))
            shown.lines << line;
        const bool isCaption = qobject_cast<const CheckBox*>(control) || qobject_cast<const Button*>(control);
        if (isCaption && !paintedWithin(placeOn(stage, *control), painted).whole) shown.cut << line;
    }
}

}  // namespace

ScreenText screenText(const Stage& stage, const std::vector<TextContrast>& painted) {
    ScreenText shown;
    const Form* front = stage.modalForm() ? stage.modalForm() : stage.focusForm();
    for (const Form* form : stage.forms()) {
        const bool menu = front && front->name() == u"frmMenu" && form->name() == u"frmMenu";
        if (form->isVisible() && (form == front || menu)) addTexts(stage, *form, painted, shown);
    }
    return shown;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
