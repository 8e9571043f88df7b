#include "media/videoarea.h"

#include <QPainter>

#include "core/texts.h"
#include "platform/multimediacontrol.h"

namespace sarne {

VideoArea::VideoArea(Form& owner, const QString& name, MultimediaControl* player)
    : Control(owner, name), player_(player) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(Texts::tr("Video"));
    if (player_) connect(player_, &MultimediaControl::frameReady, this, qOverload<>(&QWidget::update));
}

void VideoArea::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    QImage frame = player_ ? player_->renderFrame((QSizeF(size()) * ratio).toSize()) : QImage();
    if (frame.isNull()) return painter.fillRect(rect(), Qt::black);
    frame.setDevicePixelRatio(ratio);
    painter.drawImage(QPoint(), frame);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
