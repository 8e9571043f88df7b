#pragma once

#include "forms/control.h"
#include "richtext/surface.h"

class QLineEdit;

namespace sarne {

class EntrySign;

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
    /// The entry is one of numbers: its sign makes them one more or one less.
    void setSteps(int least, int most);
    /// The sign for those who have only a mouse; without it where the form has keys of its own.
    void setSign(bool shown);
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

    void placeSign();
    void step(int more, int least, int most);

    QLineEdit* line_;
    EntrySign* sign_;
    TextFont font_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
