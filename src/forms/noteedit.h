#pragma once

#include "forms/control.h"
#include "forms/longparagraphs.h"
#include "richtext/surface.h"

class QPlainTextEdit;

namespace sarne {

class EntrySign;

/// An editor for a text of any length, of many lines or of one: plain text, with undo and redo, the clipboard
/// and a scroll bar. A paragraph of thousands of characters shows in pieces, and is one all the same. Escape,
/// Tab, function keys and Alt combinations go to the form; all others are typed.
class NoteEdit : public Control {
    Q_OBJECT
  public:
    NoteEdit(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::Client; }
    /// The text, its lines ended by "\n".
    QString text() const;
    /// Replaces the text without reporting a change; what came before cannot be brought back by undo.
    void setText(const QString& text);
    void setFont(const TextFont& font);
    /// Gives the editor the keyboard, the cursor behind the last character.
    void focusAtEnd();
    bool hasInput() const;
    QPlainTextEdit& editor() { return *editor_; }

    void rescale() override;

  Q_SIGNALS:
    /// The user has changed the text.
    void edited();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    bool keyForForm(QEvent* event);
    void showMenu(QPoint global);
    void breakLongParagraph();

    LongParagraphs paragraphs_;
    QPlainTextEdit* editor_;
    EntrySign* sign_;
    TextFont font_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
