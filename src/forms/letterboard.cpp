#include "forms/letterboard.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <utility>

#include "forms/colors.h"
#include "forms/control.h"
#include "forms/largertext.h"
#include "forms/panel.h"
#include "forms/stage.h"

namespace sarne {
namespace {

const TextFont kFont{QStringLiteral("Arial"), 13, true};

QRect onStage(const Stage& stage, const Control& entry) {
    const QPointF corner = QPointF(entry.mapTo(&stage, QPoint())) - stage.designOrigin();
    return QRectF(corner / stage.scale(), QSizeF(entry.size()) / stage.scale()).toAlignedRect();
}

/// Whether the keyboard has gone to something else, not with the whole window or to a menu of its own.
bool isLeft(const QEvent& event) {
    if (event.type() != QEvent::FocusOut) return event.type() == QEvent::Hide;
    const auto reason = static_cast<const QFocusEvent&>(event).reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

}  // namespace

LetterBoard::LetterBoard(Stage& stage, Control& entry, QWidget& target)
    : TwipWidget(&stage), stage_(stage), target_(&target) {
    setObjectName(QStringLiteral("letterBoard"));
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    target.installEventFilter(this);
    stage.installEventFilter(this);
    place(letterKeysPlace(keys_.size(), onStage(stage, entry)));
    show();
    raise();
}

bool LetterBoard::eventFilter(QObject* watched, QEvent* event) {
    if (watched == target_ ? isLeft(*event) : event->type() == QEvent::Resize) close();
    return TwipWidget::eventFilter(watched, event);
}

void LetterBoard::close() {
    hide();
    deleteLater();
}

void LetterBoard::point(int key) {
    if (std::exchange(hovered_, key) != key) update();
}

void LetterBoard::mouseMoveEvent(QMouseEvent* event) {
    point(keys_.keyAt(toTwips(event->position())));
}

void LetterBoard::leaveEvent(QEvent*) {
    point(-1);
}

void LetterBoard::mousePressEvent(QMouseEvent* event) {
    event->accept();
    const int key = keys_.keyAt(toTwips(event->position()));
    if (event->button() == Qt::LeftButton && key >= 0 && target_) use(key);
}

void LetterBoard::use(int key) {
    const QString typed = keys_.use(key);
    update();
    switch (keys_.keys()[static_cast<size_t>(key)].does) {
        case LetterKey::Does::Type:
            return write(typed);
        case LetterKey::Does::Capital:
            return;
        case LetterKey::Does::Accent:
            if (const QString last = before().right(1); !last.isEmpty()) write(withNextAccent(last[0]), 1);
            return;
        case LetterKey::Does::TakeBack:
            return hasSelection() ? sendKey(Qt::Key_Backspace) : write({}, before().isEmpty() ? 0 : 1);
        case LetterKey::Does::Enter:
            return sendKey(Qt::Key_Return);
        case LetterKey::Does::Close:
            return close();
    }
}

void LetterBoard::sendKey(int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier,
                    key == Qt::Key_Return ? QStringLiteral("\r") : QString());
    QApplication::sendEvent(target_, &press);
}

/// As an input method writes: it is no key, after which the program would show where the keyboard is.
void LetterBoard::write(const QString& text, int inPlaceOf) {
    QInputMethodEvent event;
    event.setCommitString(text, -inPlaceOf, inPlaceOf);
    QApplication::sendEvent(target_, &event);
}

QString LetterBoard::before() const {
    QInputMethodQueryEvent query(Qt::ImSurroundingText | Qt::ImCursorPosition);
    QApplication::sendEvent(target_, &query);
    return query.value(Qt::ImSurroundingText).toString().left(query.value(Qt::ImCursorPosition).toInt());
}

bool LetterBoard::hasSelection() const {
    QInputMethodQueryEvent query(Qt::ImCurrentSelection);
    QApplication::sendEvent(target_, &query);
    return !query.value(Qt::ImCurrentSelection).toString().isEmpty();
}

void LetterBoard::paint(QPainter& painter) {
    paintPanel(painter, {{0, 0}, twips().size()});
    painter.setFont(larger(kFont, stage_.eyes().textScale()).toQFont());
    for (int key = 0; key < static_cast<int>(keys_.keys().size()); ++key) paintKey(painter, key);
}

void LetterBoard::paintKey(QPainter& painter, int key) const {
    const LetterKey& shown = keys_.keys()[static_cast<size_t>(key)];
    const bool lit = key == hovered_ || (shown.does == LetterKey::Does::Capital && keys_.isCapital());
    painter.setPen(QPen(lit ? colors::kPaper : colors::kCopper, 30));
    painter.setBrush(lit ? stage_.eyes().selected() : colors::kNight);
    painter.drawRoundedRect(shown.place, 75, 75);
    painter.setPen(colors::kPaper);
    painter.drawText(shown.place, Qt::AlignCenter, keys_.caption(key));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
