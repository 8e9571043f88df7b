#include "media/seekbar.h"

#include <QMouseEvent>
#include <QPainter>
#include <cstdlib>

#include "core/texts.h"
#include "forms/colors.h"

namespace sarne {
namespace {

constexpr int kMark = 45, kMarkHeight = 210;  // twips: how wide and high a chapter's mark is
constexpr int kCatch = 75;                    // twips from its middle at which a click means the mark
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
    if (track <= 0) return 0;
    for (const Chapter& chapter : chapters_.all())
        if (chapter.start < length_ && std::abs(x - middleOf(chapter.start)) <= kCatch) return chapter.start;
    return length_ * qBound(0, x - kKnob, track) / track;
}

/// Where on the bar a position is, in twips from its left end.
int SeekBar::middleOf(qint64 position) const {
    const int track = twips().width() - 2 * kKnob;
    return length_ > 0 ? kKnob + int(track * qMin(position, length_) / length_) : kKnob;
}

void SeekBar::setChapters(const Chapters& chapters) {
    chapters_ = chapters;
}

void SeekBar::paintMarks(QPainter& painter, const QRectF& track) const {
    for (const Chapter& chapter : chapters_.all()) {
        if (chapter.start == 0 || chapter.start >= length_) continue;  // the beginning needs no mark
        const QPointF middle(middleOf(chapter.start), track.center().y());
        painter.setBrush(chapter.start <= position_ ? colors::kTitle : colors::kCopper);
        painter.drawRect(QRectF(middle - QPointF(kMark / 2., kMarkHeight / 2.), QSizeF(kMark, kMarkHeight)));
    }
}

void SeekBar::paint(QPainter& painter) {
    constexpr int kThickness = 90;
    QRectF bar(0, (twips().height() - kThickness) / 2., twips().width(), kThickness);
    painter.setPen(QPen(colors::kCopper.darker(150), 15));
    painter.setBrush(colors::kNight);
    painter.drawRoundedRect(bar, 45, 45);
    if (length_ <= 0) return;
    const int knob = middleOf(position_);
    bar.setWidth(knob);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors::kCopper);
    painter.drawRoundedRect(bar, 45, 45);
    paintMarks(painter, bar);
    painter.setBrush(colors::kTitle);
    painter.drawEllipse(QPointF(knob, bar.center().y()), kKnob, kKnob);
}

void SeekBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && length_ > 0)
        Q_EMIT sought(positionAt(toTwips(event->position()).x()));
}

void SeekBar::mouseMoveEvent(QMouseEvent* event) {
    const QString title = chapters_.titleAt(positionAt(toTwips(event->position()).x()));
    setToolTip(title.isEmpty() ? Texts::tr("Pozice ve videu") : title);
    Control::mouseMoveEvent(event);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
