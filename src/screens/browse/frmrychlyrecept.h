#pragma once

#include <QImage>

#include "forms/form.h"
#include "forms/picturebox.h"

namespace sarne {

/// The small window with a picture that stands in place of the photo while quick recipes are listed. It never
/// keeps the keyboard: whatever is done with it gives the keyboard back to the list.
class frmRychlyRecept : public Form {
    Q_OBJECT
  public:
    /// \a owner, the list, outlives the window and unloads it.
    frmRychlyRecept(basSarne& sarne, Form& owner);

    /// Shows the window at \a place (twips of the screen), above the list, without taking the keyboard.
    void Zobraz(const QRect& place);
    /// The picture, and the words that stand in its place when it is a null image.
    void setPicture(const QImage& picture, const QString& words);

  protected:
    bool growsWithTexts() const override { return false; }  // a photo in the room that there is
    void gotFocus() override;
    void mousePressEvent(QMouseEvent* event) override;
    void paint(QPainter& painter) override;

  private:
    void giveBack();

    Form& owner_;
    PictureBox Picture1;
};

/// Shows \a picture in \a box, or \a words in its middle when it is a null image.
void showPictureOrWords(PictureBox& box, const QImage& picture, const QString& words);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
