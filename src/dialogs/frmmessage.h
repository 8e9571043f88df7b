#pragma once

#include <array>

#include "dialogs/messagelayout.h"
#include "forms/button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picturebox.h"

namespace sarne {

/// The program's own message box: borderless, modal, dragged by its ground. Made once and used for every
/// message.
class frmMessage : public Form {
    Q_OBJECT
  public:
    explicit frmMessage(basSarne& sarne);

    /// Shows \a text with the buttons, icon and default button of \a style and returns the code of the button
    /// pressed. \a closeCode is what the box returns when the window is closed meanwhile; with 0 it stays
    /// open.
    int ask(const QString& text, int style, int silent, int closeCode = 0);
    /// The same for a question that may go unanswered: 0 when the user leaves it by Escape or closes the
    /// window.
    int askOrLeave(const QString& text, int style);

    void closeRequested() override;

  protected:
    void paint(QPainter& painter) override;
    bool keyDown(QKeyEvent& event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void setUp(const QString& text, int style, int silent);
    void setUpButtons(const std::vector<MessageButton>& buttons, const MessageGeometry& geometry);
    void press(int button);
    void pressByLetter(const QString& letter);

    Label Label1;
    PictureBox Image1;
    std::array<Button*, 3> cmdBtn{};
    std::vector<MessageButton> shown_;
    int escape_ = 0;
    int closeCode_ = 0;
    bool mayLeave_ = false;
    int result_ = 0;
    QPoint dragFrom_;  // 0,0: not yet taken
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
