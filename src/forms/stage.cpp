#include "forms/stage.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QWindow>

#include "forms/accessiblecontrol.h"
#include "forms/control.h"
#include "forms/drawnpictures.h"
#include "forms/fingers.h"
#include "forms/focusframe.h"
#include "forms/form.h"
#include "forms/nameplate.h"

namespace sarne {

Stage::Stage()
    : shield_(new QWidget(this)),
      namePlate_(new NamePlate(*this)),
      fingers_(new Fingers(*this, *namePlate_)) {
    registerAccessibleControls();
    setAttribute(Qt::WA_OpaquePaintEvent);
    shield_->setObjectName(QStringLiteral("shield"));
    shield_->hide();
    resize(kWidth / 15, kHeight / 15);
    qApp->installEventFilter(this);
    connect(&eyes_, &Eyes::changed, this, &Stage::showToEyes);
}

Stage::~Stage() {
    // Forms use the stage while they go.
    qDeleteAll(findChildren<Form*>(Qt::FindDirectChildrenOnly));
}

std::vector<Form*> Stage::forms() const {
    std::vector<Form*> loaded;
    for (Form* form : findChildren<Form*>(Qt::FindDirectChildrenOnly)) {
        if (form->isLoaded()) loaded.push_back(form);
    }
    return loaded;
}

Form* Stage::focusForm() const {
    for (QWidget* widget = focusWidget(); widget; widget = widget->parentWidget()) {
        if (auto* form = qobject_cast<Form*>(widget)) return form;
    }
    return nullptr;
}

void Stage::enterModal(Form& form) {
    modal_.emplace_back(&form);
    raiseModal();
}

void Stage::leaveModal(Form& form) {
    std::erase_if(modal_, [&](const QPointer<Form>& entry) { return !entry || entry == &form; });
    raiseModal();
}

Form* Stage::modalForm() const {
    return modal_.empty() ? nullptr : modal_.back().data();
}

void Stage::raiseModal() {
    Form* form = modalForm();
    shield_->setVisible(form != nullptr);
    if (!form) return;
    shield_->setGeometry(rect());
    shield_->raise();
    form->raise();
    form->ring().restore();
}

void Stage::refreshPointer() {
    const QPoint at = mapFromGlobal(QCursor::pos());
    const QWidget* under = rect().contains(at) ? childAt(at) : nullptr;
    if (under && windowHandle()) windowHandle()->setCursor(under->cursor());
}

void Stage::fit() {
    scale_ = std::min(width() / double(kWidth), height() / double(kHeight));
    origin_ = QPointF((width() - kWidth * scale_) / 2, (height() - kHeight * scale_) / 2);
    shield_->setGeometry(rect());
    namePlate_->dismiss();
    DrawnPictures::shared().setDisplay(size() * devicePixelRatio());
    for (Form* form : findChildren<Form*>(Qt::FindDirectChildrenOnly)) form->rescale();
}

void Stage::showToEyes() {
    for (Form* form : forms()) form->eyesChanged();
    fit();
    update();
}

void Stage::resizeEvent(QResizeEvent*) {
    fit();
}

void Stage::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), Qt::black);
}

void Stage::closeEvent(QCloseEvent* event) {
    event->ignore();
    Q_EMIT closeRequested();
}

bool Stage::isPartOfThis(const QObject* watched) const {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    return widget && widget->window() == this;
}

void Stage::watchInput(const QEvent& event) {
    const bool key = event.type() == QEvent::KeyPress;
    if (!key && event.type() != QEvent::MouseButtonPress) return;
    if (keyboardInUse_ == key) return;
    keyboardInUse_ = key;
    QWidget* focused = focusWidget();
    if (!focused) return;
    focused->update();
    followFocus(focused, QEvent::None);
}

/// Lets the form of \a watched know which of its controls has the keyboard, and where that is.
void Stage::followFocus(QObject* watched, QEvent::Type type) {
    auto* widget = qobject_cast<QWidget*>(watched);
    while (widget && !qobject_cast<Control*>(widget)) widget = widget->parentWidget();
    if (!widget) return;
    QWidget* parent = widget->parentWidget();  // a form, or a frame on one
    while (qobject_cast<Control*>(parent)) parent = parent->parentWidget();
    auto* form = qobject_cast<Form*>(parent);  // not while it is destroyed
    if (!form) return;
    auto& control = static_cast<Control&>(*widget);
    if (type == QEvent::FocusIn) form->ring().arrived(control);
    form->focusFrame().follow(control);
}

bool Stage::eventFilter(QObject* watched, QEvent* event) {
    watchInput(*event);
    if (isPartOfThis(watched)) {
        switch (event->type()) {
            case QEvent::FocusIn:
            case QEvent::FocusOut:
            case QEvent::Move:
            case QEvent::Resize:
            case QEvent::Show:
            case QEvent::Hide:
                followFocus(watched, event->type());
                break;
            default:
                break;
        }
        if (event->type() == QEvent::ToolTip) return true;  // the name plate says it
        if (watched != namePlate_) namePlate_->see(watched, *event);
        if (fingers_->see(watched, *event)) return true;
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
