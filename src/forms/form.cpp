#include "forms/form.h"

#include <QEventLoop>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/control.h"
#include "forms/focusframe.h"
#include "forms/keys.h"
#include "forms/readaloud.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "forms/showntexts.h"
#include "forms/stage.h"

namespace sarne {

Form::Form(basSarne& sarne, const QString& name)
    : TwipWidget(&sarne.stage()), app_(sarne), ring_(*this, sarne), focusFrame_(new FocusFrame(*this)) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    hide();
    place({0, 0, Stage::kWidth, Stage::kHeight});
}

Form::~Form() {
    loaded_ = false;
    if (modalLoop_) modalLoop_->quit();
}

void Form::showForm() {
    show();
    raise();
    if (Form* modal = app_.stage().modalForm(); modal && modal != this) return modal->bringToFront();
    ring_.restore();
    app_.stage().refreshPointer();
}

void Form::hideForm() {
    hide();
}

bool Form::showModal() {
    QEventLoop loop;
    QPointer<QWidget> previous = app_.stage().focusWidget();
    modalLoop_ = &loop;
    show();
    app_.stage().enterModal(*this);
    QPointer<Form> self(this);
    const bool wasReading = app_.readAloud().isReading();
    const bool ended = loop.exec() == 0;
    if (!self) return ended;
    modalLoop_ = nullptr;
    if (!wasReading) app_.readAloud().stop();
    app_.stage().leaveModal(*this);
    if (previous && previous->isVisible() && !app_.stage().modalForm()) previous->setFocus();
    return ended;
}

void Form::unload() {
    if (!loaded_) return;
    loaded_ = false;
    hide();
    app_.stage().leaveModal(*this);
    deleteLater();
}

void Form::bringToFront() {
    raise();
    ring_.restore();
}

void Form::hideEvent(QHideEvent* event) {
    TwipWidget::hideEvent(event);
    if (modalLoop_) modalLoop_->quit();
}

void Form::enableControls(bool enabled) {
    const auto controls = findChildren<Control*>(Qt::FindDirectChildrenOnly);
    for (Control* control : controls) control->setEnabled(enabled);
    if (!enabled && isAncestorOf(app_.stage().focusWidget())) setFocus();
}

void Form::setPointer(Pointer pointer) {
    pointer_ = pointer;
    switch (pointer) {
        case Pointer::Normal:
            unsetCursor();
            break;
        case Pointer::Hourglass:
            setCursor(Qt::WaitCursor);
            break;
        case Pointer::Back:
            setCursor(app_.resources().cursor(QStringLiteral("ZPET"), scale(), devicePixelRatioF()));
            break;
    }
}

void Form::rescale() {
    TwipWidget::rescale();
    if (pointer_ == Pointer::Back) setPointer(pointer_);
}

const Resources& Form::resources() const {
    return app_.resources();
}

bool Form::fillsWindow() const {
    return twips() == QRect(0, 0, Stage::kWidth, Stage::kHeight);
}

void Form::paintRoom(QPainter& painter, const Room& ground) const {
    eyes().hasContrast() ? painter.fillRect(covered(), Qt::black) : ground.draw(painter, covered());
}

QAccessible::Role Form::role() const {
    return fillsWindow() ? QAccessible::Client : QAccessible::Dialog;
}

const Eyes& Form::eyes() const {
    return app_.stage().eyes();
}

double Form::enlargement() const {
    if (!growsWithTexts()) return 1;
    const QSizeF size = twips().size();
    return std::max(
        1., std::min({eyes().textScale(), Stage::kWidth / size.width(), Stage::kHeight / size.height()}));
}

double Form::textScale() const {
    return eyes().textScale() / enlargement();
}

void Form::endProgram() {
    app_.ConfirmExit();
}

void Form::help() {
    app_.screens().showHelpFor(name());
}

void Form::musicSettings() {
    app_.screens().showMusicSettings();
}

void Form::eyeSettings() {
    app_.screens().showEyes();
}

QString Form::textToRead() const {
    return textsToRead(*this).join(u'\n');
}

bool Form::keyDown(QKeyEvent& event) {
    if (event.key() != Qt::Key_Escape) return ring_.keyDown(event);
    goBack();
    return true;
}

void Form::gotFocus() {
    if (app_.FormStack.contains(*this)) app_.BringTopToFront(name());
}

/// Ctrl with plus, minus and 0: as everywhere.
bool Form::textSizeKey(const QKeyEvent& event) {
    Eyes& eyes = app_.stage().eyes();
    const bool larger = event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal;
    if (!larger && event.key() != Qt::Key_Minus && event.key() != Qt::Key_0) return false;
    event.key() == Qt::Key_0 ? eyes.setTextPercent(Eyes::kSizes[0]) : void(eyes.stepText(larger ? 1 : -1));
    app_.HookMessage(Texts::tr("Velikost textů %1 %").arg(eyes.textPercent()));
    return true;
}

bool Form::sharedKey(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::AltModifier && (event.key() == Qt::Key_X || event.key() == Qt::Key_F4)) {
        closeRequested();
        return true;
    }
    if (modifiers & Qt::ControlModifier) return textSizeKey(event);
    if (modifiers & ~Qt::ShiftModifier) return false;
    switch (event.key()) {
        case Qt::Key_F1:
            help();
            return true;
        case Qt::Key_F3:
            app_.screens().showShoppingList();
            return true;
        case Qt::Key_F4:
            musicSettings();
            return true;
        case Qt::Key_F5:
            app_.screens().showPantry();
            return true;
        case Qt::Key_F6:
            app_.screens().showOwnCookbook();
            return true;
        case Qt::Key_F7:
            app_.screens().stopRinging();
            return true;
        case Qt::Key_F9:
            app_.readAloud().toggle(textToRead());
            return true;
        case Qt::Key_F10:
            eyeSettings();
            return true;
        case Qt::Key_C:
            goBack();
            return true;
        case Qt::Key_X:
            endProgram();
            return true;
        default:
            return false;
    }
}

void Form::keyPressEvent(QKeyEvent* event) {
    // Keys end here: what lies below a form gets none of its keys.
    event->accept();
    if (event->isAutoRepeat() && !goesOn(*event)) return;
    if (event->key() == Qt::Key_Tab && event->modifiers() & Qt::ShiftModifier) {
        // Some platforms tell Shift+Tab so, others as a key of its own.
        QKeyEvent back(event->type(), Qt::Key_Backtab, event->modifiers(), event->text(),
                       event->isAutoRepeat());
        return keyPressEvent(&back);
    }
    if (!keyDown(*event) && !sharedKey(*event)) ring_.walk(*event);
}

void Form::focusInEvent(QFocusEvent* event) {
    TwipWidget::focusInEvent(event);
    gotFocus();
}

bool Form::focusNextPrevChild(bool) {
    return false;  // Tab is a key like any other, so it reaches keyDown
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
