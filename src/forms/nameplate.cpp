#include "forms/nameplate.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "core/unbreakable.h"
#include "forms/button.h"
#include "forms/colors.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/stage.h"

namespace sarne {
namespace {

const TextFont kFont{QStringLiteral("Times New Roman"), 14, true};
constexpr int kDelay = 350;  // milliseconds
constexpr int kGap = 75, kMarginX = 165, kMarginY = 75;
constexpr int kWidest = 5400;
// What a pointer covers around its hot spot, in pixels; desktops do not say.
constexpr QRect kPointer(-14, -6, 42, 42);
constexpr QRect kStage(0, 0, Stage::kWidth, Stage::kHeight);

/// Nothing where the thing's own caption says the same, as large as texts are wanted.
QString tipOf(const Control* thing) {
    const QString tip = thing ? thing->toolTip().trimmed() : QString();
    const auto* button = qobject_cast<const Button*>(thing);
    const bool saysIt = button && button->caption() == tip && button->captionIsLarge();
    return saysIt ? QString() : tip;
}

}  // namespace

QRect namePlatePlace(QSize size, const QRect& thing, const QRect& pointer) {
    const int left = std::clamp(thing.center().x() - size.width() / 2, 0, kStage.width() - size.width());
    const int below = thing.bottom() + 1 + kGap, above = thing.top() - kGap - size.height();
    const int last = kStage.height() - size.height();
    const int tops[] = {below, std::max(below, pointer.bottom() + 1 + kGap),
                        above, pointer.top() - kGap - size.height(),
                        last,  0};
    for (const int top : tops) {
        const QRect place(QPoint(left, top), size);
        if (kStage.contains(place) && !place.intersects(pointer)) return place;
    }
    return {QPoint(left, std::max(0, last)), size};
}

NamePlate::NamePlate(Stage& stage) : TwipWidget(&stage), stage_(stage), delay_(this) {
    setObjectName(QStringLiteral("namePlate"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    delay_.setInterval(kDelay);
    connect(&delay_, &Timer::tick, this, [this] {
        delay_.setEnabled(false);
        if (thing_) nameIt(*thing_);
    });
}

QString NamePlate::text() const {
    return isVisible() ? tipOf(thing_) : QString();
}

void NamePlate::see(const QObject* watched, const QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseMove: {
            const auto& mouse = static_cast<const QMouseEvent&>(event);
            mouse.buttons() ? dismiss() : pointAt(mouse.globalPosition().toPoint());
            break;
        }
        case QEvent::MouseButtonPress:
            used_ = thingAt(
                stage_.mapFromGlobal(static_cast<const QMouseEvent&>(event).globalPosition().toPoint()));
            dismiss();
            break;
        case QEvent::KeyPress:
        case QEvent::Wheel:
            dismiss();
            break;
        case QEvent::FocusIn:
            seeFocus(watched);
            break;
        case QEvent::Show:
        case QEvent::ZOrderChange:
            seeInFront(watched);
            break;
        case QEvent::Leave:
            if (byPointer_ && watched == &stage_) dismiss();
            break;
        default:
            if (object_ && watched == object_) seeThing(event);
    }
}

void NamePlate::seeThing(const QEvent& event) {
    switch (event.type()) {
        case QEvent::Hide:
        case QEvent::EnabledChange:
            dismiss();
            break;
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::ToolTipChange:
            if (isVisible()) settle();
            break;
        default:
            break;
    }
}

void NamePlate::seeFocus(const QObject* watched) {
    if (!stage_.keyboardInUse()) return;
    const QObject* at = watched;
    while (at && !qobject_cast<const Control*>(at)) at = at->parent();
    auto* thing = const_cast<Control*>(static_cast<const Control*>(at));
    if (tipOf(thing).isEmpty()) return dismiss();
    byPointer_ = false;
    nameIt(*thing);
}

void NamePlate::seeInFront(const QObject* watched) {
    if (!thing_ || !qobject_cast<const Form*>(watched)) return;
    watched == &thing_->form() ? raise() : dismiss();
}

void NamePlate::pointAt(QPoint global) {
    if (global == pointer_) return;  // only a window that moved below it
    pointer_ = global;
    Control* thing = thingAt(stage_.mapFromGlobal(global));
    if (thing != used_) used_ = nullptr;
    if (thing && thing == thing_) {
        if (isVisible()) settle();
        return;
    }
    const bool already = isVisible() && byPointer_;
    dismiss();
    if (!thing || thing == used_) return;
    byPointer_ = true;
    if (already) return nameIt(*thing);
    setThing(thing);
    delay_.setEnabled(true);
}

Control* NamePlate::thingAt(QPoint pixels) const {
    for (QWidget* widget = stage_.childAt(pixels); widget; widget = widget->parentWidget()) {
        auto* thing = qobject_cast<Control*>(widget);
        if (!thing) continue;
        const bool reachable = thing->isEnabled() || stage_.focusForm() == &thing->form();
        return reachable && !tipOf(thing).isEmpty() ? thing : nullptr;
    }
    return nullptr;
}

void NamePlate::setThing(Control* thing) {
    thing_ = thing;
    object_ = thing;
}

void NamePlate::nameIt(Control& thing) {
    delay_.setEnabled(false);
    setThing(&thing);
    if (!thing.isVisible() || tipOf(&thing).isEmpty()) return dismiss();
    settle();
    setVisible(true);
    raise();
}

void NamePlate::dismiss() {
    delay_.setEnabled(false);
    setThing(nullptr);
    hide();
}

TextFont NamePlate::font() const {
    return larger(kFont, stage_.eyes().textScale());
}

QSize NamePlate::sizeFor(const QString& text) const {
    const int widest = int(kWidest * stage_.eyes().textScale());
    QSize size = Label::measure(text, font());
    if (size.width() > widest) size = Label::measure(text, font(), widest);
    return size + QSize(2 * kMarginX, 2 * kMarginY);
}

QRect NamePlate::pointerPlace() const {
    const QPointF at = QPointF(stage_.mapFromGlobal(pointer_)) - stage_.designOrigin();
    const double twips = 1 / stage_.scale();
    return QRectF((at + kPointer.topLeft()) * twips, QSizeF(kPointer.size()) * twips).toAlignedRect();
}

void NamePlate::settle() {
    const QPointF corner =
        (QPointF(thing_->mapTo(&stage_, QPoint())) - stage_.designOrigin()) / stage_.scale();
    const QRect thing = QRectF(corner, QSizeF(thing_->size()) / stage_.scale()).toAlignedRect();
    place(namePlatePlace(sizeFor(tipOf(thing_)), thing, pointerPlace()));
}

void NamePlate::paint(QPainter& painter) {
    const QRectF plate = QRectF({0, 0}, QSizeF(twips().size()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors::kTeal);
    painter.drawRoundedRect(plate, 105, 105);
    painter.setPen(QPen(colors::kCopper, 30));
    painter.setBrush(colors::kPaper);
    painter.drawRoundedRect(plate.adjusted(30, 30, -30, -30), 82, 82);
    painter.setFont(font().toQFont());
    painter.setPen(colors::kInk);
    painter.drawText(plate.adjusted(kMarginX - 15, 0, 15 - kMarginX, 0), Qt::AlignCenter | Qt::TextWordWrap,
                     unbroken(tipOf(thing_)));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
