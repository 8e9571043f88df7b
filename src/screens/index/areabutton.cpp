#include "screens/index/areabutton.h"

#include <QPainter>

#include "forms/colors.h"
#include "forms/label.h"

namespace sarne {
namespace {

const TextFont kFont{QStringLiteral("Arial"), 12, true};
constexpr int kPlateMargin = 90;
constexpr int kAreaEdge = 60;  // from the plate to the area's edge

}  // namespace

AreaButton::AreaButton(Form& form, const QString& name, const QString& caption)
    : Control(form, name), caption_(caption) {
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
    setAccessibleName(caption);
}

/// As wide as the name, on as many lines as it needs, in the middle of the area's lower edge.
QRect AreaButton::plate() const {
    const QSize area = twips().size();
    const int room = area.width() - 2 * (kPlateMargin + kAreaEdge);
    QSize text = Label::measure(caption_, kFont);
    if (text.width() > room) text = Label::measure(caption_, kFont, std::max(1, room));
    QRect place({0, 0}, text + QSize(2 * kPlateMargin, kPlateMargin));
    place.moveCenter({area.width() / 2, 0});
    place.moveBottom(area.height() - kAreaEdge);
    return place;
}

void AreaButton::paint(QPainter& painter) {
    const bool marked = isPointedAt() || showsFocus();
    const QRect place = plate();
    QColor ground = marked ? colors::kSelected : colors::kNight;
    ground.setAlpha(marked ? 255 : 225);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(place, 60, 60);
    painter.setFont(kFont.toQFont());
    painter.setPen(marked ? Qt::white : colors::kTitle);
    painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, caption_);
    if (isPointedAt()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colors::kCopper, 45));
        painter.drawRoundedRect(QRectF({0, 0}, twips().size()).adjusted(30, 30, -30, -30), 90, 90);
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
