#include "screens/browse/frmrychlyrecept.h"

#include <QPainter>

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"

namespace sarne {
namespace {

constexpr int kBorder = 100;  // from the window's edge to its picture

}  // namespace

frmRychlyRecept::frmRychlyRecept(basSarne& sarne, Form& owner)
    : Form(sarne, QStringLiteral("frmRychlyRecept")),
      owner_(owner),
      Picture1(*this, QStringLiteral("Picture1")) {
    setAccessibleName(Texts::tr("Seznam s recepty"));
    setWindowTitle(Texts::tr("Seznam s recepty"));
    connect(&Picture1, &Control::clicked, this, &frmRychlyRecept::giveBack);
    connect(&Picture1, &Control::hovered, this, &frmRychlyRecept::giveBack);
}

void frmRychlyRecept::Zobraz(const QRect& where) {
    place(where);
    Picture1.place({kBorder, kBorder, where.width() - 2 * kBorder, where.height() - 2 * kBorder});
    show();
    raise();
}

void frmRychlyRecept::setPicture(const QImage& picture, const QString& words) {
    showPictureOrWords(Picture1, picture, words);
}

void frmRychlyRecept::giveBack() {
    // Where the list is below another screen, it hands the keyboard on to that.
    if (app().FormStack.top() == &owner_)
        owner_.ring().restore();
    else
        owner_.setFocus();
}

void frmRychlyRecept::gotFocus() {
    giveBack();
}

void frmRychlyRecept::mousePressEvent(QMouseEvent*) {
    giveBack();
}

void frmRychlyRecept::paint(QPainter& painter) {
    painter.setPen(QPen(colors::kCopper, 40));
    painter.setBrush(colors::kTeal);
    painter.drawRect(QRect({20, 20}, twips().size() - QSize(40, 40)));
}

void showPictureOrWords(PictureBox& box, const QImage& picture, const QString& words) {
    box.Cls();
    if (!picture.isNull()) return box.setPicture(Picture::fromImage(picture));
    box.setFont({QStringLiteral("Arial"), 14});
    box.setForeColor(colors::kTitle);
    box.setCurrentX((box.scaleWidth() - box.textWidth(words)) / 2);
    box.setCurrentY((box.scaleHeight() - box.textHeight(words)) / 2);
    box.print(words);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
