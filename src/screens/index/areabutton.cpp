#include "screens/index/areabutton.h"

#include <QPainter>

#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/form.h"
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

/// As large as the eyes want, where the name then covers no more than half of the thing.
TextFont AreaButton::font() const {
    const QSize room(twips().width() - 2 * (kPlateMargin + kAreaEdge), twips().height() / 2);
    return larger(kFont,
                  room_.of(kFont, form().textScale(), caption_, room, Qt::AlignCenter | Qt::TextWordWrap));
}

/// As wide as the name, on as many lines as it needs, in the middle of the area's lower edge.
QRect AreaButton::plate() const {
    const QSize area = twips().size();
    const int room = area.width() - 2 * (kPlateMargin + kAreaEdge);
    QSize text = Label::measure(caption_, font());
    if (text.width() > room) text = Label::measure(caption_, font(), std::max(1, room));
    QRect place({0, 0}, text + QSize(2 * kPlateMargin, kPlateMargin));
    place.moveCenter({area.width() / 2, 0});
    place.moveBottom(area.height() - kAreaEdge);
    return place;
}

/// A light that falls on the thing: what is bright becomes brighter, so that it is the thing that glows and
/// not its ground.
void AreaButton::paintLight(QPainter& painter) const {
    const QRectF area(0, 0, twips().width(), plate().top());
    QRadialGradient light(QPointF(), 1);
    constexpr QColor kMiddle(92, 82, 62);
    light.setColorAt(0, kMiddle);
    light.setColorAt(.55, kMiddle);
    light.setColorAt(1, Qt::black);  // no light
    painter.save();
    painter.setClipRect(area);
    painter.translate(area.center());
    painter.scale(area.width() / 2, area.height() / 2);
    painter.setCompositionMode(QPainter::CompositionMode_ColorDodge);
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawEllipse(QPointF(), 1, 1);
    painter.restore();
}

void AreaButton::paint(QPainter& painter) {
    const bool marked = isPointedAt() || showsFocus();
    if (marked) paintLight(painter);
    const QRect place = plate();
    QColor ground = marked ? form().eyes().selected() : colors::kNight;
    ground.setAlpha(marked ? 255 : 225);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(place, 60, 60);
    painter.setFont(font().toQFont());
    painter.setPen(marked ? Qt::white : colors::kTitle);
    painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, caption_);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
