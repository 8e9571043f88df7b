#include "forms/twipwidget.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "forms/stage.h"

namespace sarne {

TwipWidget::TwipWidget(QWidget* parent) : QWidget(parent) {}

void TwipWidget::place(const QRect& twips) {
    twips_ = twips;
    rescale();
}

QRectF TwipWidget::enlargedPlace() const {
    QRectF place(twips_);
    if (const double larger = enlargement(); larger != 1) {
        place.setSize(place.size() * larger);
        place.moveCenter(QRectF(twips_).center());
        place.moveLeft(std::clamp(place.left(), 0., std::max(0., Stage::kWidth - place.width())));
        place.moveTop(std::clamp(place.top(), 0., std::max(0., Stage::kHeight - place.height())));
    }
    return place;
}

void TwipWidget::rescale() {
    const auto* stage = qobject_cast<Stage*>(parentWidget());
    QPointF parentExact;
    QPoint parentPixel;
    QPointF corner = twips_.topLeft();
    double unit = 0;  // of the corner: pixels a twip
    if (stage) {
        unit = stage->scale();
        scale_ = unit * enlargement();
        parentExact = stage->designOrigin();
        corner = enlargedPlace().topLeft();
    } else if (const auto* parent = qobject_cast<TwipWidget*>(parentWidget())) {
        unit = scale_ = parent->scale_;
        parentExact = parent->exactOrigin_;
        parentPixel = parent->pixelOrigin_;
    }
    exactOrigin_ = parentExact + corner * unit;
    const QPoint first = exactOrigin_.toPoint();
    const QPoint end = (exactOrigin_ + QPointF(twips_.width(), twips_.height()) * scale_).toPoint();
    const QRect pixels = stage && fillsWindow()
                             ? stage->rect()
                             : QRect(first, QSize(end.x() - first.x(), end.y() - first.y()));
    pixelOrigin_ = pixels.topLeft();
    setGeometry(pixels.translated(-parentPixel));
    for (QObject* child : children()) {
        if (auto* widget = qobject_cast<TwipWidget*>(child)) widget->rescale();
    }
    update();
}

QPoint TwipWidget::toTwips(QPointF pixels) const {
    const QPointF twips = (pixels + pixelOrigin_ - exactOrigin_) / scale_;
    return {static_cast<int>(std::floor(twips.x())), static_cast<int>(std::floor(twips.y()))};
}

QPoint TwipWidget::toPixels(QPoint twips) const {
    return (QPointF(twips) * scale_ + exactOrigin_ - pixelOrigin_).toPoint();
}

QRectF TwipWidget::covered() const {
    return {(pixelOrigin_ - exactOrigin_) / scale_, QSizeF(size()) / scale_};
}

void TwipWidget::paint(QPainter&) {}

void TwipWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    painter.translate(exactOrigin_ - pixelOrigin_);
    painter.scale(scale_, scale_);
    paint(painter);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
