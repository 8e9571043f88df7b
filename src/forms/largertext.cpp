#include "forms/largertext.h"

#include <QFontMetricsF>

namespace sarne {

TextFont larger(TextFont font, double scale) {
    font.size *= scale;
    return font;
}

double RoomToGrow::measured(const Asked& asked) {
    constexpr double kStep = .05, kEndless = 1e6;
    const QRectF limits(0, 0, asked.flags & Qt::TextWordWrap ? asked.room.width() : kEndless, kEndless);
    for (double scale = asked.scale; scale > 1; scale -= kStep) {
        const QFontMetricsF metrics(larger(asked.font, scale).toQFont());
        const QRectF box = metrics.boundingRect(limits, asked.flags, asked.text);
        if (box.width() <= asked.room.width() && box.height() <= asked.room.height()) return scale;
    }
    return 1;
}

double RoomToGrow::of(const TextFont& font, double scale, const QString& text, QSize room, int flags) const {
    if (scale <= 1) return 1;
    const Asked asked{font, scale, text, room, flags};
    if (asked == asked_) return answer_;
    asked_ = asked;
    return answer_ = measured(asked);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
