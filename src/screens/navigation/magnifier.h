#pragma once

#include <QPainter>

#include "forms/colors.h"
#include "forms/control.h"

namespace sarne {

/// The magnifying glass at the end of a search field: a click on it is Enter. It leaves the keyboard where it
/// is.
class Magnifier : public Control {
  public:
    Magnifier(Form& form, const QString& name) : Control(form, name) { setCursor(Qt::PointingHandCursor); }
    QAccessible::Role role() const override { return QAccessible::Button; }

  protected:
    void paint(QPainter& painter) override {
        const QRectF place({0, 0}, QSizeF(twips().size()));
        const bool lit = underMouse() || isDown();
        painter.setPen(QPen(colors::kCopper, 30));
        painter.setBrush(lit ? colors::kSelected : colors::kTeal);
        painter.drawRoundedRect(place.adjusted(15, 15, -15, -15), 60, 60);
        const double lens = place.height() * .42;
        const QPointF middle = place.center() - QPointF(lens, lens) * .18;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(
            QPen(lit ? colors::kPaper : colors::kTitle, place.height() * .085, Qt::SolidLine, Qt::RoundCap));
        painter.drawEllipse(middle, lens / 2, lens / 2);
        const QPointF rim = middle + QPointF(lens, lens) * .36;
        painter.drawLine(rim, rim + QPointF(lens, lens) * .42);
    }
    void enterEvent(QEnterEvent*) override { update(); }
    void leaveEvent(QEvent* event) override {
        update();
        Control::leaveEvent(event);
    }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
