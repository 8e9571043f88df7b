#include "screentext.h"

#include <QStringList>

#include "forms/button.h"
#include "forms/checkbox.h"
#include "forms/edit.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picturebox.h"
#include "forms/stage.h"

namespace sarne {
namespace {

QString textOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const Label*>(&widget)) return label->text();
    if (const auto* box = qobject_cast<const PictureBox*>(&widget)) return box->drawnText();
    if (const auto* edit = qobject_cast<const Edit*>(&widget)) return edit->text();
    return qobject_cast<const Control*>(&widget) ? widget.accessibleName() : QString();
}

QString textsOf(const Form& form) {
    QStringList lines{QStringLiteral("[") + form.name() + QStringLiteral("]")};
    for (const auto* control : form.findChildren<Control*>()) {
        QString text = control->isVisible() ? textOf(*control) : QString();
        text.remove(u'\r');  // the texts expected are kept with plain line ends
        if (!text.trimmed().isEmpty()) lines << control->objectName() + QStringLiteral(": ") + text;
    }
    return lines.join(u'\n');
}

}  // namespace

QString textsOn(const Stage& stage) {
    QStringList shown;
    const Form* front = stage.modalForm() ? stage.modalForm() : stage.focusForm();
    for (const Form* form : stage.forms()) {
        const bool menu = front && front->name() == u"frmMenu" && form->name() == u"frmMenu";
        if (form->isVisible() && (form == front || menu)) shown << textsOf(*form);
    }
    return shown.join(u'\n');
}

}  // namespace sarne
