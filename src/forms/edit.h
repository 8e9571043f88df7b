#pragma once

#include "forms/control.h"
#include "richtext/surface.h"

class QLineEdit;

namespace sarne {

/// A one-line text entry. Enter and Escape go to the form; while the entry has the focus, letters are typed
/// and are no commands.
class Edit : public Control {
    Q_OBJECT
  public:
    Edit(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::Client; }
    QString text() const;
    void setText(const QString& text);
    /// Writes \a text at the cursor, in place of what is selected, as if it were typed.
    void type(const QString& text);
    /// Takes the character before the cursor away, or what is selected.
    void takeBack();
    void setFont(const TextFont& font);
    void setMaxLength(int characters);
    /// Gives the entry the keyboard, its text selected.
    void focusAll();
    bool hasInput() const;

    void rescale() override;

  Q_SIGNALS:
    void textChanged(const QString& text);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    void showMenu(QPoint global);

    QLineEdit* line_;
    TextFont font_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
