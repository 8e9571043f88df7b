#include "print/printdialog.h"

#include <QKeyEvent>

#include "forms/bassarne.h"
#include "forms/keys.h"
#include "forms/panel.h"
#include "forms/resources.h"

namespace sarne {
namespace {

constexpr QRect kDialog(750, 900, 10500, 7200);
constexpr int kListTitleHeight = 360;

bool asksToClose(const QKeyEvent& event) {
    return (event.key() == Qt::Key_F4 || event.key() == Qt::Key_X) && (event.modifiers() & Qt::AltModifier);
}

}  // namespace

PrintDialog::PrintDialog(basSarne& sarne, const QString& name) : Form(sarne, name) {
    place(kDialog);
    ring().setArrows(FocusRing::Arrows::All);
}

void PrintDialog::placeList(ListBox& list, Label& title, const QRect& place) {
    title.place({place.left(), place.top() - kListTitleHeight, place.width(), kListTitleHeight});
    list.place(place);
}

bool PrintDialog::keyDown(QKeyEvent& event) {
    if (isEnter(event))
        enterPressed();
    else if (event.key() == Qt::Key_Escape)
        goBack();
    else if (event.key() == Qt::Key_F1)
        help();
    else if (asksToClose(event))
        closeRequested();
    else if (!otherKey(event))
        ring().keyDown(event);
    return true;  // its keys mean nothing else
}

void PrintDialog::paint(QPainter& painter) {
    paintPanel(painter, {{0, 0}, twips().size()}, app().resources().picture(QStringLiteral("zprava")));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
