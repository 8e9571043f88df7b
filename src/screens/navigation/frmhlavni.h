#pragma once

#include <array>
#include <vector>

#include "forms/button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picture.h"
#include "forms/timer.h"
#include "screens/navigation/buttontable.h"
#include "screens/navigation/ornaments.h"
#include "screens/navigation/sweep.h"

namespace sarne {

class frmMenu;

/// The home screen: picture buttons that move under the mouse and open the menu of their topic, and the music
/// that plays as long as the program runs. Lives from start to exit.
class frmHlavni : public Form {
    Q_OBJECT
  public:
    explicit frmHlavni(basSarne& sarne);

    /// Shows the screen, loads the menu and starts the music. Called once.
    void Zobraz();
    /// The menu has closed: back to idle. When this screen is on top it gets its buttons, its pointer and the
    /// keyboard back.
    void SkryjMenu();

    /// Lets a light go over the things once, so that who is new here sees what can be used. Any key or click
    /// ends it, and does what it always does.
    void showThings();

    /// The button under the mouse or last clicked; -5 for none.
    int currentButton() const { return current_; }
    bool isMenuOpen() const { return menuOpen_; }
    frmMenu* menu() const { return menu_; }

    void closeRequested() override {}  // this screen is left by its door only
    void restored() override;
    void eyesChanged() override;

  protected:
    void paintNames(QPainter& painter) const;
    QRect roomForName(const Button& thing, const TextFont& font) const;
    void paint(QPainter& painter) override;
    bool keyDown(QKeyEvent& event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void gotFocus() override;

  private:
    void makeButton(int i);
    void startMusic();
    void playAgain(int code);
    void hover(int i);
    void endHover();
    void tick();
    void clickButton(int i);
    void liveOn();
    bool mayMoveByItself() const;
    void stepSweep();
    void endSweep();
    void paintGlow(QPainter& painter, int thing) const;
    void unfoldMenu(int i);
    void showMenuAgain();
    /// Where the keyboard is: the current button or, without one, the focused one.
    int keyboardButton() const;
    void moveTo(int button);
    void handToMenu(QKeyEvent& event);
    bool buttonKey(int key);
    const std::vector<Picture>& frames(int i);
    QRect frameRect(int i) const;

    ButtonTable table_;
    int current_;
    int lastClicked_ = -1;
    bool menuOpen_ = false;
    int shownFrame_ = 0;  // 1.., 0: the picture at rest
    std::array<Button*, kButtonCount> imgClick{};
    std::vector<Picture> frames_;
    int framesOf_ = -1;  ///< the thing whose frames they are
    Timer TmrPohyby;
    Label Label2;
    frmMenu* menu_ = nullptr;
    Sweep sweep_;
    Timer tmrSvetlo;
    Ornaments ornaments_;
    Timer tmrOzdoby;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
