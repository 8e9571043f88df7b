#pragma once

#include <array>
#include <functional>

#include "core/texts.h"
#include "forms/button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/listbox.h"

namespace sarne {

/// A button with a text on it: what it says, its tip, its place in twips.
struct TextFace {
    const char *caption, *tip;
    QRect place;
};

/// Makes a button of \a form for each of \a faces, called \a name with its index ("cmdRuka(2)"); a click
/// gives its index to \a clicked.
template <size_t N>
void makeButtons(Form& form, const QString& name, const TextFace (&faces)[N], std::array<Button*, N>& buttons,
                 const std::function<void(int)>& clicked) {
    for (size_t i = 0; i < N; ++i) {
        const auto index = static_cast<int>(i);
        buttons[i] = new Button(form, QStringLiteral("%1(%2)").arg(name).arg(index));
        buttons[i]->dressAsText(Texts::tr(faces[i].caption), Texts::tr(faces[i].tip));
        buttons[i]->place(faces[i].place);
        QObject::connect(buttons[i], &Button::clicked, &form, [clicked, index] { clicked(index); });
    }
}

/// A dialog of printing: a panel over the screen below, with keys of its own. Enter does what it decides,
/// Escape leaves it, F1 opens its help; nothing reaches the program's other keys.
class PrintDialog : public Form {
    Q_OBJECT
  protected:
    PrintDialog(basSarne& sarne, const QString& name);

    /// The two buttons at the foot, in the middle.
    static constexpr QRect kFootLeft{3540, 6435, 1620, 540}, kFootRight{5340, 6435, 1620, 540};

    /// Places \a list in \a place, below its \a title.
    void placeList(ListBox& list, Label& title, const QRect& place);

    virtual void enterPressed() = 0;
    /// What the dialog does with another key; false lets it move the keyboard's place.
    virtual bool otherKey(QKeyEvent&) { return false; }

    void paint(QPainter& painter) override;
    bool keyDown(QKeyEvent& event) final;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
