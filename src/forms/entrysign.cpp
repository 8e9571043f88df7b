#include "forms/entrysign.h"

#include <QMouseEvent>
#include <QPainter>

#include "core/texts.h"
#include "forms/colors.h"
#include "forms/form.h"
#include "forms/letterboard.h"
#include "forms/stage.h"

namespace sarne {

EntrySign::EntrySign(Control& entry, QWidget& target)
    : Control(entry.form(), entry.objectName() + QStringLiteral(".klavesy")), entry_(entry), target_(target) {
    setParent(&entry);
    setCursor(Qt::PointingHandCursor);
    setTip(Texts::tr("Psát myší"));
    show();
    connect(this, &Control::clicked, this, &EntrySign::use);
}

void EntrySign::setSteps(int least, int most) {
    steps_ = {least, most};
    setTip(Texts::tr("O jednu více nebo méně"));
}

void EntrySign::mousePressEvent(QMouseEvent* event) {
    upper_ = event->position().y() < height() / 2.;
    Control::mousePressEvent(event);
}

LetterBoard* EntrySign::board() const {
    return board_;
}

void EntrySign::use() {
    target_.setFocus(Qt::MouseFocusReason);
    steps_ ? Q_EMIT stepped(upper_ ? 1 : -1, steps_->first, steps_->second) : toggleBoard();
}

void EntrySign::toggleBoard() {
    const bool isOpen = board_ && board_->isVisible();
    if (isOpen) return board_->close();
    board_ = new LetterBoard(static_cast<Stage&>(*form().parentWidget()), entry_, target_);
}

void EntrySign::paint(QPainter& painter) {
    painter.setOpacity(isEnabled() ? 1 : colors::kDisabledFace);
    painter.setPen(QPen(isPointedAt() ? colors::kSelected : colors::kInk, 22, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    steps_ ? paintSteps(painter) : paintKeys(painter);
}

void EntrySign::paintKeys(QPainter& painter) const {
    QRectF board(0, 0, 285, 180);
    board.moveCenter(QRectF({0, 0}, QSizeF(twips().size())).center());
    painter.drawRoundedRect(board, 30, 30);
    for (int row = 0; row < 2; ++row)
        for (int key = 0; key < 4; ++key)
            painter.drawPoint(board.topLeft() + QPointF(52 + 60 * key, 55 + 40 * row));
    painter.drawLine(board.bottomLeft() + QPointF(90, -45), board.bottomRight() + QPointF(-90, -45));
}

void EntrySign::paintSteps(QPainter& painter) const {
    const QPointF middle = QRectF({0, 0}, QSizeF(twips().size())).center();
    painter.setBrush(painter.pen().color());
    for (const int way : {-1, 1})
        painter.drawPolygon(QPolygonF{middle + QPointF(-75, way * 45), middle + QPointF(75, way * 45),
                                      middle + QPointF(0, way * 135)});
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
