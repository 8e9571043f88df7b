// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/control.h"

namespace sarne {

/// Five stars, as many of them full as were given. A click on a star gives that many, on the last full one it
/// takes them back; with the keyboard on it Enter and Space give one more, round at the end, and the digits
/// 0 to 5 that many.
class StarRow : public Control {
    Q_OBJECT
  public:
    static constexpr int kStars = 5;

    StarRow(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::Slider; }
    QString accessibleValue() const override;
    std::optional<AccessibleRange> accessibleRange() const override {
        return AccessibleRange{double(stars_), double(kStars)};
    }
    void setAccessibleValue(double stars) override { give(static_cast<int>(stars)); }
    QRect focusPlace() const override { return {{0, 0}, twips().size()}; }

    int stars() const { return stars_; }
    /// Shows \a stars without a word.
    void setStars(int stars);
    /// What the keyboard does with it; false for any other key.
    bool keyDown(const QKeyEvent& event);

  Q_SIGNALS:
    /// The user has given so many.
    void given(int stars);

  protected:
    void paint(QPainter& painter) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void give(int stars);

    int stars_ = 0;
};

/// "★★★☆☆"; nothing without any.
QString starText(int stars);

}  // namespace sarne
