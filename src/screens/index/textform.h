#pragma once

#include "forms/textview.h"
#include "screens/index/barform.h"

namespace sarne {

/// A screen with one rich text on paper. Up, Down, the Page keys, Home and End scroll it wherever the
/// keyboard is; Tab goes through its link phrases before it goes on to the bar.
class TextForm : public BarForm {
    Q_OBJECT
  public:
    TextForm(basSarne& sarne, const QString& name);

  protected:
    /// Shows \a text from its top. The title is \a name, which is not said again as the text's own heading;
    /// where that cannot be taken out, the title is \a kind.
    void showText(const QString& name, const QString& text, const QString& kind);
    TextView& view() { return view_; }
    /// Where a text stands that has the paper to itself, its scroll arrows right of it.
    static QRect wholePaper();
    /// Places the text; before it is shown.
    void placeText(const QRect& place) { view_.place(place); }

    virtual void linkActivated(const LinkKey& key);
    /// Prints the text that shows.
    void print() override;

    bool keyDown(QKeyEvent& event) override;
    void paint(QPainter& painter) override;
    void eyesChanged() override;

  private:
    TextView view_;
    QString name_;
    QString text_;
    QString kind_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
