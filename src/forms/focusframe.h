#pragma once

#include <QPointer>

#include "forms/twipwidget.h"

namespace sarne {

class Control;
class Form;

/// The ring around the thing of a form that has the keyboard: light on dark on light, so that it is seen on
/// every picture, and at a distance from frames and texts. The mouse goes through it.
class FocusFrame : public TwipWidget {
    Q_OBJECT
  public:
    explicit FocusFrame(Form& form);

    /// Takes note that \a control has got or lost the keyboard, or is or shows it elsewhere.
    void follow(const Control& control);

  protected:
    void paint(QPainter& painter) override;

  private:
    QPointer<const Control> control_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
