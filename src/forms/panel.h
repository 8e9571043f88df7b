#pragma once

#include <QPainter>

#include "forms/colors.h"
#include "forms/picture.h"

namespace sarne {

/// The ground of dialogs and menus: dark teal, calm enough for texts, in a copper frame. \a ground, where
/// there is one, shows through.
inline void paintPanel(QPainter& painter, const QRect& place, const Picture& ground = {}) {
    constexpr int kFrame = 45;
    QLinearGradient shade(place.topLeft(), place.bottomLeft());
    shade.setColorAt(0, colors::kTeal);
    shade.setColorAt(1, colors::kNight);
    painter.fillRect(place, shade);
    painter.save();
    painter.setOpacity(.35);
    ground.draw(painter, place, Fit::Cover);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colors::kNight, 2 * kFrame));
    painter.drawRect(place);
    painter.setPen(QPen(colors::kCopper, kFrame));
    painter.drawRect(QRectF(place).adjusted(kFrame / 2., kFrame / 2., -kFrame / 2., -kFrame / 2.));
}

}  // namespace sarne
