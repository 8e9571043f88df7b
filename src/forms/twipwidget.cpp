#include "forms/twipwidget.h"

#include <QPainter>
#include <cmath>

#include "forms/stage.h"

namespace sarne {

TwipWidget::TwipWidget(QWidget* parent) : QWidget(parent) {}

void TwipWidget::place(const QRect& twips) {
    twips_ = twips;
    rescale();
}

void TwipWidget::rescale() {
    QPointF parentExact;
    if (const auto* stage = qobject_cast<Stage*>(parentWidget())) {
        scale_ = stage->scale();
        parentExact = stage->designOrigin();
    } else if (const auto* parent = qobject_cast<TwipWidget*>(parentWidget())) {
        scale_ = parent->scale_;
        parentExact = parent->exactOrigin_;
    }
    exactOrigin_ = parentExact + QPointF(twips_.topLeft()) * scale_;
    const QPointF exactEnd = exactOrigin_ + QPointF(twips_.width(), twips_.height()) * scale_;
    const QPoint first = exactOrigin_.toPoint();
    const QPoint end = exactEnd.toPoint();
    const QPoint parentPixel = qobject_cast<Stage*>(parentWidget()) ? QPoint() : parentExact.toPoint();
    setGeometry(QRect(first - parentPixel, QSize(end.x() - first.x(), end.y() - first.y())));
    for (QObject* child : children()) {
        if (auto* widget = qobject_cast<TwipWidget*>(child)) widget->rescale();
    }
    update();
}

QPoint TwipWidget::toTwips(QPointF pixels) const {
    const QPointF offset = exactOrigin_ - QPointF(exactOrigin_.toPoint());
    const QPointF twips = (pixels - offset) / scale_;
    return {static_cast<int>(std::floor(twips.x())), static_cast<int>(std::floor(twips.y()))};
}

QPoint TwipWidget::toPixels(QPoint twips) const {
    return (QPointF(twips) * scale_ + exactOrigin_ - QPointF(exactOrigin_.toPoint())).toPoint();
}

void TwipWidget::paint(QPainter&) {}

void TwipWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    painter.translate(exactOrigin_ - QPointF(exactOrigin_.toPoint()));
    painter.scale(scale_, scale_);
    paint(painter);
}

}  // namespace sarne
