#pragma once

#include <array>
#include <functional>
#include <vector>

#include "forms/button.h"
#include "forms/edit.h"
#include "forms/form.h"
#include "forms/label.h"

namespace sarne {

/// Asks for one number or one text. The answer is the text of the entry; a cancelled number is "0", a
/// cancelled text empty.
class frmDialog : public Form {
    Q_OBJECT
  public:
    enum class Asks { Number, Text };

    frmDialog(basSarne& sarne, const QString& prompt, Asks asks);

    QString answer() const { return Text1.text(); }
    void goBack() override { press(1); }
    void closeRequested() override { press(1); }

  protected:
    void paint(QPainter& painter) override;
    bool keyDown(QKeyEvent& event) override;

  private:
    int makeDigits(int top);
    void addKey(const QString& name, const QRect& place, const QString& caption, const QString& tip,
                std::function<void()> use);
    void press(int index);

    Asks asks_;
    Label Label1;
    Edit Text1;
    std::array<Button*, 2> Command1{};
    std::vector<Button*> keys_;  ///< of digits
};

/// Asks for a positive number under \a prompt; 0 when the user cancels. The number is what stands at the
/// beginning of the text that was typed, with a decimal point.
double askNumber(basSarne& sarne, const QString& prompt);

/// Asks for a text under \a prompt; empty when the user cancels.
QString askText(basSarne& sarne, const QString& prompt);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
