#include "forms/focusframe.h"

#include <QPainter>
#include <algorithm>

#include "forms/colors.h"
#include "forms/control.h"
#include "forms/eyes.h"
#include "forms/form.h"

namespace sarne {
namespace {

constexpr int kDistance = 30, kThickness = 60, kLight = 26;  // twips
constexpr int kStrong = 45;                                  // 3 pixels of the design
constexpr int kStrongPixels = 3;                             // of the display, at least
constexpr int kRounding = 60;

}  // namespace

FocusFrame::FocusFrame(Form& form) : TwipWidget(&form) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void FocusFrame::follow(const Control& control) {
    const QRect thing = control.showsFocus() ? control.focusPlace() : QRect();
    if (thing.isEmpty()) {
        if (control_ == &control) hide();
        return;
    }
    constexpr int kAround = kDistance + kThickness;
    control_ = &control;
    place(thing.translated(control.twips().topLeft()).adjusted(-kAround, -kAround, kAround, kAround));
    show();
    raise();
}

void FocusFrame::paint(QPainter& painter) {
    constexpr double kHalf = kThickness / 2.;
    const QRectF ring = QRectF({0, 0}, QSizeF(twips().size())).adjusted(kHalf, kHalf, -kHalf, -kHalf);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colors::kNight, kThickness));
    painter.drawRoundedRect(ring, kRounding, kRounding);
    const bool contrast = static_cast<Form*>(parentWidget())->eyes().hasContrast();
    const double strong = std::max<double>(kStrong, kStrongPixels / scale());
    painter.setPen(QPen(contrast ? QColor(Qt::white) : colors::kTitle, contrast ? strong : kLight));
    painter.drawRoundedRect(ring, kRounding, kRounding);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
