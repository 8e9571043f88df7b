#pragma once

#include "forms/control.h"

namespace sarne {

/// How far something has come: a bar that fills from 0 to its maximum.
class ProgressBar : public Control {
    Q_OBJECT
  public:
    ProgressBar(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::ProgressBar; }
    /// The part done, as "40 %".
    QString accessibleValue() const override;
    std::optional<AccessibleRange> accessibleRange() const override {
        return AccessibleRange{double(value_), double(maximum_)};
    }

    /// At least 1.
    void setMaximum(int maximum);
    int maximum() const { return maximum_; }
    /// Held between 0 and the maximum.
    void setValue(int value);
    int value() const { return value_; }
    void advance() { setValue(value_ + 1); }

  protected:
    void paint(QPainter& painter) override;

  private:
    int maximum_ = 100;
    int value_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
