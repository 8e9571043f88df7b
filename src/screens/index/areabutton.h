#pragma once

#include "forms/control.h"
#include "forms/largertext.h"

namespace sarne {

/// A click area on a picture: a plate with its name at its lower edge, and a soft light on the thing while it
/// is pointed at or has the keyboard.
class AreaButton : public Control {
    Q_OBJECT
  public:
    AreaButton(Form& form, const QString& name, const QString& caption);

    QAccessible::Role role() const override { return QAccessible::Button; }
    QRect focusPlace() const override { return plate(); }
    const QString& caption() const { return caption_; }

  protected:
    void paint(QPainter& painter) override;

  private:
    TextFont font() const;
    QRect plate() const;
    void paintLight(QPainter& painter) const;

    QString caption_;
    RoomToGrow room_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
