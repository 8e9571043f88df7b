#include "forms/progressbar.h"

#include <QPainter>

#include "forms/colors.h"

namespace sarne {
namespace {

constexpr int kBorder = 30;

}  // namespace

ProgressBar::ProgressBar(Form& form, const QString& name) : Control(form, name) {}

QString ProgressBar::accessibleValue() const {
    return QStringLiteral("%1 %").arg(qRound(100. * value_ / maximum_));
}

void ProgressBar::setMaximum(int maximum) {
    maximum_ = qMax(1, maximum);
    setValue(value_);
    update();
}

void ProgressBar::setValue(int value) {
    value = qBound(0, value, maximum_);
    if (value_ == value) return;
    value_ = value;
    update();
    QAccessibleValueChangeEvent event(this, accessibleValue());
    QAccessible::updateAccessibility(&event);
}

void ProgressBar::paint(QPainter& painter) {
    const QRectF bar = QRectF({0, 0}, QSizeF(twips().size()))
                           .adjusted(kBorder / 2., kBorder / 2., -kBorder / 2., -kBorder / 2.);
    painter.setPen(QPen(colors::kCopper, kBorder));
    painter.setBrush(colors::kNight);
    painter.drawRoundedRect(bar, 60, 60);
    QRectF done = bar.adjusted(kBorder, kBorder, -kBorder, -kBorder);
    done.setWidth(done.width() * value_ / maximum_);
    QLinearGradient glow(done.topLeft(), done.bottomLeft());
    glow.setColorAt(0, colors::kCopper.lighter(135));
    glow.setColorAt(1, colors::kCopper.darker(125));
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawRect(done);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
