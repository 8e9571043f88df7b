#include "lettering.h"

#include <algorithm>

#include "projector.h"

namespace sarne::disc {
namespace {

constexpr double kFade = 0.3;
constexpr double kTitleSeconds = 3.6;
/// Pixels of the frame for one of the 800 that the lettering is laid out in.
constexpr double kFine = kFilmWidth / 800.0;
const QRectF kTitle(0, 0, 800, 66);
const QRectF kPaper(24, 482, 752, 106);
const QRectF kTab(44, 454, 712, 30);
const QColor kTeal(14, 58, 64);
const QColor kCopper(208, 143, 80);

QFont textFont(const char* family, int pixels, bool isBold) {
    QFont font(QString::fromLatin1(family));
    font.setPixelSize(pixels);
    font.setBold(isBold);
    return font;
}

/// How much of something is seen that is there between two times.
double presence(double seconds, double begin, double end) {
    return std::clamp(std::min(seconds - begin, end - seconds) / kFade, 0.0, 1.0);
}

double titlePresence(double seconds) {
    return presence(seconds, -kFade, kTitleSeconds);
}

const Caption* captionAt(const Film& film, double seconds) {
    const auto found = std::find_if(film.captions.cbegin(), film.captions.cend(), [&](const Caption& one) {
        return seconds >= one.begin && seconds < one.end;
    });
    return found == film.captions.cend() ? nullptr : &*found;
}

void drawTitle(QPainter& painter, const QString& title, double opacity) {
    if (title.isEmpty() || opacity <= 0) return;
    painter.setOpacity(opacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kTeal);
    painter.drawRect(kTitle);
    painter.setBrush(kCopper);
    painter.drawRect(QRectF(kTitle.left(), kTitle.bottom() - 3, kTitle.width(), 3));
    painter.setFont(textFont("Liberation Serif", 34, true));
    painter.setPen(QColor(225, 225, 125));
    painter.drawText(kTitle.adjusted(0, 0, 0, -3), Qt::AlignCenter, title);
}

void drawTab(QPainter& painter, const QString& text) {
    if (text.isEmpty()) return;
    painter.setFont(textFont("Liberation Sans", 19, true));
    QRectF tab = kTab;
    tab.setWidth(painter.fontMetrics().horizontalAdvance(text) + 32);
    painter.setPen(QPen(kCopper, 2));
    painter.setBrush(kTeal);
    painter.drawRoundedRect(tab.adjusted(0, 0, 0, 8), 8, 8);
    painter.setPen(QColor(225, 225, 125));
    painter.drawText(tab.adjusted(0, 0, 0, -2), Qt::AlignCenter, text);
}

void drawCaption(QPainter& painter, const Caption& caption, double seconds) {
    painter.setOpacity(1);
    drawTab(painter, caption.chapter);
    painter.setPen(QPen(kCopper, 2));
    painter.setBrush(QColor(244, 234, 210));
    painter.drawRoundedRect(kPaper, 12, 12);
    painter.setOpacity(presence(seconds, caption.begin, caption.end));
    painter.setFont(textFont("Liberation Sans", 32, false));
    painter.setPen(QColor(43, 29, 18));
    painter.drawText(kPaper.adjusted(16, 4, -16, -4), Qt::AlignCenter | Qt::TextWordWrap, caption.text);
}

QRectF tagRect(const Tag& tag, QPointF place) {
    const QFontMetricsF metrics(textFont("Liberation Sans", 26, true));
    QRectF rect(0, 0, metrics.horizontalAdvance(tag.text) + 28, 42);
    rect.moveCenter(place / kFine + QPointF(0, -58));
    return rect;
}

/// A paper label that points down to its place.
void drawTag(QPainter& painter, const Tag& tag, QPointF place, double opacity) {
    painter.setOpacity(opacity);
    const QRectF rect = tagRect(tag, place);
    const QPointF foot = rect.center() + QPointF(0, 54);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(244, 234, 210, 240));
    painter.drawPolygon(QPolygonF{rect.center() + QPointF(-9, 18), foot, rect.center() + QPointF(9, 18)});
    painter.drawRoundedRect(rect, 9, 9);
    painter.setFont(textFont("Liberation Sans", 26, true));
    painter.setPen(QColor(43, 29, 18));
    painter.drawText(rect, Qt::AlignCenter, tag.text);
}

QRect inPixels(const QRectF& rect) {
    return QRectF(rect.topLeft() * kFine, rect.size() * kFine).toAlignedRect().adjusted(-3, -3, 3, 3);
}

}  // namespace

void drawLettering(QPainter& painter, const Film& film, double seconds, const QList<QPointF>& tagPlaces) {
    painter.save();
    painter.scale(kFine, kFine);
    for (int i = 0; i < film.tags.size(); ++i)
        if (const double there = presence(seconds, film.tags[i].begin, film.tags[i].end); there > 0)
            drawTag(painter, film.tags[i], tagPlaces.value(i), there);
    drawTitle(painter, film.title, titlePresence(seconds));
    if (const Caption* caption = captionAt(film, seconds)) drawCaption(painter, *caption, seconds);
    painter.restore();
}

QRegion changedLettering(const Film& film, double before, double now, const QList<QPointF>& tagPlaces) {
    QRegion changed;
    if (titlePresence(before) != titlePresence(now)) changed += inPixels(kTitle);
    const Caption* old = captionAt(film, before);
    const Caption* caption = captionAt(film, now);
    if (old != caption || (caption && presence(before, caption->begin, caption->end) !=
                                          presence(now, caption->begin, caption->end)))
        changed += inPixels(kPaper.united(kTab));
    for (int i = 0; i < film.tags.size(); ++i)
        if (const Tag& tag = film.tags[i];
            presence(before, tag.begin, tag.end) != presence(now, tag.begin, tag.end))
            changed += inPixels(tagRect(tag, tagPlaces.value(i)).adjusted(0, 0, 0, 40));
    return changed;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
