#pragma once

#include <vector>

#include "forms/bassarne.h"
#include "forms/buttonbar.h"
#include "forms/form.h"
#include "forms/label.h"

namespace sarne {

/// A full screen with a title at its top, something to read below and the button bar "Tisk", "Help", "Zpet",
/// "Konec", "ZvukOff" at its foot. Left, Right and Tab go from control to control, Enter and Space press the
/// one that has the keyboard, Escape goes back.
class BarForm : public Form {
    Q_OBJECT
  public:
    enum BarButton { kPrint, kHelp, kBack, kEnd, kSound };
    static constexpr int kBarButtons = 5;

    /// Where the title, the content and the bar lie, in twips.
    static constexpr QRect kTitle{300, 60, 11400, 690};
    static constexpr QRect kContent{360, 1200, 11280, 6300};  ///< with even margins, for a sheet
    static constexpr int kTitleBand = 840;                    ///< where the title's band ends
    static constexpr int kBarBand = 7860;                     ///< where the bar's band begins
    static constexpr QRect kBar{3300, 7995, 8400, 960};

    BarForm(basSarne& sarne, const QString& name);

    void goBack() override;
    void restored() override;

  protected:
    /// The title at the top of the screen.
    void setTitle(const QString& title);
    QString title() const { return title_.text(); }
    /// Where the title's text ends, in twips.
    int titleEnd() const;
    /// The controls before the bar, in the order in which the keyboard goes through them.
    void setContent(const std::vector<TwipWidget*>& controls);
    /// Shows the screen over the others and gives \a first the keyboard.
    void open(Control& first);

    Control& barButton(BarButton button) const { return imgBtnHlavni[button]; }

    virtual void print() = 0;
    /// The bar's "Help"; by default the help for this screen.
    virtual void helpButton() { help(); }
    /// The picture behind everything; by default that of the lists.
    virtual void paintGround(QPainter& painter);

    void paint(QPainter& painter) override;

  private:
    void barClicked(int button);
    void showSound();

    Label title_;
    ButtonBar imgBtnHlavni;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
