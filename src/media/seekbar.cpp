#include "media/seekbar.h"

#include <QMouseEvent>
#include <QPainter>

#include "core/texts.h"
#include "forms/colors.h"

namespace sarne {
namespace {

constexpr int kKnob = 90;  // twips from the knob's middle to its edge; it stays within the track

}  // namespace

SeekBar::SeekBar(Form& owner, const QString& name) : Control(owner, name) {
    setTip(Texts::tr("Pozice ve videu"));
    setCursor(Qt::PointingHandCursor);
}

void SeekBar::show(qint64 position, qint64 length) {
    if (position == position_ && length == length_) return;
    position_ = position;
    length_ = length;
    update();
}

qint64 SeekBar::positionAt(int x) const {
    const int track = twips().width() - 2 * kKnob;
    return track > 0 ? length_ * qBound(0, x - kKnob, track) / track : 0;
}

void SeekBar::paint(QPainter& painter) {
    constexpr int kThickness = 90;
    QRectF bar(0, (twips().height() - kThickness) / 2., twips().width(), kThickness);
    painter.setPen(QPen(colors::kCopper.darker(150), 15));
    painter.setBrush(colors::kNight);
    painter.drawRoundedRect(bar, 45, 45);
    if (length_ <= 0) return;
    const double share = double(qMin(position_, length_)) / double(length_);
    const double knob = kKnob + (bar.width() - 2 * kKnob) * share;  // its middle
    bar.setWidth(knob);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors::kCopper);
    painter.drawRoundedRect(bar, 45, 45);
    painter.setBrush(colors::kTitle);
    painter.drawEllipse(QPointF(knob, bar.center().y()), kKnob, kKnob);
}

void SeekBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && length_ > 0)
        Q_EMIT sought(positionAt(toTwips(event->position()).x()));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
